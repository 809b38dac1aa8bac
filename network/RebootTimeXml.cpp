// <RebootTimeList>
//     <RebootTime Month="4" Day="15" Weekday="6" Second="10800" />
// </RebootTimeList>

#include "network/RebootTimeXml.h"

#include "core/Frame.h"

RebootTimeXml::RebootTimeXml() = default;

RebootTimeXml::~RebootTimeXml() = default;

bool RebootTimeXml::createDomainXmlNode(const std::vector<RebootTime>& times, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const RebootTime& time : times)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "RebootTime");
        item->setProperty("Month", time.getMonth());
        item->setProperty("Day", time.getDay());
        item->setProperty("Weekday", time.getWeekday());
        item->setProperty("Second", time.getSecond());
    }
    return true;
}

bool RebootTimeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RebootTime>& times) const
{
    if (!node) return false;

    const TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RebootTime time;
        if (!readElement(*item, time)) return false;
        times.push_back(time);
    }
    return true;
}

bool RebootTimeXml::createXmlString(const std::vector<RebootTime>& times, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RebootTimeList");
    return createDomainXmlNode(times, node) && DomainXmlNode::toString(node, text);
}

bool RebootTimeXml::parseXmlString(const std::string& text, std::vector<RebootTime>& times) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "RebootTimeList", node) && parseDomainXmlNode(node, times);
}

bool RebootTimeXml::readElement(const TiXmlElement& element, RebootTime& time)
{
    time.setMonth(frame::intOf(element, "Month", 0));
    time.setDay(frame::intOf(element, "Day", 0));
    time.setWeekday(frame::intOf(element, "Weekday", 0));
    time.setSecond(frame::intOf(element, "Second", 0));
    return true;
}
