// <HostNetwork DeviceId="D-17" NetId="2" AutoGetIpFlag="true" ... IPProtoVer="4" />

#include "network/HostNetworkXml.h"

#include "core/Frame.h"

HostNetworkXml::HostNetworkXml() = default;

HostNetworkXml::~HostNetworkXml() = default;

void HostNetworkXml::createXmlNode()
{
    writeElement(document_, network_);
}

bool HostNetworkXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool HostNetworkXml::parseXmlString()
{
    return frame::parseRoot(text_, "HostNetwork", document_, node_) && parseXmlNode();
}

bool HostNetworkXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, network_);
}

TiXmlElement& HostNetworkXml::writeElement(TiXmlNode& parent, const HostNetwork& network)
{
    TiXmlElement& element = frame::appendElement(parent, "HostNetwork");
    frame::setText(element, "DeviceId", network.getDeviceId());
    frame::setInt(element, "NetId", network.getNetId());
    frame::setFlag(element, "AutoGetIpFlag", network.getAutoGetIpFlag());
    frame::setText(element, "LocalIp", network.getLocalIp());
    frame::setText(element, "LocalSubnetMask", network.getLocalSubnetMask());
    frame::setText(element, "Gateway", network.getGateway());
    frame::setFlag(element, "AutoGetDNSFlag", network.getAutoGetDNSFlag());
    frame::setText(element, "PrimaryDNSIp", network.getPrimaryDNSIp());
    frame::setText(element, "SpareDNSIp", network.getSpareDNSIp());
    frame::setInt(element, "ControlPort", network.getControlPort());
    frame::setInt(element, "RegisterPort", network.getRegisterPort());
    frame::setInt(element, "HttpPort", network.getHttpPort());
    frame::setInt(element, "IPProtoVer", network.getIPProtoVer());
    return element;
}

bool HostNetworkXml::readElement(const TiXmlElement& element, HostNetwork& network)
{
    network.setDeviceId(frame::textOf(element, "DeviceId", ""));
    network.setNetId(frame::intOf(element, "NetId", 0));
    network.setAutoGetIpFlag(frame::flagOf(element, "AutoGetIpFlag", false));
    network.setLocalIp(frame::textOf(element, "LocalIp", ""));
    network.setLocalSubnetMask(frame::textOf(element, "LocalSubnetMask", ""));
    network.setGateway(frame::textOf(element, "Gateway", ""));
    network.setAutoGetDNSFlag(frame::flagOf(element, "AutoGetDNSFlag", false));
    network.setPrimaryDNSIp(frame::textOf(element, "PrimaryDNSIp", ""));
    network.setSpareDNSIp(frame::textOf(element, "SpareDNSIp", ""));
    network.setControlPort(frame::uint16Of(element, "ControlPort", 0));
    network.setRegisterPort(frame::uint16Of(element, "RegisterPort", 0));
    network.setHttpPort(frame::uint16Of(element, "HttpPort", 0));
    network.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}
