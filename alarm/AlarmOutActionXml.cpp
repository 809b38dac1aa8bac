// <AlarmOutAction DeviceId="D1" AlarmOutId="1" AlarmOutFlag="1" EventTypeId="2" />
//
// The lines name the codec of the alarm inputs, as those of the peers do.

#include "alarm/AlarmOutActionXml.h"

#include "core/Frame.h"

AlarmOutActionXml::AlarmOutActionXml() = default;

AlarmOutActionXml::~AlarmOutActionXml() = default;

void AlarmOutActionXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool AlarmOutActionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmOutActionXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmOutAction", document_, node_) && parseXmlNode();
}

bool AlarmOutActionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

TiXmlElement& AlarmOutActionXml::writeElement(TiXmlNode& parent, const AlarmOutAction& action)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmOutAction");
    frame::setText(element, "DeviceId", action.getDeviceId());
    frame::setInt(element, "AlarmOutId", action.getAlarmOutId());
    frame::setInt(element, "AlarmOutFlag", action.getAlarmOutFlag());
    frame::setInt(element, "EventTypeId", action.getEventTypeId());
    return element;
}

bool AlarmOutActionXml::readElement(const TiXmlElement& element, AlarmOutAction& action)
{
    action.setDeviceId(frame::textOf(element, "DeviceId", ""));
    action.setAlarmOutId(frame::intOf(element, "AlarmOutId", 0));
    action.setAlarmOutFlag(frame::intOf(element, "AlarmOutFlag", 0));
    action.setEventTypeId(frame::intOf(element, "EventTypeId", 0));
    return true;
}

bool AlarmOutActionXml::createDomainXmlNode(const AlarmOutAction& action, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", action.getDeviceId());
    node->setProperty("AlarmOutId", action.getAlarmOutId());
    node->setProperty("AlarmOutFlag", action.getAlarmOutFlag());
    node->setProperty("EventTypeId", action.getEventTypeId());
    return true;
}

bool AlarmOutActionXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOutAction& action) const
{
    if (!node) return false;

    action.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "AlarmInDeviceXml::parseDomainXmlNode get DeviceId failed"));
    action.setAlarmOutId(
        frame::intProperty(node, "AlarmOutId", 0, "AlarmInDeviceXml::parseDomainXmlNode get AlarmOutId failed"));
    action.setAlarmOutFlag(
        frame::intProperty(node, "AlarmOutFlag", 0, "AlarmInDeviceXml::parseDomainXmlNode get AlarmFlag failed"));
    action.setEventTypeId(
        frame::intProperty(node, "EventTypeId", 0, "AlarmInDeviceXml::parseDomainXmlNode get EventTypeId failed"));
    return true;
}

bool AlarmOutActionXml::createXmlString(const AlarmOutAction& action, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmOutAction");
    return createDomainXmlNode(action, node) && DomainXmlNode::toString(node, text);
}

bool AlarmOutActionXml::parseXmlString(const std::string& text, AlarmOutAction& action) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmOutAction", node) && parseDomainXmlNode(node, action);
}
