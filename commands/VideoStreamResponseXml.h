#pragma once

#include "core/IDomainXml.h"
#include "domain/InetAddr.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// Grants a live video stream: the "VideoStreamResponseCommand" document.
///
/// A missing attribute or child leaves its field. What the stream carries is read, from the first item of
/// "AVStreamParamList", and never written.
class VideoStreamResponseXml : public IDomainXml
{
public:
    VideoStreamResponseXml();
    ~VideoStreamResponseXml() override;

    /// The number by which the device knows the consumer of the channel from here on.
    int getConsumerId() const { return consumerId_; }
    void setConsumerId(int consumerId) { consumerId_ = consumerId; }

    /// Where the stream is.
    /// @{
    const InetAddr& getStreamAddr() const { return streamAddr_; }
    InetAddr& getStreamAddr() { return streamAddr_; }
    void setStreamAddr(const InetAddr& streamAddr) { streamAddr_ = streamAddr; }
    /// @}

    /// What it carries.
    /// @{
    const AVStreamParam& getAVStreamParam() const { return avStreamParam_; }
    AVStreamParam& getAVStreamParam() { return avStreamParam_; }
    void setAVStreamParam(const AVStreamParam& avStreamParam) { avStreamParam_ = avStreamParam; }
    /// @}

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
    int consumerId_ = 0;
    InetAddr streamAddr_;
    AVStreamParam avStreamParam_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
