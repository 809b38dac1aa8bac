#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Opens a playback: the "RecordStreamOpenCommand" document.
///
/// A missing attribute leaves its field. A text that is malformed or has another root gives false and a line that tells
/// which.
class RecordStreamOpenXml : public IDomainXml
{
public:
    RecordStreamOpenXml();
    ~RecordStreamOpenXml() override;

    /// Kind of the stream, as the device numbers it.
    int getStreamType() const { return streamType_; }
    void setStreamType(int streamType) { streamType_ = streamType; }

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
    int streamType_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
