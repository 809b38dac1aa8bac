#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Connecting to the mobile network by a schedule: the "I3GTimeConnectPolicyParam" document, and
/// "I3GTimeConnectPolicyParamList" for several.
///
/// A missing attribute or child leaves its field in the document form and resets it in the node form.
class I3GTimeConnectPolicyParamXml : public IDomainXml
{
public:
    I3GTimeConnectPolicyParamXml();
    ~I3GTimeConnectPolicyParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setI3GTimeConnectPolicyParam(const I3GTimeConnectPolicyParam& policy) { policy_ = policy; }
    I3GTimeConnectPolicyParam& getI3GTimeConnectPolicyParam() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const I3GTimeConnectPolicyParam& policy);
    static bool readElement(const TiXmlElement& element, I3GTimeConnectPolicyParam& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const I3GTimeConnectPolicyParam& policy, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<I3GTimeConnectPolicyParam>& policies,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, I3GTimeConnectPolicyParam& policy) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                            std::vector<I3GTimeConnectPolicyParam>& policies) const;
    bool createXmlString(const I3GTimeConnectPolicyParam& policy, std::string& text) const;
    bool createXmlString(const std::vector<I3GTimeConnectPolicyParam>& policies, std::string& text) const;
    bool parseXmlString(const std::string& text, I3GTimeConnectPolicyParam& policy) const;
    bool parseXmlString(const std::string& text, std::vector<I3GTimeConnectPolicyParam>& policies) const;
    /// @}

private:
    I3GTimeConnectPolicyParam policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
