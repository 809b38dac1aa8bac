// <PTZTimer>
//     <PTZTimerParam CameraId="1" TimerMode="2" EnableFlag="true">
//         <TimeStruct TimeZone="0" ... />
//         <PTZTimerTimeSegment BeginTime="3600" EndTime="7200" PTZOperation="tour 2" />
//     </PTZTimerParam>
// </PTZTimer>
//
// The segments stand in the item itself, without a list around them.

#include "ptz/PTZTimerXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "ptz/PTZTimerTimeSegmentXml.h"

#include <cstdio>
#include <utility>

namespace
{

bool writeTimer(const PTZTimer& timer, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("CameraId", timer.getCameraId());
    node->setProperty("TimerMode", timer.getTimerMode());
    node->setProperty("EnableFlag", timer.getEnableFlag());

    if (!TimeStructXml().createTimeStruct(timer.getTimerDate(), "TimeStruct", node)) return false;

    for (const PTZTimerTimeSegment& segment : timer.getTimeSegmentList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PTZTimerTimeSegment");
        if (!PTZTimerTimeSegmentXml().createDomainXmlNode(segment, item)) return false;
    }
    return true;
}

bool readTimer(const SafePointer<DomainXmlNode>& node, PTZTimer& timer)
{
    timer.setCameraId(frame::intProperty(node, "CameraId", 1));
    timer.setTimerMode(frame::intProperty(node, "TimerMode", 0));
    timer.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));

    TimeStruct date;
    if (!TimeStructXml().parseTimeStruct(node, "TimeStruct", date))
        std::puts("PTZTimerXml::parseDomainXmlNode node = NODENAME_TIME_STRUCT failed ");
    timer.setTimerDate(date);

    std::vector<SafePointer<DomainXmlNode>> items;
    if (!node->getConfigNodeList("PTZTimerTimeSegment", items))
        std::puts("PTZTimerXml::parseDomainXmlNode node = NODENAME_PTZTIMERTIMESEGMENT_LIST failed ");
    for (const SafePointer<DomainXmlNode>& item : items)
    {
        PTZTimerTimeSegment segment;
        if (!PTZTimerTimeSegmentXml().parseDomainXmlNode(item, segment)) return false;
        timer.getTimeSegmentList().push_back(std::move(segment));
    }
    return true;
}

} // namespace

PTZTimerXml::PTZTimerXml() = default;

PTZTimerXml::~PTZTimerXml() = default;

bool PTZTimerXml::createDomainXmlNode(const std::vector<PTZTimer>& timers, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    for (const PTZTimer& timer : timers)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PTZTimerParam");
        if (!writeTimer(timer, item)) return false;
    }
    return true;
}

bool PTZTimerXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PTZTimer>& timers) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PTZTimer timer;
        if (!readTimer(frame::nodeOf(*item), timer)) return false;
        timers.push_back(std::move(timer));
    }
    return true;
}

bool PTZTimerXml::createXmlString(const std::vector<PTZTimer>& timers, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZTimer");
    return createDomainXmlNode(timers, node) && DomainXmlNode::toString(node, text);
}

bool PTZTimerXml::parseXmlString(const std::string& text, std::vector<PTZTimer>& timers) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZTimer", node) && parseDomainXmlNode(node, timers);
}
