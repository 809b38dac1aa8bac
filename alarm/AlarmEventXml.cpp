// <AlarmEventList>
//     <AlarmEvent AlarmId="1" MajorAlarmType="2" AlarmType="3" />
// </AlarmEventList>

#include "alarm/AlarmEventXml.h"

#include "core/Frame.h"

namespace
{

void writeItem(const AlarmEvent& event, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("AlarmId", event.getAlarmId());
    node->setProperty("MajorAlarmType", event.getMajorAlarmType());
    node->setProperty("AlarmType", event.getAlarmType());
}

void readItem(const SafePointer<DomainXmlNode>& node, AlarmEvent& event)
{
    event.setAlarmId(frame::intProperty(node, "AlarmId", 0));
    event.setMajorAlarmType(frame::intProperty(node, "MajorAlarmType", 0));
    event.setAlarmType(frame::intProperty(node, "AlarmType", 0));
}

} // namespace

AlarmEventXml::AlarmEventXml() = default;

AlarmEventXml::~AlarmEventXml() = default;

bool AlarmEventXml::createDomainXmlNode(const std::vector<AlarmEvent>& events, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const AlarmEvent& event : events)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "AlarmEvent");
        writeItem(event, item);
    }
    return true;
}

bool AlarmEventXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AlarmEvent>& events) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmEvent event;
        readItem(frame::nodeOf(*item), event);
        events.push_back(event);
    }
    return true;
}

bool AlarmEventXml::createXmlString(const std::vector<AlarmEvent>& events, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmEventList");
    return createDomainXmlNode(events, node) && DomainXmlNode::toString(node, text);
}

bool AlarmEventXml::parseXmlString(const std::string& text, std::vector<AlarmEvent>& events) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmEventList", node) && parseDomainXmlNode(node, events);
}
