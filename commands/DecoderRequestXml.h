#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Asks to feed a decoder with a stream: the "DecoderRequestCommand" document.
///
/// A missing attribute leaves its field.
class DecoderRequestXml : public IDomainXml
{
public:
    DecoderRequestXml();
    ~DecoderRequestXml() override;

    /// The decoder's window that is to show it.
    int getWindowId() const { return windowId_; }
    void setWindowId(int windowId) { windowId_ = windowId; }

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
    int windowId_ = 0;
    int dataChannelId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
