#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Sets how the windows of a decoder are arranged: the "DecoderWindowModeCommand" document.
///
/// A missing attribute leaves its field.
class DecoderWindowModeXml : public IDomainXml
{
public:
    DecoderWindowModeXml();
    ~DecoderWindowModeXml() override;

    /// The arrangement, as the device numbers it.
    int getWindowMode() const { return windowMode_; }
    void setWindowMode(int windowMode) { windowMode_ = windowMode; }

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
    int windowMode_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
