// <IpRangeInfoList>
//     <IpRangeInfo BeginIpAddr="192.0.2.1" EndIpAddr="192.0.2.99" />
// </IpRangeInfoList>

#include "network/IpRangeInfoXml.h"

#include "core/Frame.h"

#include <utility>

IpRangeInfoXml::IpRangeInfoXml() = default;

IpRangeInfoXml::~IpRangeInfoXml() = default;

bool IpRangeInfoXml::createDomainXmlNode(const IpRangeInfo& range, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    std::string begin;
    std::string end;
    range.getBeginIpAddr(begin);
    range.getEndIpAddr(end);
    node->setProperty("BeginIpAddr", begin);
    node->setProperty("EndIpAddr", end);
    return true;
}

bool IpRangeInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, IpRangeInfo& range) const
{
    if (!node) return false;

    range.setBeginIpAddr(
        frame::textProperty(node, "BeginIpAddr", "", "IpRangeInfoXml::parseDomainXmlNode get BeginIpAddr failed "));
    range.setEndIpAddr(
        frame::textProperty(node, "EndIpAddr", "", "IpRangeInfoXml::parseDomainXmlNode get EndIpAddr failed "));
    return true;
}

bool IpRangeInfoXml::createXmlString(const IpRangeInfo& range, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("IpRangeInfo");
    return createDomainXmlNode(range, node) && DomainXmlNode::toString(node, text);
}

bool IpRangeInfoXml::createXmlString(const std::vector<IpRangeInfo>& ranges, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("IpRangeInfoList");
    for (const IpRangeInfo& range : ranges)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "IpRangeInfo");
        if (!createDomainXmlNode(range, item)) return false;
    }
    return DomainXmlNode::toString(node, text);
}

bool IpRangeInfoXml::parseXmlString(const std::string& text, IpRangeInfo& range) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "IpRangeInfo", node) && parseDomainXmlNode(node, range);
}

bool IpRangeInfoXml::parseXmlString(const std::string& text, std::vector<IpRangeInfo>& ranges) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "IpRangeInfoList", node)) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        IpRangeInfo range;
        if (!parseDomainXmlNode(frame::nodeOf(*item), range)) return false;
        ranges.push_back(std::move(range));
    }
    return true;
}
