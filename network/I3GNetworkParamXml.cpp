// <I3GNetworkParam IP="192.0.2.21" SubnetMask="255.255.255.0" Gateway="192.0.2.1" PrimaryDNS="192.0.2.53"
//                  SpareDNS="192.0.2.54" />

#include "network/I3GNetworkParamXml.h"

#include "core/Frame.h"

I3GNetworkParamXml::I3GNetworkParamXml() = default;

I3GNetworkParamXml::~I3GNetworkParamXml() = default;

void I3GNetworkParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool I3GNetworkParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool I3GNetworkParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "I3GNetworkParam", document_, node_) && parseXmlNode();
}

bool I3GNetworkParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& I3GNetworkParamXml::writeElement(TiXmlNode& parent, const I3GNetworkParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "I3GNetworkParam");
    frame::setText(element, "IP", param.getIP());
    frame::setText(element, "SubnetMask", param.getSubnetMask());
    frame::setText(element, "Gateway", param.getGateway());
    frame::setText(element, "PrimaryDNS", param.getPrimaryDNS());
    frame::setText(element, "SpareDNS", param.getSpareDNS());
    return element;
}

bool I3GNetworkParamXml::readElement(const TiXmlElement& element, I3GNetworkParam& param)
{
    param.setIP(frame::textOf(element, "IP", param.getIP()));
    param.setSubnetMask(frame::textOf(element, "SubnetMask", param.getSubnetMask()));
    param.setGateway(frame::textOf(element, "Gateway", param.getGateway()));
    param.setPrimaryDNS(frame::textOf(element, "PrimaryDNS", param.getPrimaryDNS()));
    param.setSpareDNS(frame::textOf(element, "SpareDNS", param.getSpareDNS()));
    return true;
}
