#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// A kind of input for sound: the "AudioInType" document.
///
/// A missing attribute leaves its field.
class AudioInTypeXml : public IDomainXml
{
public:
    AudioInTypeXml();
    ~AudioInTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioInType(const AudioInType& type) { type_ = type; }
    AudioInType& getAudioInType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioInType& type);
    static bool readElement(const TiXmlElement& element, AudioInType& type);
    /// @}

private:
    AudioInType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
