#pragma once

#include "core/IDomainXml.h"
#include "domain/CommandRecords.h"

#include <string>
#include <tinyxml.h>

/// What a client has to know to decode a picture: the "VideoInfo" document.
///
/// A missing attribute resets its field. Of "SPS_PPSData" no more is taken than "SPS_PPSDataLen" says, and no more than
/// is there: without the length there is no data.
class VideoInfoXml : public IDomainXml
{
public:
    VideoInfoXml();
    ~VideoInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoInfo(const VideoInfo& info) { info_ = info; }
    VideoInfo& getVideoInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoInfo& info);
    static bool readElement(const TiXmlElement& element, VideoInfo& info);
    /// @}

private:
    VideoInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
