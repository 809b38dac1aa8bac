#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Ends a live audio stream: the "AudioStreamCloseCommand" document.
///
/// A missing attribute leaves its field.
class AudioStreamCloseXml : public IDomainXml
{
public:
    AudioStreamCloseXml();
    ~AudioStreamCloseXml() override;

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

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
    int cameraId_ = 0;
    int consumerId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
