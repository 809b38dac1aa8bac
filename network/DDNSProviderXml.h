#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A provider of names for addresses: the "DDNSProvider" document, and "DDNSProviderList" for several in the node form.
///
/// A missing attribute resets its field, in both forms. DDNSProviderListXml has the same roots and other attributes.
class DDNSProviderXml : public IDomainXml
{
public:
    DDNSProviderXml();
    ~DDNSProviderXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDDNSProvider(const DDNSProvider& provider) { provider_ = provider; }
    DDNSProvider& getDDNSProvider() { return provider_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DDNSProvider& provider);
    static bool readElement(const TiXmlElement& element, DDNSProvider& provider);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{

    /// Removes the children that @p node has, also for an empty list.
    bool createDomainXmlNode(const std::vector<DDNSProvider>& providers, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<DDNSProvider>& providers) const;
    bool createXmlString(const std::vector<DDNSProvider>& providers, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<DDNSProvider>& providers) const;
    /// @}

private:
    DDNSProvider provider_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
