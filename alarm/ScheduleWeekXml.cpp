// <ScheduleWeek WeekDay="1">
//     <ScheduleTimeList>
//         <ScheduleTime StartTime="0" EndTime="3600" />
//     </ScheduleTimeList>
// </ScheduleWeek>

#include "alarm/ScheduleWeekXml.h"

#include "alarm/ScheduleTimeXml.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>
#include <vector>

namespace
{

bool readTimes(const SafePointer<DomainXmlNode>& list, std::vector<ScheduleTime>& times)
{
    TiXmlElement* item = frame::firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTime time;
        if (!ScheduleTimeXml().parseDomainXmlNode(frame::nodeOf(*item), time)) return false;
        times.push_back(time);
    }
    return true;
}

} // namespace

ScheduleWeekXml::ScheduleWeekXml() = default;

ScheduleWeekXml::~ScheduleWeekXml() = default;

void ScheduleWeekXml::createXmlNode()
{
    writeElement(document_, week_);
}

bool ScheduleWeekXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleWeekXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleWeek", document_, node_) && parseXmlNode();
}

bool ScheduleWeekXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, week_);
}

TiXmlElement& ScheduleWeekXml::writeElement(TiXmlNode& parent, const ScheduleWeek& week)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleWeek");
    frame::setInt(element, "WeekDay", week.getWeekDay());

    TiXmlElement& times = frame::appendElement(element, "ScheduleTimeList");
    for (const ScheduleTime& time : week.getScheduleTimeList())
        ScheduleTimeXml::writeElement(times, time);
    return element;
}

bool ScheduleWeekXml::readElement(const TiXmlElement& element, ScheduleWeek& week)
{
    week.setWeekDay(frame::intOf(element, "WeekDay", 0));

    const TiXmlElement* item = frame::firstItem(element, "ScheduleTimeList", "ScheduleTime");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTime time;
        if (!ScheduleTimeXml::readElement(*item, time)) return false;
        week.getScheduleTimeList().push_back(time);
    }
    return true;
}

bool ScheduleWeekXml::createDomainXmlNode(const ScheduleWeek& week, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("WeekDay", week.getWeekDay());

    SafePointer<DomainXmlNode> times = frame::appendNode(node, "ScheduleTimeList");
    for (const ScheduleTime& time : week.getScheduleTimeList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(times, "ScheduleTime");
        if (!ScheduleTimeXml().createDomainXmlNode(time, item)) return false;
    }
    return true;
}

bool ScheduleWeekXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleWeek& week) const
{
    if (!node) return false;

    week.setWeekDay(frame::intProperty(node, "WeekDay", 0, "ScheduleWeekXml::parseDomainXmlNode get WeekDay failed "));

    SafePointer<DomainXmlNode> list;
    std::vector<ScheduleTime> times;
    if (!node->getConfigNode("ScheduleTimeList", list))
        std::puts("ScheduleWeekXml::parseDomainXmlNode get ScheduleTimeListNode failed ");
    else if (!readTimes(list, times))
        std::puts("ScheduleWeekXml::parseDomainXmlNode get ScheduleTimeNodeList failed ");
    week.getScheduleTimeList() = std::move(times);
    return true;
}

bool ScheduleWeekXml::createXmlString(const ScheduleWeek& week, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleWeek");
    return createDomainXmlNode(week, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleWeekXml::parseXmlString(const std::string& text, ScheduleWeek& week) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleWeek", node) && parseDomainXmlNode(node, week);
}
