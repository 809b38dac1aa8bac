// <ScheduleTime StartTime="0" EndTime="3600" />

#include "alarm/ScheduleTimeXml.h"

#include "core/Frame.h"

ScheduleTimeXml::ScheduleTimeXml() = default;

ScheduleTimeXml::~ScheduleTimeXml() = default;

void ScheduleTimeXml::createXmlNode()
{
    writeElement(document_, time_);
}

bool ScheduleTimeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleTimeXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleTime", document_, node_) && parseXmlNode();
}

bool ScheduleTimeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, time_);
}

TiXmlElement& ScheduleTimeXml::writeElement(TiXmlNode& parent, const ScheduleTime& time)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleTime");
    frame::setInt64(element, "StartTime", time.getStartTime());
    frame::setInt64(element, "EndTime", time.getEndTime());
    return element;
}

bool ScheduleTimeXml::readElement(const TiXmlElement& element, ScheduleTime& time)
{
    time.setStartTime(frame::longOf(element, "StartTime", 0));
    time.setEndTime(frame::longOf(element, "EndTime", 0));
    return true;
}

bool ScheduleTimeXml::createDomainXmlNode(const ScheduleTime& time, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("StartTime", static_cast<int>(time.getStartTime()));
    node->setProperty("EndTime", static_cast<int>(time.getEndTime()));
    return true;
}

bool ScheduleTimeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTime& time) const
{
    if (!node) return false;

    time.setStartTime(
        frame::intProperty(node, "StartTime", 0, "ScheduleTimeXml::parseDomainXmlNode get StartTime failed "));
    time.setEndTime(frame::intProperty(node, "EndTime", 0, "ScheduleTimeXml::parseDomainXmlNode get EndTime failed "));
    return true;
}

bool ScheduleTimeXml::createXmlString(const ScheduleTime& time, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleTime");
    return createDomainXmlNode(time, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleTimeXml::parseXmlString(const std::string& text, ScheduleTime& time) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleTime", node) && parseDomainXmlNode(node, time);
}
