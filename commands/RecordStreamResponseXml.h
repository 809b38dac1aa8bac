#pragma once

#include "core/IDomainXml.h"
#include "domain/InetAddr.h"

#include <string>
#include <tinyxml.h>

/// Where a playback can be received: the "RecordStreamResponseCommand" document, the answer to its opening.
///
/// A missing attribute leaves its field, "IP", "Port" and "IPProtoVar" of the address as well; a missing "StreamAddr"
/// leaves the address.
class RecordStreamResponseXml : public IDomainXml
{
public:
    RecordStreamResponseXml();
    ~RecordStreamResponseXml() override;

    /// Number of the playback, by which it is steered from now on.
    int getManagerId() const { return managerId_; }
    void setManagerId(int managerId) { managerId_ = managerId; }

    /// Number of the one that receives the playback.
    int getConsumerId() const { return consumerId_; }
    void setConsumerId(int consumerId) { consumerId_ = consumerId; }

    /// Where the stream can be received.
    /// @{
    const InetAddr& getStreamAddr() const { return streamAddr_; }
    InetAddr& getStreamAddr() { return streamAddr_; }
    void setStreamAddr(const InetAddr& streamAddr) { streamAddr_ = streamAddr; }
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
    int managerId_ = 0;
    int consumerId_ = 0;
    InetAddr streamAddr_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
