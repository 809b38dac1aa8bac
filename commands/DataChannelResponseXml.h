#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Answers `DataChannelRequestXml`: the "DataChannelResponseCommand" document.
///
/// A missing attribute leaves its field.
class DataChannelResponseXml : public IDomainXml
{
public:
    DataChannelResponseXml();
    ~DataChannelResponseXml() override;

    /// The number by which the new channel is named from now on.
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
    int dataChannelId_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
