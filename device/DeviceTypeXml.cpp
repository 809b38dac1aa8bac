// <DeviceType DeviceTypeId="12" DeviceTypeName="Recorder" />

#include "device/DeviceTypeXml.h"

#include "core/Frame.h"

DeviceTypeXml::DeviceTypeXml() = default;

DeviceTypeXml::~DeviceTypeXml() = default;

void DeviceTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool DeviceTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceType", document_, node_) && parseXmlNode();
}

bool DeviceTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& DeviceTypeXml::writeElement(TiXmlNode& parent, const DeviceType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceType");
    frame::setInt(element, "DeviceTypeId", type.getDeviceTypeId());
    frame::setText(element, "DeviceTypeName", type.getDeviceTypeName());
    return element;
}

bool DeviceTypeXml::readElement(const TiXmlElement& element, DeviceType& type)
{
    type.setDeviceTypeId(frame::intOf(element, "DeviceTypeId", 0));
    type.setDeviceTypeName(frame::textOf(element, "DeviceTypeName", ""));
    return true;
}

bool DeviceTypeXml::createDomainXmlNode(const DeviceType& type, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceTypeId", type.getDeviceTypeId());
    node->setProperty("DeviceTypeName", type.getDeviceTypeName());
    return true;
}

bool DeviceTypeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DeviceType& type) const
{
    if (!node) return false;

    type.setDeviceTypeId(frame::intProperty(node, "DeviceTypeId", 0));
    type.setDeviceTypeName(frame::textProperty(node, "DeviceTypeName", ""));
    return true;
}

bool DeviceTypeXml::createXmlString(const DeviceType& type, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceType");
    return createDomainXmlNode(type, node) && DomainXmlNode::toString(node, text);
}

bool DeviceTypeXml::parseXmlString(const std::string& text, DeviceType& type) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceType", node) && parseDomainXmlNode(node, type);
}
