#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Asks for a live video stream: the "VideoStreamRequestCommand" document.
///
/// A missing attribute leaves its field.
class VideoStreamRequestXml : public IDomainXml
{
public:
    VideoStreamRequestXml();
    ~VideoStreamRequestXml() override;

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The number of the stream of that camera.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// How the stream is to be wrapped, as the device numbers it; the document calls it "StreamFormat".
    int getMode() const { return mode_; }
    void setMode(int mode) { mode_ = mode; }

    /// The data channel that is to carry it: the number that `DataChannelResponseXml` gave.
    int getDataChannelId() const { return dataChannelId_; }
    void setDataChannelId(int dataChannelId) { dataChannelId_ = dataChannelId; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    int cameraId_ = 0;
    int streamId_ = 0;
    int mode_ = 0;
    int dataChannelId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
