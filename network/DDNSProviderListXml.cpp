// <DDNSProviderList>
//     <DDNSProvider ProviderId="3" ProviderName="Example names" />
// </DDNSProviderList>
//
// DDNSProviderXml puts "DDNS" before both names. Peers ask for the one or the other kind, and have to get it.

#include "network/DDNSProviderListXml.h"

#include "core/Frame.h"

#include <utility>

namespace
{

void writeNode(const DDNSProvider& provider, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("ProviderId", provider.getProviderId());
    node->setProperty("ProviderName", provider.getProviderName());
}

void readNode(const SafePointer<DomainXmlNode>& node, DDNSProvider& provider)
{
    provider.setProviderId(frame::intProperty(node, "ProviderId", 0));
    provider.setProviderName(frame::textProperty(node, "ProviderName", ""));
}

} // namespace

DDNSProviderListXml::DDNSProviderListXml() = default;

DDNSProviderListXml::~DDNSProviderListXml() = default;

bool DDNSProviderListXml::createXmlString(const DDNSProvider& provider, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DDNSProvider");
    writeNode(provider, node);
    return DomainXmlNode::toString(node, text);
}

bool DDNSProviderListXml::createXmlString(const std::vector<DDNSProvider>& providers, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("DDNSProviderList");
    for (const DDNSProvider& provider : providers)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(root, "DDNSProvider");
        writeNode(provider, item);
    }
    return DomainXmlNode::toString(root, text);
}

bool DDNSProviderListXml::parseXmlString(const std::string& text, DDNSProvider& provider) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "DDNSProvider", node)) return false;
    readNode(node, provider);
    return true;
}

bool DDNSProviderListXml::parseXmlString(const std::string& text, std::vector<DDNSProvider>& providers) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "DDNSProviderList", root)) return false;

    TiXmlElement* item = frame::firstChild(root);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DDNSProvider provider;
        readNode(frame::nodeOf(*item), provider);
        providers.push_back(std::move(provider));
    }
    return true;
}
