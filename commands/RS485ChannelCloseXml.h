#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Ends the use of an RS-485 port: the "RS485ChannelCloseCommand" document.
///
/// A missing attribute leaves its field.
class RS485ChannelCloseXml : public IDomainXml
{
public:
    RS485ChannelCloseXml();
    ~RS485ChannelCloseXml() override;

    /// The port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

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
    int comId_ = 0;
    int consumerId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
