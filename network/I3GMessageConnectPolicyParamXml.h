#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Connecting to the mobile network upon a text message: the "I3GMessageConnectPolicyParam" document, and
/// "I3GMessageConnectPolicyParamList" for several.
///
/// A missing attribute leaves its field in the document form and resets it in the node form.
class I3GMessageConnectPolicyParamXml : public IDomainXml
{
public:
    I3GMessageConnectPolicyParamXml();
    ~I3GMessageConnectPolicyParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setI3GMessageConnectPolicyParam(const I3GMessageConnectPolicyParam& policy) { policy_ = policy; }
    I3GMessageConnectPolicyParam& getI3GMessageConnectPolicyParam() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const I3GMessageConnectPolicyParam& policy);
    static bool readElement(const TiXmlElement& element, I3GMessageConnectPolicyParam& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const I3GMessageConnectPolicyParam& policy, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<I3GMessageConnectPolicyParam>& policies,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, I3GMessageConnectPolicyParam& policy) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                            std::vector<I3GMessageConnectPolicyParam>& policies) const;
    bool createXmlString(const I3GMessageConnectPolicyParam& policy, std::string& text) const;
    bool createXmlString(const std::vector<I3GMessageConnectPolicyParam>& policies, std::string& text) const;
    bool parseXmlString(const std::string& text, I3GMessageConnectPolicyParam& policy) const;
    bool parseXmlString(const std::string& text, std::vector<I3GMessageConnectPolicyParam>& policies) const;
    /// @}

private:
    I3GMessageConnectPolicyParam policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
