// <ZentarDDNSParam ZentarDDNSEnableFlag="true" ZentarDDNSDomainName="gate.example.org"
//                  ZentarDDNSNetWordCardName="eth1" />
//
// The peers spell the card "NetWord", here with a capital.

#include "network/ZentarDDNSParamXml.h"

#include "core/Frame.h"

ZentarDDNSParamXml::ZentarDDNSParamXml() = default;

ZentarDDNSParamXml::~ZentarDDNSParamXml() = default;

void ZentarDDNSParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool ZentarDDNSParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ZentarDDNSParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ZentarDDNSParam", document_, node_) && parseXmlNode();
}

bool ZentarDDNSParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& ZentarDDNSParamXml::writeElement(TiXmlNode& parent, const ZentarDDNSParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "ZentarDDNSParam");
    frame::setFlag(element, "ZentarDDNSEnableFlag", param.getDDNSEnableFlag());
    frame::setText(element, "ZentarDDNSDomainName", param.getDDNSDomainName());
    frame::setText(element, "ZentarDDNSNetWordCardName", param.getDDNSNetWorkCardName());
    return element;
}

bool ZentarDDNSParamXml::readElement(const TiXmlElement& element, ZentarDDNSParam& param)
{
    param.setDDNSEnableFlag(frame::flagOf(element, "ZentarDDNSEnableFlag", false));
    param.setDDNSDomainName(frame::textOf(element, "ZentarDDNSDomainName", ""));
    param.setDDNSNetWorkCardName(frame::textOf(element, "ZentarDDNSNetWordCardName", ""));
    return true;
}

bool ZentarDDNSParamXml::createDomainXmlNode(const ZentarDDNSParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ZentarDDNSEnableFlag", param.getDDNSEnableFlag());
    node->setProperty("ZentarDDNSDomainName", param.getDDNSDomainName());
    node->setProperty("ZentarDDNSNetWordCardName", param.getDDNSNetWorkCardName());
    return true;
}

bool ZentarDDNSParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZentarDDNSParam& param) const
{
    if (!node) return false;

    param.setDDNSEnableFlag(frame::flagProperty(node, "ZentarDDNSEnableFlag", false));
    param.setDDNSDomainName(frame::textProperty(node, "ZentarDDNSDomainName", ""));
    param.setDDNSNetWorkCardName(frame::textProperty(node, "ZentarDDNSNetWordCardName", ""));
    return true;
}

bool ZentarDDNSParamXml::createXmlString(const ZentarDDNSParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZentarDDNSParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ZentarDDNSParamXml::parseXmlString(const std::string& text, ZentarDDNSParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZentarDDNSParam", node) && parseDomainXmlNode(node, param);
}
