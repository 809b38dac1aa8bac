#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Asks to speak through the device's intercom: the "InterPhoneRequestCommand" document.
///
/// A missing attribute leaves its field.
class InterPhoneRequestXml : public IDomainXml
{
public:
    InterPhoneRequestXml();
    ~InterPhoneRequestXml() override;

    /// How the sound is encoded, as the device numbers it.
    int getDecodeType() const { return decodeType_; }
    void setDecodeType(int decodeType) { decodeType_ = decodeType; }

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
    int decodeType_ = 0;
    int dataChannelId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
