#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// The room that a device has for pictures: the "SnapshotSpaceInfo" document.
///
/// A missing attribute resets the field.
class SnapshotSpaceInfoXml : public IDomainXml
{
public:
    SnapshotSpaceInfoXml();
    ~SnapshotSpaceInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotSpaceInfo(const SnapshotSpaceInfo& info) { info_ = info; }
    SnapshotSpaceInfo& getSnapshotSpaceInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotSpaceInfo& info);
    static bool readElement(const TiXmlElement& element, SnapshotSpaceInfo& info);
    /// @}

private:
    SnapshotSpaceInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
