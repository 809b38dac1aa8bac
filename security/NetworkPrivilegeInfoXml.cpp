// <NetworkPrivilegeInfoList>
//     <NetworkPrivilegeInfo IpConfigType="1">
//         <IpRangeInfoList>
//             <IpRangeInfo ... />
//         </IpRangeInfoList>
//     </NetworkPrivilegeInfo>
// </NetworkPrivilegeInfoList>

#include "security/NetworkPrivilegeInfoXml.h"

#include "core/Frame.h"
#include "network/IpRangeInfoXml.h"

#include <utility>

NetworkPrivilegeInfoXml::NetworkPrivilegeInfoXml() = default;

NetworkPrivilegeInfoXml::~NetworkPrivilegeInfoXml() = default;

bool NetworkPrivilegeInfoXml::createDomainXmlNode(const NetworkPrivilegeInfo& info,
                                                  SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    std::vector<IpRangeInfo> ranges;
    info.getIpRangeInfo(ranges);
    SafePointer<DomainXmlNode> list = frame::appendNode(node, "IpRangeInfoList");
    for (const IpRangeInfo& range : ranges)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "IpRangeInfo");
        if (!IpRangeInfoXml().createDomainXmlNode(range, item)) return false;
    }

    node->setProperty("IpConfigType", info.getIpConfigType());
    return true;
}

bool NetworkPrivilegeInfoXml::createDomainXmlNode(const std::vector<NetworkPrivilegeInfo>& infos,
                                                  SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const NetworkPrivilegeInfo& info : infos)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "NetworkPrivilegeInfo");
        if (!createDomainXmlNode(info, item)) return false;
    }
    return true;
}

bool NetworkPrivilegeInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                 NetworkPrivilegeInfo& info) const
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("IpRangeInfoList", list)) return false;

    info.setIpConfigType(frame::intProperty(node, "IpConfigType", info.getIpConfigType(),
                                            "NetworkPrivilegeInfoXml::parseDomainXmlNode get IpConfigType failed "));

    std::vector<IpRangeInfo> ranges;
    TiXmlElement* item = list->getXmlNode()->FirstChildElement("IpRangeInfo");
    for (; item != nullptr; item = item->NextSiblingElement("IpRangeInfo"))
    {
        IpRangeInfo range;
        if (!IpRangeInfoXml().parseDomainXmlNode(frame::nodeOf(*item), range)) return false;
        ranges.push_back(std::move(range));
    }
    info.setIpRangeInfo(ranges);
    return true;
}

bool NetworkPrivilegeInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                 std::vector<NetworkPrivilegeInfo>& infos) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        NetworkPrivilegeInfo info;
        if (!parseDomainXmlNode(frame::nodeOf(*item), info)) return false;
        infos.push_back(std::move(info));
    }
    return true;
}

bool NetworkPrivilegeInfoXml::createXmlString(const NetworkPrivilegeInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NetworkPrivilegeInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool NetworkPrivilegeInfoXml::createXmlString(const std::vector<NetworkPrivilegeInfo>& infos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NetworkPrivilegeInfoList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool NetworkPrivilegeInfoXml::parseXmlString(const std::string& text, NetworkPrivilegeInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NetworkPrivilegeInfo", node) && parseDomainXmlNode(node, info);
}

bool NetworkPrivilegeInfoXml::parseXmlString(const std::string& text, std::vector<NetworkPrivilegeInfo>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NetworkPrivilegeInfoList", node) && parseDomainXmlNode(node, infos);
}
