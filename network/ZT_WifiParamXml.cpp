// <ZT_WifiParamList>
//     <ZT_WifiParam ZT_EnableFlag="true" ZT_SSID="Yard" ZT_Password="not told" ZT_UseDynamicIPFlag="false"
//                   ZT_StaticIP="192.0.2.21" ZT_SubnetMask="255.255.255.0" ZT_Gateway="192.0.2.1"
//                   ZT_DNS="192.0.2.53" />
// </ZT_WifiParamList>

#include "network/ZT_WifiParamXml.h"

#include "core/Frame.h"

#include <utility>

ZT_WifiParamXml::ZT_WifiParamXml() = default;

ZT_WifiParamXml::~ZT_WifiParamXml() = default;

void ZT_WifiParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool ZT_WifiParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ZT_WifiParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ZT_WifiParam", document_, node_) && parseXmlNode();
}

bool ZT_WifiParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& ZT_WifiParamXml::writeElement(TiXmlNode& parent, const ZT_WifiParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "ZT_WifiParam");
    frame::setFlag(element, "ZT_EnableFlag", param.getEnableFlag());
    frame::setText(element, "ZT_SSID", param.getSSID());
    frame::setText(element, "ZT_Password", param.getPassword());
    frame::setFlag(element, "ZT_UseDynamicIPFlag", param.getUseDynamicIPFlag());
    frame::setText(element, "ZT_StaticIP", param.getStaticIP());
    frame::setText(element, "ZT_SubnetMask", param.getSubnetMask());
    frame::setText(element, "ZT_Gateway", param.getGateway());
    frame::setText(element, "ZT_DNS", param.getDNS());
    return element;
}

bool ZT_WifiParamXml::readElement(const TiXmlElement& element, ZT_WifiParam& param)
{
    param.setEnableFlag(frame::flagOf(element, "ZT_EnableFlag", param.getEnableFlag()));
    param.setSSID(frame::textOf(element, "ZT_SSID", param.getSSID()));
    param.setPassword(frame::textOf(element, "ZT_Password", param.getPassword()));
    param.setUseDynamicIPFlag(frame::flagOf(element, "ZT_UseDynamicIPFlag", param.getUseDynamicIPFlag()));
    param.setStaticIP(frame::textOf(element, "ZT_StaticIP", param.getStaticIP()));
    param.setSubnetMask(frame::textOf(element, "ZT_SubnetMask", param.getSubnetMask()));
    param.setGateway(frame::textOf(element, "ZT_Gateway", param.getGateway()));
    param.setDNS(frame::textOf(element, "ZT_DNS", param.getDNS()));
    return true;
}

bool ZT_WifiParamXml::createDomainXmlNode(const ZT_WifiParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ZT_EnableFlag", param.getEnableFlag());
    node->setProperty("ZT_SSID", param.getSSID());
    node->setProperty("ZT_Password", param.getPassword());
    node->setProperty("ZT_UseDynamicIPFlag", param.getUseDynamicIPFlag());
    node->setProperty("ZT_StaticIP", param.getStaticIP());
    node->setProperty("ZT_SubnetMask", param.getSubnetMask());
    node->setProperty("ZT_Gateway", param.getGateway());
    node->setProperty("ZT_DNS", param.getDNS());
    return true;
}

bool ZT_WifiParamXml::createDomainXmlNode(const std::vector<ZT_WifiParam>& params,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ZT_WifiParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ZT_WifiParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool ZT_WifiParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZT_WifiParam& param) const
{
    if (!node) return false;

    param.setEnableFlag(frame::flagProperty(node, "ZT_EnableFlag", false));
    param.setSSID(frame::textProperty(node, "ZT_SSID", ""));
    param.setPassword(frame::textProperty(node, "ZT_Password", ""));
    param.setUseDynamicIPFlag(frame::flagProperty(node, "ZT_UseDynamicIPFlag", false));
    param.setStaticIP(frame::textProperty(node, "ZT_StaticIP", ""));
    param.setSubnetMask(frame::textProperty(node, "ZT_SubnetMask", ""));
    param.setGateway(frame::textProperty(node, "ZT_Gateway", ""));
    param.setDNS(frame::textProperty(node, "ZT_DNS", ""));
    return true;
}

bool ZT_WifiParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<ZT_WifiParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ZT_WifiParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool ZT_WifiParamXml::createXmlString(const ZT_WifiParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_WifiParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ZT_WifiParamXml::createXmlString(const std::vector<ZT_WifiParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_WifiParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool ZT_WifiParamXml::parseXmlString(const std::string& text, ZT_WifiParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_WifiParam", node) && parseDomainXmlNode(node, param);
}

bool ZT_WifiParamXml::parseXmlString(const std::string& text, std::vector<ZT_WifiParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_WifiParamList", node) && parseDomainXmlNode(node, params);
}
