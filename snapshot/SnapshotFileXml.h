#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// One stored picture: the "SnapshotFile" document.
///
/// A missing attribute leaves its field, a missing calendar time as well. A list of alarms that has items replaces
/// those of the record. Every read makes the file's name, of the fields that the record has then; the document carries
/// no device, so those are for the caller to set first.
class SnapshotFileXml : public IDomainXml
{
public:
    SnapshotFileXml();
    ~SnapshotFileXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotFile(const SnapshotFile& file) { file_ = file; }
    SnapshotFile& getSnapshotFile() { return file_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotFile& file);
    static bool readElement(const TiXmlElement& element, SnapshotFile& file);
    /// @}

    /// Names the file: device, address, camera, time and reason, as in "d1_10.0.0.9_3_20150302080907045_2.jpg". The
    /// time is in UTC.
    ///
    /// The name is cut after 255 bytes. It holds the text of a peer, as it stands: look at it before it becomes part of
    /// a path.
    static void createSnapshotFileName(SnapshotFile& file);

    /// @name Times as text
    /// The text forms of the document's times. Both are always true.
    /// @{
    bool Int642Str(const long long& value, std::string& text) const;
    /// By way of a `double`: a fraction is cut off, and of more than 53 significant bits the lowest are lost. What is
    /// no number gives 0.
    bool str2Int64(const std::string& text, long long& value) const;
    /// @}

private:
    SnapshotFile file_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
