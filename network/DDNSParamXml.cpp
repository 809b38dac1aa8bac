// <DDNSParam DDNSEnableFlag="true" DDNSProviderId="3" DDNSAccounts="cam-17" DDNSDomainName="gate.example.org"
//            DDNSPassword="not told" />

#include "network/DDNSParamXml.h"

#include "core/Frame.h"

DDNSParamXml::DDNSParamXml() = default;

DDNSParamXml::~DDNSParamXml() = default;

void DDNSParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DDNSParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DDNSParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DDNSParam", document_, node_) && parseXmlNode();
}

bool DDNSParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DDNSParamXml::writeElement(TiXmlNode& parent, const DDNSParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DDNSParam");
    frame::setFlag(element, "DDNSEnableFlag", param.getDDNSEnableFlag());
    frame::setInt(element, "DDNSProviderId", param.getDDNSProviderId());
    frame::setText(element, "DDNSAccounts", param.getDDNSAccounts());
    frame::setText(element, "DDNSDomainName", param.getDDNSDomainName());
    frame::setText(element, "DDNSPassword", param.getDDNSPassword());
    return element;
}

bool DDNSParamXml::readElement(const TiXmlElement& element, DDNSParam& param)
{
    param.setDDNSEnableFlag(frame::flagOf(element, "DDNSEnableFlag", false));
    param.setDDNSProviderId(frame::intOf(element, "DDNSProviderId", 0));
    param.setDDNSAccounts(frame::textOf(element, "DDNSAccounts", ""));
    param.setDDNSDomainName(frame::textOf(element, "DDNSDomainName", ""));
    param.setDDNSPassword(frame::textOf(element, "DDNSPassword", ""));
    return true;
}

bool DDNSParamXml::createDomainXmlNode(const DDNSParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DDNSEnableFlag", param.getDDNSEnableFlag());
    node->setProperty("DDNSProviderId", param.getDDNSProviderId());
    node->setProperty("DDNSAccounts", param.getDDNSAccounts());
    node->setProperty("DDNSDomainName", param.getDDNSDomainName());
    node->setProperty("DDNSPassword", param.getDDNSPassword());
    return true;
}

bool DDNSParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DDNSParam& param) const
{
    if (!node) return false;

    param.setDDNSEnableFlag(frame::flagProperty(node, "DDNSEnableFlag", false));
    param.setDDNSProviderId(frame::intProperty(node, "DDNSProviderId", 0));
    param.setDDNSAccounts(frame::textProperty(node, "DDNSAccounts", ""));
    param.setDDNSDomainName(frame::textProperty(node, "DDNSDomainName", ""));
    param.setDDNSPassword(frame::textProperty(node, "DDNSPassword", ""));
    return true;
}

bool DDNSParamXml::createXmlString(const DDNSParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DDNSParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool DDNSParamXml::parseXmlString(const std::string& text, DDNSParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DDNSParam", node) && parseDomainXmlNode(node, param);
}
