#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"

#include <string>
#include <tinyxml.h>

/// An arrangement of windows with live pictures: the "LiveVideoLayout" document.
///
/// A missing name resets its field, a missing number leaves it. Windows are added to those that the record has.
class LiveVideoLayoutXml : public IDomainXml
{
public:
    LiveVideoLayoutXml();
    ~LiveVideoLayoutXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLiveVideoLayout(const LiveVideoLayout& layout) { layout_ = layout; }
    LiveVideoLayout& getLiveVideoLayout() { return layout_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const LiveVideoLayout& layout);
    static bool readElement(const TiXmlElement& element, LiveVideoLayout& layout);
    /// @}

private:
    LiveVideoLayout layout_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
