#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"

#include <string>
#include <tinyxml.h>

/// A channel that a window shows: the "LiveVideoChannel" document.
///
/// A missing "ChannelID" leaves the channel's number, a missing "DeviceID" resets the device.
class LiveVideoChannelXml : public IDomainXml
{
public:
    LiveVideoChannelXml();
    ~LiveVideoChannelXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLiveVideoChannel(const LiveVideoChannel& channel) { channel_ = channel; }
    LiveVideoChannel& getLiveVideoChannel() { return channel_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LiveVideoChannel& channel);
    static bool readElement(const TiXmlElement& element, LiveVideoChannel& channel);
    /// @}

private:
    LiveVideoChannel channel_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
