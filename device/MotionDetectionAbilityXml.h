#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// How finely a camera detects motion in pictures of one format, in the older description: the "MotionDetectionAbility"
/// document.
///
/// A missing attribute resets its field.
class MotionDetectionAbilityXml : public IDomainXml
{
public:
    MotionDetectionAbilityXml();
    ~MotionDetectionAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMotionDetectionAbility(const MotionDetectionAbility& ability) { ability_ = ability; }
    MotionDetectionAbility& getMotionDetectionAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MotionDetectionAbility& ability);
    static bool readElement(const TiXmlElement& element, MotionDetectionAbility& ability);
    /// @}

private:
    MotionDetectionAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
