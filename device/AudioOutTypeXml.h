#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// A kind of output for sound: the "AudioOutType" document.
///
/// A missing attribute leaves its field.
class AudioOutTypeXml : public IDomainXml
{
public:
    AudioOutTypeXml();
    ~AudioOutTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioOutType(const AudioOutType& type) { type_ = type; }
    AudioOutType& getAudioOutType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioOutType& type);
    static bool readElement(const TiXmlElement& element, AudioOutType& type);
    /// @}

private:
    AudioOutType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
