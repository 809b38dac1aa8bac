// <WifiNetworkParam IP="192.0.2.21" SubnetMask="255.255.255.0" Gateway="192.0.2.1" PrimaryDNS="192.0.2.53"
//                   SpareDNS="192.0.2.54" />

#include "network/WifiNetworkParamXml.h"

#include "core/Frame.h"

WifiNetworkParamXml::WifiNetworkParamXml() = default;

WifiNetworkParamXml::~WifiNetworkParamXml() = default;

void WifiNetworkParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool WifiNetworkParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WifiNetworkParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "WifiNetworkParam", document_, node_) && parseXmlNode();
}

bool WifiNetworkParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& WifiNetworkParamXml::writeElement(TiXmlNode& parent, const WifiNetworkParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiNetworkParam");
    frame::setText(element, "IP", param.getIP());
    frame::setText(element, "SubnetMask", param.getSubnetMask());
    frame::setText(element, "Gateway", param.getGateway());
    frame::setText(element, "PrimaryDNS", param.getPrimaryDNS());
    frame::setText(element, "SpareDNS", param.getSpareDNS());
    return element;
}

bool WifiNetworkParamXml::readElement(const TiXmlElement& element, WifiNetworkParam& param)
{
    param.setIP(frame::textOf(element, "IP", param.getIP()));
    param.setSubnetMask(frame::textOf(element, "SubnetMask", param.getSubnetMask()));
    param.setGateway(frame::textOf(element, "Gateway", param.getGateway()));
    param.setPrimaryDNS(frame::textOf(element, "PrimaryDNS", param.getPrimaryDNS()));
    param.setSpareDNS(frame::textOf(element, "SpareDNS", param.getSpareDNS()));
    return true;
}
