#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// One stretch of stored pictures: a "SnapshotFile" document as well, with other attributes than that of
/// `SnapshotFileXml`.
///
/// A missing attribute or child leaves its field. An alarm that is there replaces that of the record, name and all; the
/// document does not carry its name.
class SnapshotFileExXml : public IDomainXml
{
public:
    SnapshotFileExXml();
    ~SnapshotFileExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotFile(const SnapshotFileEx& file) { file_ = file; }
    SnapshotFileEx& getSnapshotFile() { return file_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotFileEx& file);
    static bool readElement(const TiXmlElement& element, SnapshotFileEx& file);
    /// @}

    /// @name Times as text
    /// The text forms of the document's times. Both are always true.
    /// @{
    bool Int642Str(const long long& value, std::string& text) const;
    /// By way of a `double`: a fraction is cut off, and of more than 53 significant bits the lowest are lost. What is
    /// no number gives 0.
    bool str2Int64(const std::string& text, long long& value) const;
    /// @}

private:
    SnapshotFileEx file_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
