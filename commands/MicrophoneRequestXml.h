#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Asks for the sound of a camera's microphone: the "MicrophoneRequestCommand" document.
///
/// A missing attribute leaves its field.
class MicrophoneRequestXml : public IDomainXml
{
public:
    MicrophoneRequestXml();
    ~MicrophoneRequestXml() override;

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How the sound is to be encoded, as the device numbers it.
    int getEncodeType() const { return encodeType_; }
    void setEncodeType(int encodeType) { encodeType_ = encodeType; }

    /// How the stream is to be wrapped, as the device numbers it; the document calls it "StreamType".
    int getStreamFormat() const { return streamFormat_; }
    void setStreamFormat(int streamFormat) { streamFormat_ = streamFormat; }

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
    int encodeType_ = 0;
    int streamFormat_ = 0;
    int dataChannelId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
