// <DDNSProviderList>
//     <DDNSProvider DDNSProviderId="3" DDNSProviderName="Example names" />
// </DDNSProviderList>

#include "network/DDNSProviderXml.h"

#include "core/Frame.h"

#include <utility>

DDNSProviderXml::DDNSProviderXml() = default;

DDNSProviderXml::~DDNSProviderXml() = default;

void DDNSProviderXml::createXmlNode()
{
    writeElement(document_, provider_);
}

bool DDNSProviderXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DDNSProviderXml::parseXmlString()
{
    return frame::parseRoot(text_, "DDNSProvider", document_, node_) && parseXmlNode();
}

bool DDNSProviderXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, provider_);
}

TiXmlElement& DDNSProviderXml::writeElement(TiXmlNode& parent, const DDNSProvider& provider)
{
    TiXmlElement& element = frame::appendElement(parent, "DDNSProvider");
    frame::setInt(element, "DDNSProviderId", provider.getProviderId());
    frame::setText(element, "DDNSProviderName", provider.getProviderName());
    return element;
}

bool DDNSProviderXml::readElement(const TiXmlElement& element, DDNSProvider& provider)
{
    provider.setProviderId(frame::intOf(element, "DDNSProviderId", 0));
    provider.setProviderName(frame::textOf(element, "DDNSProviderName", ""));
    return true;
}

bool DDNSProviderXml::createDomainXmlNode(const std::vector<DDNSProvider>& providers,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    for (const DDNSProvider& provider : providers)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DDNSProvider");
        item->setProperty("DDNSProviderId", provider.getProviderId());
        item->setProperty("DDNSProviderName", provider.getProviderName());
    }
    return true;
}

bool DDNSProviderXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<DDNSProvider>& providers) const
{
    if (!node) return false;

    const TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DDNSProvider provider;
        provider.setProviderId(frame::intOf(*item, "DDNSProviderId", 0));
        provider.setProviderName(frame::textOf(*item, "DDNSProviderName", ""));
        providers.push_back(std::move(provider));
    }
    return true;
}

bool DDNSProviderXml::createXmlString(const std::vector<DDNSProvider>& providers, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DDNSProviderList");
    return createDomainXmlNode(providers, node) && DomainXmlNode::toString(node, text);
}

bool DDNSProviderXml::parseXmlString(const std::string& text, std::vector<DDNSProvider>& providers) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DDNSProviderList", node) && parseDomainXmlNode(node, providers);
}
