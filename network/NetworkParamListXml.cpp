// <NetworkParamList>
//     <NetworkParam NetworkCardId="1" WorkingType="2" AutoGetIpFlag="true" ... IPProtoVer="4" />
// </NetworkParamList>

#include "network/NetworkParamListXml.h"

#include "core/Frame.h"

#include <utility>

NetworkParamListXml::NetworkParamListXml() = default;

NetworkParamListXml::~NetworkParamListXml() = default;

bool NetworkParamListXml::createXmlString(const std::vector<NetworkParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("NetworkParamList");
    for (const NetworkParam& param : params)
    {
        SafePointer<DomainXmlNode> node = frame::appendNode(root, "NetworkParam");
        node->setProperty("NetworkCardId", param.getNetworkCardId());
        node->setProperty("WorkingType", param.getWorkingType());
        node->setProperty("AutoGetIpFlag", param.getAutoGetIpFlag());
        node->setProperty("DhcpIp", param.getDhcpIp());
        node->setProperty("LocalIp", param.getLocalIp());
        node->setProperty("LocalSubnetMask", param.getLocalSubnetMask());
        node->setProperty("Gateway", param.getGateway());
        node->setProperty("AutoGetDNSFlag", param.getAutoGetDNSFlag());
        node->setProperty("PrimaryDNSIp", param.getPrimaryDNSIp());
        node->setProperty("SpareDNSIp", param.getSpareDNSIp());
        node->setProperty("IPProtoVer", param.getIPProtoVer());
    }
    return DomainXmlNode::toString(root, text);
}

bool NetworkParamListXml::parseXmlString(const std::string& text, std::vector<NetworkParam>& params) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "NetworkParamList", root)) return false;

    TiXmlElement* item = root->getXmlNode()->FirstChildElement("NetworkParam");
    for (; item != nullptr; item = item->NextSiblingElement("NetworkParam"))
    {
        const SafePointer<DomainXmlNode> node = frame::nodeOf(*item);
        NetworkParam param;
        param.setNetworkCardId(frame::intProperty(node, "NetworkCardId", param.getNetworkCardId()));
        param.setWorkingType(frame::intProperty(node, "WorkingType", param.getWorkingType()));
        param.setAutoGetIpFlag(frame::flagProperty(node, "AutoGetIpFlag", param.getAutoGetIpFlag()));
        param.setDhcpIp(frame::textProperty(node, "DhcpIp", param.getDhcpIp()));
        param.setLocalIp(frame::textProperty(node, "LocalIp", param.getLocalIp()));
        param.setLocalSubnetMask(frame::textProperty(node, "LocalSubnetMask", param.getLocalSubnetMask()));
        param.setGateway(frame::textProperty(node, "Gateway", param.getGateway()));
        param.setAutoGetDNSFlag(frame::flagProperty(node, "AutoGetDNSFlag", param.getAutoGetDNSFlag()));
        param.setPrimaryDNSIp(frame::textProperty(node, "PrimaryDNSIp", param.getPrimaryDNSIp()));
        param.setSpareDNSIp(frame::textProperty(node, "SpareDNSIp", param.getSpareDNSIp()));
        param.setIPProtoVer(frame::intProperty(node, "IPProtoVer", param.getIPProtoVer()));
        params.push_back(std::move(param));
    }
    return true;
}
