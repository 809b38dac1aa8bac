#pragma once

#include "core/IDomainXml.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// How a camera shows its picture: the "VideoQuality" document.
///
/// A missing attribute resets its field.
class VideoQualityXml : public IDomainXml
{
public:
    VideoQualityXml();
    ~VideoQualityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoQuality(const VideoQuality& quality) { quality_ = quality; }
    VideoQuality& getVideoQuality() { return quality_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoQuality& quality);
    static bool readElement(const TiXmlElement& element, VideoQuality& quality);
    /// @}

private:
    VideoQuality quality_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
