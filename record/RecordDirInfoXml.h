#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The disks and directories that recordings lie on: the "RecordDirInfoList" document.
///
/// Both forms append to the list. In the document form what an item lacks is 0, empty or false, and no item fails. In
/// the node form a missing "DiskType" gives 2, "DiskName" "SDCard", "GroupId" 1, "Attribute" 1, "Status" 3 and
/// "FileSystem" 3, any other 0 or false; a number without digits, or a flag that is neither true nor false, ends the
/// reading with false, and the items before that one stay.
class RecordDirInfoXml : public IDomainXml
{
public:
    RecordDirInfoXml();
    ~RecordDirInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordDirInfoList(const std::vector<RecordDirInfo>& infos) { infos_ = infos; }
    std::vector<RecordDirInfo>& getRecordDirInfoList() { return infos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<RecordDirInfo>& infos);
    static bool readElement(const TiXmlElement& element, std::vector<RecordDirInfo>& infos);
    /// @}

    /// @name Node form
    /// See IDomainXml. Items of other names are passed over.
    /// @{
    bool createDomainXmlNode(const std::vector<RecordDirInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RecordDirInfo>& infos) const;
    bool createXmlString(const std::vector<RecordDirInfo>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<RecordDirInfo>& infos) const;
    /// @}

private:
    std::vector<RecordDirInfo> infos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
