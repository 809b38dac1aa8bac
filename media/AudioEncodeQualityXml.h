#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// How sound is encoded: the "AudioEncodeQuality" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for each.
class AudioEncodeQualityXml : public IDomainXml
{
public:
    AudioEncodeQualityXml();
    ~AudioEncodeQualityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAudioEncodeQuality(const AudioEncodeQuality& quality) { quality_ = quality; }
    AudioEncodeQuality& getAudioEncodeQuality() { return quality_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AudioEncodeQuality& quality);
    static bool readElement(const TiXmlElement& element, AudioEncodeQuality& quality);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AudioEncodeQuality& quality, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AudioEncodeQuality& quality) const;
    bool createXmlString(const AudioEncodeQuality& quality, std::string& text) const;
    bool parseXmlString(const std::string& text, AudioEncodeQuality& quality) const;
    /// @}

private:
    AudioEncodeQuality quality_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
