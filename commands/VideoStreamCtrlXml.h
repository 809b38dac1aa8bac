#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Steers a live video stream: the "VideoStreamCtrlCommand" document.
///
/// A missing attribute leaves its field.
class VideoStreamCtrlXml : public IDomainXml
{
public:
    VideoStreamCtrlXml();
    ~VideoStreamCtrlXml() override;

    /// What to do with it, as the device numbers it.
    int getCtrlType() const { return ctrlType_; }
    void setCtrlType(int ctrlType) { ctrlType_ = ctrlType; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The number of the stream of that camera.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// The consumer of the channel: the number that the response to its request gave.
    int getConsumerId() const { return consumerId_; }
    void setConsumerId(int consumerId) { consumerId_ = consumerId; }

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
    int ctrlType_ = 0;
    int cameraId_ = 0;
    int streamId_ = 0;
    int consumerId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
