#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// When a device connects to its mobile network: the "I3GPolicyParam" document, and "I3GPolicyParamList" for several.
///
/// A missing attribute or child leaves its field in the document form and resets it in the node form, which prints a
/// line for the attribute.
class I3GPolicyParamXml : public IDomainXml
{
public:
    I3GPolicyParamXml();
    ~I3GPolicyParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setI3GPolicyParam(const I3GPolicyParam& policy) { policy_ = policy; }
    I3GPolicyParam& getI3GPolicyParam() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const I3GPolicyParam& policy);
    static bool readElement(const TiXmlElement& element, I3GPolicyParam& policy);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const I3GPolicyParam& policy, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<I3GPolicyParam>& policies, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, I3GPolicyParam& policy) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<I3GPolicyParam>& policies) const;
    bool createXmlString(const I3GPolicyParam& policy, std::string& text) const;
    bool createXmlString(const std::vector<I3GPolicyParam>& policies, std::string& text) const;
    bool parseXmlString(const std::string& text, I3GPolicyParam& policy) const;
    bool parseXmlString(const std::string& text, std::vector<I3GPolicyParam>& policies) const;
    /// @}

private:
    I3GPolicyParam policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
