// <DDNSParamV2 DDNSEnableFlag="true" DDNSProviderId="3" DDNSAccounts="cam-17" DDNSDomainName="gate.example.org"
//              DDNSPassword="not told" DDNSNetwordCardName="eth1" />
//
// The peers spell the card "Netword".

#include "network/DDNSParamV2Xml.h"

#include "core/Frame.h"

DDNSParamV2Xml::DDNSParamV2Xml() = default;

DDNSParamV2Xml::~DDNSParamV2Xml() = default;

void DDNSParamV2Xml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DDNSParamV2Xml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DDNSParamV2Xml::parseXmlString()
{
    return frame::parseRoot(text_, "DDNSParamV2", document_, node_) && parseXmlNode();
}

bool DDNSParamV2Xml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DDNSParamV2Xml::writeElement(TiXmlNode& parent, const DDNSParamV2& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DDNSParamV2");
    frame::setFlag(element, "DDNSEnableFlag", param.getDDNSEnableFlag());
    frame::setInt(element, "DDNSProviderId", param.getDDNSProviderId());
    frame::setText(element, "DDNSAccounts", param.getDDNSAccounts());
    frame::setText(element, "DDNSDomainName", param.getDDNSDomainName());
    frame::setText(element, "DDNSPassword", param.getDDNSPassword());
    frame::setText(element, "DDNSNetwordCardName", param.getDDNSNetworkCardName());
    return element;
}

bool DDNSParamV2Xml::readElement(const TiXmlElement& element, DDNSParamV2& param)
{
    param.setDDNSEnableFlag(frame::flagOf(element, "DDNSEnableFlag", false));
    param.setDDNSProviderId(frame::intOf(element, "DDNSProviderId", 0));
    param.setDDNSAccounts(frame::textOf(element, "DDNSAccounts", ""));
    param.setDDNSDomainName(frame::textOf(element, "DDNSDomainName", ""));
    param.setDDNSPassword(frame::textOf(element, "DDNSPassword", ""));
    param.setDDNSNetworkCardName(frame::textOf(element, "DDNSNetwordCardName", ""));
    return true;
}

bool DDNSParamV2Xml::createDomainXmlNode(const DDNSParamV2& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DDNSEnableFlag", param.getDDNSEnableFlag());
    node->setProperty("DDNSProviderId", param.getDDNSProviderId());
    node->setProperty("DDNSAccounts", param.getDDNSAccounts());
    node->setProperty("DDNSDomainName", param.getDDNSDomainName());
    node->setProperty("DDNSPassword", param.getDDNSPassword());
    node->setProperty("DDNSNetwordCardName", param.getDDNSNetworkCardName());
    return true;
}

bool DDNSParamV2Xml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DDNSParamV2& param) const
{
    if (!node) return false;

    param.setDDNSEnableFlag(frame::flagProperty(node, "DDNSEnableFlag", false));
    param.setDDNSProviderId(frame::intProperty(node, "DDNSProviderId", 0));
    param.setDDNSAccounts(frame::textProperty(node, "DDNSAccounts", ""));
    param.setDDNSDomainName(frame::textProperty(node, "DDNSDomainName", ""));
    param.setDDNSPassword(frame::textProperty(node, "DDNSPassword", ""));
    param.setDDNSNetworkCardName(frame::textProperty(node, "DDNSNetwordCardName", ""));
    return true;
}

bool DDNSParamV2Xml::createXmlString(const DDNSParamV2& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DDNSParamV2");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool DDNSParamV2Xml::parseXmlString(const std::string& text, DDNSParamV2& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DDNSParamV2", node) && parseDomainXmlNode(node, param);
}
