#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device can do with sound, in the older description: the "AudioAbility" document.
///
/// A missing flag is left. The lists are appended to; an item without a number, and any of another name, is passed
/// over.
class AudioAbilityXml : public IDomainXml
{
public:
    AudioAbilityXml();
    ~AudioAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioAbility(const AudioAbility& ability) { ability_ = ability; }
    AudioAbility& getAudioAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioAbility& ability);
    static bool readElement(const TiXmlElement& element, AudioAbility& ability);
    /// @}

private:
    static void parseAudioEncodeList(const TiXmlElement* list, AudioAbility& ability);
    static void parseAudioDecodeList(const TiXmlElement* list, AudioAbility& ability);
    static void parseAudioInList(const TiXmlElement* list, AudioAbility& ability);

    AudioAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
