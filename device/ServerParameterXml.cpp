// <ServerParameter DeviceId="D1" DeviceName="Gate" Version="3" ... NTPStartFlag="true">
//     <DevicePort DeviceId="D1" HttpPort="80" ... />
// </ServerParameter>

#include "device/ServerParameterXml.h"

#include "core/Frame.h"
#include "device/DevicePortXml.h"

#include <utility>

ServerParameterXml::ServerParameterXml() = default;

ServerParameterXml::~ServerParameterXml() = default;

bool ServerParameterXml::createDomainXmlNode(const ServerParameter& server, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", server.getDeviceID());
    node->setProperty("DeviceName", server.getDeviceName());
    node->setProperty("Version", server.getVersion());
    node->setProperty("ClientBroadcastPort", server.getClientBroadcastPort());
    node->setProperty("WebServicePort", server.getWebServicePort());
    node->setProperty("AlarmCenterPort", server.getAlarmCenterPort());
    node->setProperty("WorkingModeID", server.getWorkingModeID());
    node->setProperty("LanguageID", server.getLanguageID());
    node->setProperty("NTPStartFlag", server.getNTPStartFlag());

    SafePointer<DomainXmlNode> child = frame::appendNode(node, "DevicePort");
    return DevicePortXml().createDomainXmlNode(server.getDevicePort(), child);
}

bool ServerParameterXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ServerParameter& server) const
{
    if (!node) return false;

    server.setDeviceID(frame::textProperty(node, "DeviceId", ""));
    server.setDeviceName(frame::textProperty(node, "DeviceName", ""));
    server.setVersion(frame::intProperty(node, "Version", 0));
    server.setClientBroadcastPort(frame::uint16Property(node, "ClientBroadcastPort", 0));
    server.setWebServicePort(frame::uint16Property(node, "WebServicePort", 0));
    server.setAlarmCenterPort(frame::uint16Property(node, "AlarmCenterPort", 0));
    server.setWorkingModeID(frame::intProperty(node, "WorkingModeID", 0));
    server.setLanguageID(frame::intProperty(node, "LanguageID", 0));
    server.setNTPStartFlag(frame::flagProperty(node, "NTPStartFlag", false));

    SafePointer<DomainXmlNode> child;
    DevicePort port;
    node->getConfigNode("DevicePort", child);
    DevicePortXml().parseDomainXmlNode(child, port);
    server.getDevicePort() = std::move(port);
    return true;
}

bool ServerParameterXml::createXmlString(const ServerParameter& server, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ServerParameter");
    return createDomainXmlNode(server, node) && DomainXmlNode::toString(node, text);
}

bool ServerParameterXml::parseXmlString(const std::string& text, ServerParameter& server) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ServerParameter", node) && parseDomainXmlNode(node, server);
}
