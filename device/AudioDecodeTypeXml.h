#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// An encoding of sound that a device plays: the "AudioDecodeType" document.
///
/// A missing attribute leaves its field.
class AudioDecodeTypeXml : public IDomainXml
{
public:
    AudioDecodeTypeXml();
    ~AudioDecodeTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioDecodeType(const AudioDecodeType& type) { type_ = type; }
    AudioDecodeType& getAudioDecodeType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioDecodeType& type);
    static bool readElement(const TiXmlElement& element, AudioDecodeType& type);
    /// @}

private:
    AudioDecodeType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
