#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"

#include <string>
#include <tinyxml.h>

/// A window of a layout: the "LayoutWindow" document.
///
/// A missing "WindowID" leaves the window's number. Channels are added to those that the record has.
class LayoutWindowXml : public IDomainXml
{
public:
    LayoutWindowXml();
    ~LayoutWindowXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLayoutWindow(const LayoutWindow& window) { window_ = window; }
    LayoutWindow& getLayoutWindow() { return window_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LayoutWindow& window);
    static bool readElement(const TiXmlElement& element, LayoutWindow& window);
    /// @}

private:
    LayoutWindow window_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
