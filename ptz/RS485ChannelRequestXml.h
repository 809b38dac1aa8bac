#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// Asks for a channel to what hangs on an RS-485 port: the "RS485ChannelRequestCommand" document.
///
/// What is missing leaves its field.
class RS485ChannelRequestXml : public IDomainXml
{
public:
    RS485ChannelRequestXml();
    ~RS485ChannelRequestXml() override;

    /// The data channel that carries the answers.
    int getDataChannelId() const { return dataChannelId_; }
    void setDataChannelId(int dataChannelId) { dataChannelId_ = dataChannelId; }

    /// The port, and how it is to be set.
    /// @{
    const RS485Device& getRS485Device() const { return port_; }
    RS485Device& getRS485Device() { return port_; }
    void setRS485Device(const RS485Device& port) { port_ = port; }
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
    int dataChannelId_ = 0;
    RS485Device port_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
