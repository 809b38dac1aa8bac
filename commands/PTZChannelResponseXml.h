#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Answers `PTZChannelRequestXml`: the "PTZChannelResponseCommand" document.
///
/// A missing attribute leaves its field.
class PTZChannelResponseXml : public IDomainXml
{
public:
    PTZChannelResponseXml();
    ~PTZChannelResponseXml() override;

    /// The number by which the new consumer is named from now on.
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
