// <HostNetWorkList>
//     <HostNetWork DeviceId="D-17" NetId="2" AutoGetIpFlag="true" ... IPProtoVer="4" />
// </HostNetWorkList>

#include "network/HostNetworkListXml.h"

#include "core/Frame.h"
#include "network/HostNetworkXml.h"

#include <utility>

HostNetworkListXml::HostNetworkListXml() = default;

HostNetworkListXml::~HostNetworkListXml() = default;

bool HostNetworkListXml::createXmlString()
{
    SafePointer<DomainXmlNode> root = frame::makeNode("HostNetWorkList");
    for (const HostNetwork& network : networks_)
    {
        // The peers write an item like a "HostNetwork" document, but spell its name with a capital W.
        HostNetworkXml::writeElement(*root->getXmlNode(), network).SetValue("HostNetWork");
    }
    return DomainXmlNode::toString(root, text_);
}

bool HostNetworkListXml::parseXmlString()
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text_, "HostNetWorkList", root)) return false;

    networks_.clear();
    const TiXmlElement* item = frame::firstItem(*root->getXmlNode(), "HostNetWork");
    for (; item != nullptr; item = item->NextSiblingElement("HostNetWork"))
    {
        HostNetwork network;
        if (!HostNetworkXml::readElement(*item, network)) return false;
        networks_.push_back(std::move(network));
    }
    return true;
}
