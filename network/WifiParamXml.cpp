// <WifiParamList>
//     <WifiParam EnableFlag="true" SSID="Yard" Password="not told" UseDynamicIPFlag="false" StaticIP="192.0.2.21"
//                SubnetMask="255.255.255.0" Gateway="192.0.2.1" DNS="192.0.2.53" />
// </WifiParamList>

#include "network/WifiParamXml.h"

#include "core/Frame.h"

#include <utility>

WifiParamXml::WifiParamXml() = default;

WifiParamXml::~WifiParamXml() = default;

void WifiParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool WifiParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WifiParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "WifiParam", document_, node_) && parseXmlNode();
}

bool WifiParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& WifiParamXml::writeElement(TiXmlNode& parent, const WifiParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiParam");
    frame::setFlag(element, "EnableFlag", param.getEnableFlag());
    frame::setText(element, "SSID", param.getSSID());
    frame::setText(element, "Password", param.getPassword());
    frame::setFlag(element, "UseDynamicIPFlag", param.getUseDynamicIPFlag());
    frame::setText(element, "StaticIP", param.getStaticIP());
    frame::setText(element, "SubnetMask", param.getSubnetMask());
    frame::setText(element, "Gateway", param.getGateway());
    frame::setText(element, "DNS", param.getDNS());
    return element;
}

bool WifiParamXml::readElement(const TiXmlElement& element, WifiParam& param)
{
    param.setEnableFlag(frame::flagOf(element, "EnableFlag", param.getEnableFlag()));
    param.setSSID(frame::textOf(element, "SSID", param.getSSID()));
    param.setPassword(frame::textOf(element, "Password", param.getPassword()));
    param.setUseDynamicIPFlag(frame::flagOf(element, "UseDynamicIPFlag", param.getUseDynamicIPFlag()));
    param.setStaticIP(frame::textOf(element, "StaticIP", param.getStaticIP()));
    param.setSubnetMask(frame::textOf(element, "SubnetMask", param.getSubnetMask()));
    param.setGateway(frame::textOf(element, "Gateway", param.getGateway()));
    param.setDNS(frame::textOf(element, "DNS", param.getDNS()));
    return true;
}

bool WifiParamXml::createDomainXmlNode(const WifiParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", param.getEnableFlag());
    node->setProperty("SSID", param.getSSID());
    node->setProperty("Password", param.getPassword());
    node->setProperty("UseDynamicIPFlag", param.getUseDynamicIPFlag());
    node->setProperty("StaticIP", param.getStaticIP());
    node->setProperty("SubnetMask", param.getSubnetMask());
    node->setProperty("Gateway", param.getGateway());
    node->setProperty("DNS", param.getDNS());
    return true;
}

bool WifiParamXml::createDomainXmlNode(const std::vector<WifiParam>& params, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const WifiParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "WifiParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool WifiParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, WifiParam& param) const
{
    if (!node) return false;

    param.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));
    param.setSSID(frame::textProperty(node, "SSID", ""));
    param.setPassword(frame::textProperty(node, "Password", ""));
    param.setUseDynamicIPFlag(frame::flagProperty(node, "UseDynamicIPFlag", false));
    param.setStaticIP(frame::textProperty(node, "StaticIP", ""));
    param.setSubnetMask(frame::textProperty(node, "SubnetMask", ""));
    param.setGateway(frame::textProperty(node, "Gateway", ""));
    param.setDNS(frame::textProperty(node, "DNS", ""));
    return true;
}

bool WifiParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<WifiParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        WifiParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool WifiParamXml::createXmlString(const WifiParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("WifiParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool WifiParamXml::createXmlString(const std::vector<WifiParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("WifiParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool WifiParamXml::parseXmlString(const std::string& text, WifiParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "WifiParam", node) && parseDomainXmlNode(node, param);
}

bool WifiParamXml::parseXmlString(const std::string& text, std::vector<WifiParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "WifiParamList", node) && parseDomainXmlNode(node, params);
}
