// <DevicePort DeviceId="D1" HttpPort="80" ControlPort="37777" RTCPPort="5005" ... ReservePort4="0" />

#include "device/DevicePortXml.h"

#include "core/Frame.h"

bool DevicePortXml::createDomainXmlNode(const DevicePort& port, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", port.getDeviceId());
    node->setProperty("HttpPort", port.getHttpPort());
    node->setProperty("ControlPort", port.getControlPort());
    node->setProperty("RTCPPort", port.getRTCPPort());
    node->setProperty("RTPPort", port.getRTPPort());
    node->setProperty("RTSPPort", port.getRTSPPort());
    node->setProperty("TCPAVPort", port.getTCPAVPort());
    node->setProperty("RegisterPort", port.getRegisterPort());
    node->setProperty("ReservePort1", port.getReservePort1());
    node->setProperty("ReservePort2", port.getReservePort2());
    node->setProperty("ReservePort3", port.getReservePort3());
    node->setProperty("ReservePort4", port.getReservePort4());
    return true;
}

bool DevicePortXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DevicePort& port) const
{
    if (!node) return false;

    port.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    port.setHttpPort(frame::uint16Property(node, "HttpPort", 0));
    port.setControlPort(frame::uint16Property(node, "ControlPort", 0));
    port.setRTCPPort(frame::uint16Property(node, "RTCPPort", 0));
    port.setRTPPort(frame::uint16Property(node, "RTPPort", 0));
    port.setRTSPPort(frame::uint16Property(node, "RTSPPort", 0));
    port.setTCPAVPort(frame::uint16Property(node, "TCPAVPort", 0));
    port.setRegisterPort(frame::uint16Property(node, "RegisterPort", 0));
    port.setReservePort1(frame::uint16Property(node, "ReservePort1", 0));
    port.setReservePort2(frame::uint16Property(node, "ReservePort2", 0));
    port.setReservePort3(frame::uint16Property(node, "ReservePort3", 0));
    port.setReservePort4(frame::uint16Property(node, "ReservePort4", 0));
    return true;
}

bool DevicePortXml::createXmlString(const DevicePort& port, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DevicePort");
    return createDomainXmlNode(port, node) && DomainXmlNode::toString(node, text);
}

bool DevicePortXml::parseXmlString(const std::string& text, DevicePort& port) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DevicePort", node) && parseDomainXmlNode(node, port);
}
