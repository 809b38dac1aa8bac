#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do with pan-tilt-zoom heads: the "PTZAbility" document.
///
/// A missing attribute leaves its field. Protocols are added to those that the record has.
class PTZAbilityXml : public IDomainXml
{
public:
    PTZAbilityXml();
    ~PTZAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPTZAbility(const PTZAbility& ability) { ability_ = ability; }
    PTZAbility& getPTZAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const PTZAbility& ability);
    static bool readElement(const TiXmlElement& element, PTZAbility& ability);
    /// @}

private:
    PTZAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
