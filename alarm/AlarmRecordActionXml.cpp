// <AlarmRecordAction DeviceId="D1" CameraId="1" PreRecordTime="5" RecordTime="30" EventTypeId="2"
//                    IsEnableRecordAudio="true" />
//
// The lines name the codec of the alarm inputs, and one lacks a letter, as those of the peers do. The node reader goes
// in the order of its lines.

#include "alarm/AlarmRecordActionXml.h"

#include "core/Frame.h"

AlarmRecordActionXml::AlarmRecordActionXml() = default;

AlarmRecordActionXml::~AlarmRecordActionXml() = default;

void AlarmRecordActionXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool AlarmRecordActionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmRecordActionXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmRecordAction", document_, node_) && parseXmlNode();
}

bool AlarmRecordActionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

TiXmlElement& AlarmRecordActionXml::writeElement(TiXmlNode& parent, const AlarmRecordAction& action)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmRecordAction");
    frame::setText(element, "DeviceId", action.getDeviceId());
    frame::setInt(element, "CameraId", action.getCameraId());
    frame::setInt(element, "PreRecordTime", action.getPreRecordTime());
    frame::setInt(element, "RecordTime", action.getRecordTime());
    frame::setInt(element, "EventTypeId", action.getEventTypeId());
    frame::setFlag(element, "IsEnableRecordAudio", action.getEnableRecordAudio());
    return element;
}

bool AlarmRecordActionXml::readElement(const TiXmlElement& element, AlarmRecordAction& action)
{
    action.setDeviceId(frame::textOf(element, "DeviceId", ""));
    action.setCameraId(frame::intOf(element, "CameraId", 0));
    action.setPreRecordTime(frame::intOf(element, "PreRecordTime", 0));
    action.setRecordTime(frame::intOf(element, "RecordTime", 0));
    action.setEventTypeId(frame::intOf(element, "EventTypeId", 0));
    action.setEnableRecordAudio(frame::flagOf(element, "IsEnableRecordAudio", false));
    return true;
}

bool AlarmRecordActionXml::createDomainXmlNode(const AlarmRecordAction& action, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", action.getDeviceId());
    node->setProperty("CameraId", action.getCameraId());
    node->setProperty("PreRecordTime", action.getPreRecordTime());
    node->setProperty("RecordTime", action.getRecordTime());
    node->setProperty("EventTypeId", action.getEventTypeId());
    node->setProperty("IsEnableRecordAudio", action.getEnableRecordAudio());
    return true;
}

bool AlarmRecordActionXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmRecordAction& action) const
{
    if (!node) return false;

    action.setCameraId(
        frame::intProperty(node, "CameraId", 0, "AlarmInDeviceXml::parseDomainXmlNode get CameraId failed"));
    action.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "AlarmInDeviceXml::parseDomainXmlNode get DeviceId failed"));
    action.setEnableRecordAudio(frame::flagProperty(
        node, "IsEnableRecordAudio", false, "AlarmInDeviceXml::parseDomainXmlNode get EnableRecordAdio failed"));
    action.setEventTypeId(
        frame::intProperty(node, "EventTypeId", 0, "AlarmInDeviceXml::parseDomainXmlNode get EventTypeId failed"));
    action.setPreRecordTime(
        frame::intProperty(node, "PreRecordTime", 0, "AlarmInDeviceXml::parseDomainXmlNode get PreRecordTime failed"));
    action.setRecordTime(
        frame::intProperty(node, "RecordTime", 0, "AlarmInDeviceXml::parseDomainXmlNode get RecordTime failed"));
    return true;
}

bool AlarmRecordActionXml::createXmlString(const AlarmRecordAction& action, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmRecordAction");
    return createDomainXmlNode(action, node) && DomainXmlNode::toString(node, text);
}

bool AlarmRecordActionXml::parseXmlString(const std::string& text, AlarmRecordAction& action) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmRecordAction", node) && parseDomainXmlNode(node, action);
}
