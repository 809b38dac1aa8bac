#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a camera can do to hide areas of its picture: the "BlindAbility" document.
///
/// A missing attribute leaves its field.
class BlindAbilityXml : public IDomainXml
{
public:
    BlindAbilityXml();
    ~BlindAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setBlindAbility(const BlindAbility& ability) { ability_ = ability; }
    BlindAbility& getBlindAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const BlindAbility& ability);
    static bool readElement(const TiXmlElement& element, BlindAbility& ability);
    /// @}

private:
    BlindAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
