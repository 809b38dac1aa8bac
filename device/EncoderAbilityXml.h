#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a camera can do to encode pictures of one format, in the older description: the "EncoderAbility" document.
///
/// What is missing gets a default of its own: 25 to 1 frames in a second, bit rates of 2048 to 1024, quality 7 to 1,
/// and 0 for any other. The list is appended to; every child of it counts, whatever its name.
class EncoderAbilityXml : public IDomainXml
{
public:
    EncoderAbilityXml();
    ~EncoderAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setEncoderAbility(const EncoderAbility& ability) { ability_ = ability; }
    EncoderAbility& getEncoderAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const EncoderAbility& ability);
    static bool readElement(const TiXmlElement& element, EncoderAbility& ability);
    /// @}

private:
    EncoderAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
