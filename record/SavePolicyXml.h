#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// How long recordings are kept: the "SavePolicy" document.
///
/// A missing attribute resets its field.
class SavePolicyXml : public IDomainXml
{
public:
    SavePolicyXml();
    ~SavePolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSavePolicy(const SavePolicy& policy) { policy_ = policy; }
    SavePolicy& getSavePolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SavePolicy& policy);
    static bool readElement(const TiXmlElement& element, SavePolicy& policy);
    /// @}

private:
    SavePolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
