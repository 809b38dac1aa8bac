#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// How recordings are written to files: the "WritePolicy" document.
///
/// A missing attribute resets its field.
class WritePolicyXml : public IDomainXml
{
public:
    WritePolicyXml();
    ~WritePolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWritePolicy(const WritePolicy& policy) { policy_ = policy; }
    WritePolicy& getWritePolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const WritePolicy& policy);
    static bool readElement(const TiXmlElement& element, WritePolicy& policy);
    /// @}

private:
    WritePolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
