#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Recorded files with the disks that they lie on: the "RecordFileList" document.
///
/// The reader appends to the list, and no item fails. What an item lacks is 0, empty or false. Of an item's
/// "RecordDirInfoList" the first disk counts.
class RecordFileExXml : public IDomainXml
{
public:
    RecordFileExXml();
    ~RecordFileExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordFileList(const std::vector<RecordFileEx>& files) { files_ = files; }
    std::vector<RecordFileEx>& getRecordFileList() { return files_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<RecordFileEx>& files);
    static bool readElement(const TiXmlElement& element, std::vector<RecordFileEx>& files);
    /// @}

private:
    std::vector<RecordFileEx> files_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
