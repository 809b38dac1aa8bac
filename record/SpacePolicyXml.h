#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>

/// How much disk one camera gets: the "SpacePolicy" document.
///
/// A missing attribute resets its field.
class SpacePolicyXml : public IDomainXml
{
public:
    SpacePolicyXml();
    ~SpacePolicyXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSpacePolicy(const SpacePolicy& policy) { policy_ = policy; }
    SpacePolicy& getSpacePolicy() { return policy_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SpacePolicy& policy);
    static bool readElement(const TiXmlElement& element, SpacePolicy& policy);
    /// @}

private:
    SpacePolicy policy_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
