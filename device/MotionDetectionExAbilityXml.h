#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// How finely a camera detects motion: the "MotionDetectionExAbility" document.
///
/// A missing attribute resets its field.
class MotionDetectionExAbilityXml : public IDomainXml
{
public:
    MotionDetectionExAbilityXml();
    ~MotionDetectionExAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMotionDetectionExAbility(const MotionDetectionExAbility& ability) { ability_ = ability; }
    MotionDetectionExAbility& getMotionDetectionExAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MotionDetectionExAbility& ability);
    static bool readElement(const TiXmlElement& element, MotionDetectionExAbility& ability);
    /// @}

private:
    MotionDetectionExAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
