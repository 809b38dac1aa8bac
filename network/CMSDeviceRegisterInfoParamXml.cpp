// <DeviceRegisterInfoParam DeviceRegisterID="R-17" />
//
// The root lacks the "CMS" that the same element has inside a "CMSRegisterParam".

#include "network/CMSDeviceRegisterInfoParamXml.h"

#include "core/Frame.h"

CMSDeviceRegisterInfoParamXml::CMSDeviceRegisterInfoParamXml() = default;

CMSDeviceRegisterInfoParamXml::~CMSDeviceRegisterInfoParamXml() = default;

void CMSDeviceRegisterInfoParamXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool CMSDeviceRegisterInfoParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CMSDeviceRegisterInfoParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceRegisterInfoParam", document_, node_) && parseXmlNode();
}

bool CMSDeviceRegisterInfoParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& CMSDeviceRegisterInfoParamXml::writeElement(TiXmlNode& parent, const CMSDeviceRegisterInfoParam& info)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceRegisterInfoParam");
    frame::setText(element, "DeviceRegisterID", info.getDeviceRegisterID());
    return element;
}

bool CMSDeviceRegisterInfoParamXml::readElement(const TiXmlElement& element, CMSDeviceRegisterInfoParam& info)
{
    info.setDeviceRegisterID(frame::textOf(element, "DeviceRegisterID", info.getDeviceRegisterID()));
    return true;
}

bool CMSDeviceRegisterInfoParamXml::createDomainXmlNode(const CMSDeviceRegisterInfoParam& info,
                                                        SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceRegisterID", info.getDeviceRegisterID());
    return true;
}

bool CMSDeviceRegisterInfoParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                       CMSDeviceRegisterInfoParam& info) const
{
    if (!node) return false;

    info.setDeviceRegisterID(
        frame::textProperty(node, "DeviceRegisterID", "",
                            "CMSDeviceRegisterInfoParamXml::parseDomainXmlNode get DeviceRegisterID failed "));
    return true;
}

bool CMSDeviceRegisterInfoParamXml::createXmlString(const CMSDeviceRegisterInfoParam& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceRegisterInfoParam");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool CMSDeviceRegisterInfoParamXml::parseXmlString(const std::string& text, CMSDeviceRegisterInfoParam& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceRegisterInfoParam", node) && parseDomainXmlNode(node, info);
}
