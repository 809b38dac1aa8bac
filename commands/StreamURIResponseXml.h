#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Gives the address of a stream: the "StreamURIResponseInfo" document.
///
/// A missing attribute leaves its field.
class StreamURIResponseXml : public IDomainXml
{
public:
    StreamURIResponseXml();
    ~StreamURIResponseXml() override;

    /// The address of the stream.
    const std::string& getStreamURI() const { return streamURI_; }
    void setStreamURI(const std::string& streamURI) { streamURI_ = streamURI; }

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
    std::string streamURI_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
