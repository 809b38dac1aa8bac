#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do with sound: the "AudioExAbility" document.
///
/// A missing flag is left. The lists are appended to.
class AudioExAbilityXml : public IDomainXml
{
public:
    AudioExAbilityXml();
    ~AudioExAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioExAbility(const AudioExAbility& ability) { ability_ = ability; }
    AudioExAbility& getAudioExAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioExAbility& ability);
    static bool readElement(const TiXmlElement& element, AudioExAbility& ability);
    /// @}

private:
    AudioExAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
