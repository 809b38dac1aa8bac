#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What one camera of a device does: the "VideoChannelStatistic" document.
///
/// A missing attribute resets its field.
class VideoChannelStatisticXml : public IDomainXml
{
public:
    VideoChannelStatisticXml();
    ~VideoChannelStatisticXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setVideoChannelStatistic(const VideoChannelStatistic& channel) { channel_ = channel; }
    VideoChannelStatistic& getVideoChannelStatistic() { return channel_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const VideoChannelStatistic& channel);
    static bool readElement(const TiXmlElement& element, VideoChannelStatistic& channel);
    /// @}

private:
    VideoChannelStatistic channel_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
