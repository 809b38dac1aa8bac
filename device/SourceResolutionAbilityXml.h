#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// The sizes in which pictures of one television system are taken in: the "SourceResolutionAbility" document.
///
/// A missing "VideoSystem" is left. The list is appended to.
class SourceResolutionAbilityXml : public IDomainXml
{
public:
    SourceResolutionAbilityXml();
    ~SourceResolutionAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSourceResolutionAbility(const SourceResolutionAbility& ability) { ability_ = ability; }
    SourceResolutionAbility& getSourceResolutionAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SourceResolutionAbility& ability);
    static bool readElement(const TiXmlElement& element, SourceResolutionAbility& ability);
    /// @}

private:
    SourceResolutionAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
