#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/RecordRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The disks and directories that recordings lie on: the "ZT_RecordDirInfoList" document. It is that of
/// `RecordDirInfoXml` with "ZT_" before every name; neither reads the other's.
///
/// Both forms append to the list. In the document form what an item lacks is 0, empty or false, and no item fails. In
/// the node form a missing "ZT_DiskType" gives 2, "ZT_DiskName" "SDCard", "ZT_GroupId" 1, "ZT_Attribute" 1, "ZT_Status"
/// 3 and "ZT_FileSystem" 3, any other 0 or false; a number without digits, or a flag that is neither true nor false,
/// ends the reading with false, and the items before that one stay.
class ZT_RecordDirInfoXml : public IDomainXml
{
public:
    ZT_RecordDirInfoXml();
    ~ZT_RecordDirInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRecordDirInfoList(const std::vector<ZT_RecordDirInfo>& infos) { infos_ = infos; }
    std::vector<ZT_RecordDirInfo>& getRecordDirInfoList() { return infos_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<ZT_RecordDirInfo>& infos);
    static bool readElement(const TiXmlElement& element, std::vector<ZT_RecordDirInfo>& infos);
    /// @}

    /// @name Node form
    /// See IDomainXml. Items of other names are passed over.
    /// @{
    bool createDomainXmlNode(const std::vector<ZT_RecordDirInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ZT_RecordDirInfo>& infos) const;
    bool createXmlString(const std::vector<ZT_RecordDirInfo>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<ZT_RecordDirInfo>& infos) const;
    /// @}

private:
    std::vector<ZT_RecordDirInfo> infos_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
