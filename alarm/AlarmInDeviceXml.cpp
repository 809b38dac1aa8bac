// <AlarmInDevice AlarmInId="1" AlarmInName="Door" AlarmInValidLevel="1" />

#include "alarm/AlarmInDeviceXml.h"

#include "core/Frame.h"

AlarmInDeviceXml::AlarmInDeviceXml() = default;

AlarmInDeviceXml::~AlarmInDeviceXml() = default;

void AlarmInDeviceXml::createXmlNode()
{
    writeElement(document_, device_);
}

bool AlarmInDeviceXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInDeviceXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInDevice", document_, node_) && parseXmlNode();
}

bool AlarmInDeviceXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, device_);
}

TiXmlElement& AlarmInDeviceXml::writeElement(TiXmlNode& parent, const AlarmInDevice& device)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInDevice");
    frame::setInt(element, "AlarmInId", device.getAlarmInId());
    frame::setText(element, "AlarmInName", device.getAlarmInName());
    frame::setInt(element, "AlarmInValidLevel", device.getAlarmInValidLevel());
    return element;
}

bool AlarmInDeviceXml::readElement(const TiXmlElement& element, AlarmInDevice& device)
{
    device.setAlarmInId(frame::intOf(element, "AlarmInId", 0));
    device.setAlarmInName(frame::textOf(element, "AlarmInName", ""));
    device.setAlarmInValidLevel(frame::intOf(element, "AlarmInValidLevel", 0));
    return true;
}

bool AlarmInDeviceXml::createDomainXmlNode(const AlarmInDevice& device, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmInId", device.getAlarmInId());
    node->setProperty("AlarmInName", device.getAlarmInName());
    node->setProperty("AlarmInValidLevel", device.getAlarmInValidLevel());
    return true;
}

bool AlarmInDeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmInDevice& device) const
{
    if (!node) return false;

    device.setAlarmInId(
        frame::intProperty(node, "AlarmInId", 0, "AlarmInDeviceXml::parseDomainXmlNode get AlarmInId failed "));
    device.setAlarmInName(
        frame::textProperty(node, "AlarmInName", "", "AlarmInDeviceXml::parseDomainXmlNode get AlarmInName failed "));
    device.setAlarmInValidLevel(frame::intProperty(
        node, "AlarmInValidLevel", 0, "AlarmInDeviceXml::parseDomainXmlNode get AlarmInValidLevel failed "));
    return true;
}

bool AlarmInDeviceXml::createXmlString(const AlarmInDevice& device, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmInDevice");
    return createDomainXmlNode(device, node) && DomainXmlNode::toString(node, text);
}

bool AlarmInDeviceXml::parseXmlString(const std::string& text, AlarmInDevice& device) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmInDevice", node) && parseDomainXmlNode(node, device);
}
