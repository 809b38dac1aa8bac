#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Ends the feeding of a decoder: the "DecoderCloseCommand" document.
///
/// A missing attribute leaves its field.
class DecoderCloseXml : public IDomainXml
{
public:
    DecoderCloseXml();
    ~DecoderCloseXml() override;

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
    int consumerId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
