// <AlarmData AlarmCode="1" AlarmFlag="1" AlarmSourceId="2" AlarmSourceName="Door" AlarmTime="1425254400" AlarmType="3"
//            EventType="4" />

#include "alarm/AlarmDataXml.h"

#include "core/Frame.h"

AlarmDataXml::AlarmDataXml() = default;

AlarmDataXml::~AlarmDataXml() = default;

void AlarmDataXml::createXmlNode()
{
    writeElement(document_, data_);
}

bool AlarmDataXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmDataXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmData", document_, node_) && parseXmlNode();
}

bool AlarmDataXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, data_);
}

TiXmlElement& AlarmDataXml::writeElement(TiXmlNode& parent, const AlarmData& data)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmData");
    frame::setInt(element, "AlarmCode", data.getAlarmCode());
    frame::setInt(element, "AlarmFlag", data.getAlarmFlag());
    frame::setInt(element, "AlarmSourceId", data.getAlarmSourceId());
    frame::setText(element, "AlarmSourceName", data.getAlarmSourceName());
    frame::setInt64(element, "AlarmTime", data.getAlarmTime());
    frame::setInt(element, "AlarmType", data.getAlarmType());
    frame::setInt(element, "EventType", data.getEventType());
    return element;
}

bool AlarmDataXml::readElement(const TiXmlElement& element, AlarmData& data)
{
    data.setAlarmCode(frame::intOf(element, "AlarmCode", 0));
    data.setAlarmFlag(frame::intOf(element, "AlarmFlag", 0));
    data.setAlarmSourceId(frame::intOf(element, "AlarmSourceId", 0));
    data.setAlarmSourceName(frame::textOf(element, "AlarmSourceName", ""));
    data.setAlarmTime(frame::longOf(element, "AlarmTime", 0));
    data.setAlarmType(frame::intOf(element, "AlarmType", 0));
    data.setEventType(frame::intOf(element, "EventType", 0));
    return true;
}

bool AlarmDataXml::createDomainXmlNode(const AlarmData& data, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmCode", data.getAlarmCode());
    node->setProperty("AlarmFlag", data.getAlarmFlag());
    node->setProperty("AlarmSourceId", data.getAlarmSourceId());
    node->setProperty("AlarmSourceName", data.getAlarmSourceName());
    node->setProperty("AlarmTime", static_cast<unsigned long long>(data.getAlarmTime()));
    node->setProperty("AlarmType", data.getAlarmType());
    node->setProperty("EventType", data.getEventType());
    return true;
}

bool AlarmDataXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmData& data) const
{
    if (!node) return false;

    data.setAlarmCode(
        frame::intProperty(node, "AlarmCode", 0, "AlarmDataXml::parseDomainXmlNode get AlarmCode failed "));
    data.setAlarmFlag(
        frame::intProperty(node, "AlarmFlag", 0, "AlarmDataXml::parseDomainXmlNode get AlarmFlag failed "));
    data.setAlarmSourceId(
        frame::intProperty(node, "AlarmSourceId", 0, "AlarmDataXml::parseDomainXmlNode get AlarmSourceId failed "));
    data.setAlarmSourceName(frame::textProperty(node, "AlarmSourceName", "",
                                                "AlarmDataXml::parseDomainXmlNode get AlarmSourceName failed "));
    data.setAlarmTime(static_cast<long>(
        frame::unsignedProperty(node, "AlarmTime", 0, "AlarmDataXml::parseDomainXmlNode get AlarmTime failed ")));
    data.setAlarmType(
        frame::intProperty(node, "AlarmType", 0, "AlarmDataXml::parseDomainXmlNode get AlarmType failed "));
    data.setEventType(
        frame::intProperty(node, "EventType", 0, "AlarmDataXml::parseDomainXmlNode get EventType failed "));
    return true;
}

bool AlarmDataXml::createXmlString(const AlarmData& data, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmData");
    return createDomainXmlNode(data, node) && DomainXmlNode::toString(node, text);
}

bool AlarmDataXml::parseXmlString(const std::string& text, AlarmData& data) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmData", node) && parseDomainXmlNode(node, data);
}
