#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The layouts that a recorder knows: the "LiveVideoLayoutList" document.
///
/// The reader appends to the list; a failed item ends it with false.
class LiveVideoLayoutListXml : public IDomainXml
{
public:
    LiveVideoLayoutListXml();
    ~LiveVideoLayoutListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setLiveVideoLayoutList(const std::vector<LiveVideoLayout>& layouts) { layouts_ = layouts; }
    std::vector<LiveVideoLayout>& getLiveVideoLayoutList() { return layouts_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<LiveVideoLayout>& layouts);
    static bool readElement(const TiXmlElement& element, std::vector<LiveVideoLayout>& layouts);
    /// @}

private:
    std::vector<LiveVideoLayout> layouts_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
