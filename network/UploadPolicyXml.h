#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Where a device uploads to: the "UploadPolicy" document.
///
/// A missing attribute leaves its field in the document form. In the node form a missing "IPProtoVer" gives 1, and any
/// other 0, empty or false.
class UploadPolicyXml : public IDomainXml
{
public:
    UploadPolicyXml();
    ~UploadPolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setUploadPolicy(const UploadPolicy& policy) { policy_ = policy; }
    UploadPolicy& getUploadPolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const UploadPolicy& policy);
    static bool readElement(const TiXmlElement& element, UploadPolicy& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const UploadPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, UploadPolicy& policy) const;
    bool createXmlString(const UploadPolicy& policy, std::string& text) const;
    bool parseXmlString(const std::string& text, UploadPolicy& policy) const;
    /// @}

private:
    UploadPolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
