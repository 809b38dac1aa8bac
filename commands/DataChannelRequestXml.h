#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Asks for a data channel, the way on which streams and alarms travel: the "DataChannelRequestCommand" document.
///
/// A missing attribute leaves its field.
class DataChannelRequestXml : public IDomainXml
{
public:
    DataChannelRequestXml();
    ~DataChannelRequestXml() override;

    /// How the data is to be transferred, as the device numbers it.
    int getTransferProtocol() const { return transferProtocol_; }
    void setTransferProtocol(int transferProtocol) { transferProtocol_ = transferProtocol; }

    /// What the channel is to carry, as the device numbers it.
    int getChannelType() const { return channelType_; }
    void setChannelType(int channelType) { channelType_ = channelType; }

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
    int transferProtocol_ = 0;
    int channelType_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
