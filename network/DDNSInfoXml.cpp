// <DDNSInfoList>
//     <DDNSInfo DDNSProviderId="3" DDNSHostName="update.example.org" DDNSCommand="/update?name=gate" />
// </DDNSInfoList>

#include "network/DDNSInfoXml.h"

#include "core/Frame.h"

#include <cstdio>
#include <utility>

DDNSInfoXml::DDNSInfoXml() = default;

DDNSInfoXml::~DDNSInfoXml() = default;

bool DDNSInfoXml::createDomainXmlNode(const DDNSInfo& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DDNSProviderId", info.getDDNSProviderId());
    node->setProperty("DDNSHostName", info.getDDNSHostName());
    node->setProperty("DDNSCommand", info.getDDNSCommand());
    return true;
}

bool DDNSInfoXml::createDomainXmlNode(const std::vector<DDNSInfo>& infos, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const DDNSInfo& info : infos)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DDNSInfo");
        if (!createDomainXmlNode(info, item)) return false;
    }
    return true;
}

bool DDNSInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DDNSInfo& info) const
{
    if (!node) return false;

    int providerId = 0;
    if (!node->getProperty("DDNSProviderId", providerId))
    {
        std::puts("DDNSInfoXml::parseDomainXmlNode get DDNSProviderId failed ");
        return false;
    }
    info.setDDNSProviderId(providerId);

    std::string text;
    if (!node->getProperty("DDNSHostName", text))
    {
        std::puts("DDNSInfoXml::parseDomainXmlNode get DDNSHostName failed ");
        return false;
    }
    info.setDDNSHostName(text);

    if (!node->getProperty("DDNSCommand", text))
    {
        std::puts("DDNSInfoXml::parseDomainXmlNode get DDNSCommand failed ");
        return false;
    }
    info.setDDNSCommand(text);
    return true;
}

bool DDNSInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<DDNSInfo>& infos) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DDNSInfo info;
        if (!parseDomainXmlNode(frame::nodeOf(*item), info)) return false;
        infos.push_back(std::move(info));
    }
    return true;
}

bool DDNSInfoXml::createXmlString(const DDNSInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DDNSInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool DDNSInfoXml::createXmlString(const std::vector<DDNSInfo>& infos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DDNSInfoList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool DDNSInfoXml::parseXmlString(const std::string& text, DDNSInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DDNSInfo", node) && parseDomainXmlNode(node, info);
}

bool DDNSInfoXml::parseXmlString(const std::string& text, std::vector<DDNSInfo>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DDNSInfoList", node) && parseDomainXmlNode(node, infos);
}
