#pragma once

#include "core/IDomainXml.h"

#include <string>

/// Asks for a stream of the analysis channel: the "IntelligenceAnalyseStreamRequestCommand" document.
///
/// It is read and written as a text only, and a second text does not hold the first. Nothing may be missing: the reader
/// gives false at the first attribute that is, and those before it are set then. The root may bear any name.
class IntelligenceAnalyseStreamRequestXml : public IDomainXml
{
public:
    IntelligenceAnalyseStreamRequestXml();
    ~IntelligenceAnalyseStreamRequestXml() override;

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The stream's number on the camera.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// The consumer of the channel: the number that the device gave it.
    int getConsumerId() const { return consumerId_; }
    void setConsumerId(int consumerId) { consumerId_ = consumerId; }

    /// The kind of request, as the device numbers it.
    int getType() const { return type_; }
    void setType(int type) { type_ = type; }

    /// @name Text
    /// @{
    bool createXmlString();
    bool parseXmlString();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    /// @}

private:
    int cameraId_ = 0;
    int streamId_ = 0;
    int consumerId_ = 0;
    int type_ = 0;
    std::string text_;
};
