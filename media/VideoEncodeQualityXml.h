#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// How the picture of a stream is encoded: the "VideoEncodeQuality" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for each.
class VideoEncodeQualityXml : public IDomainXml
{
public:
    VideoEncodeQualityXml();
    ~VideoEncodeQualityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoEncodeQuality(const VideoEncodeQuality& quality) { quality_ = quality; }
    VideoEncodeQuality& getVideoEncodeQuality() { return quality_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoEncodeQuality& quality);
    static bool readElement(const TiXmlElement& element, VideoEncodeQuality& quality);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const VideoEncodeQuality& quality, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoEncodeQuality& quality) const;
    bool createXmlString(const VideoEncodeQuality& quality, std::string& text) const;
    bool parseXmlString(const std::string& text, VideoEncodeQuality& quality) const;
    /// @}

private:
    VideoEncodeQuality quality_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
