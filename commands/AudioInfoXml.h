#pragma once

#include "core/IDomainXml.h"
#include "domain/CommandRecords.h"

#include <string>
#include <tinyxml.h>

/// What a client has to know to decode sound: the "AudioInfo" document.
///
/// A missing attribute resets its field.
class AudioInfoXml : public IDomainXml
{
public:
    AudioInfoXml();
    ~AudioInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioInfo(const AudioInfo& info) { info_ = info; }
    AudioInfo& getAudioInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioInfo& info);
    static bool readElement(const TiXmlElement& element, AudioInfo& info);
    /// @}

private:
    AudioInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
