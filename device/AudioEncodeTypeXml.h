#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// An encoding of sound that a device sends: the "AudioEncodeType" document.
///
/// A missing attribute leaves its field.
class AudioEncodeTypeXml : public IDomainXml
{
public:
    AudioEncodeTypeXml();
    ~AudioEncodeTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioEncodeType(const AudioEncodeType& type) { type_ = type; }
    AudioEncodeType& getAudioEncodeType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioEncodeType& type);
    static bool readElement(const TiXmlElement& element, AudioEncodeType& type);
    /// @}

private:
    AudioEncodeType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
