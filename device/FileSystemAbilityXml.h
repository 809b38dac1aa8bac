#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What a device can do with disks, by their kind: the "FileSystemAbilityList" document.
///
/// The list is appended to, each time with a fresh item, in which a missing attribute leaves 0 or empty. Elements of
/// other names than the items' are passed over, at both levels.
class FileSystemAbilityXml : public IDomainXml
{
public:
    FileSystemAbilityXml();
    ~FileSystemAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setFileSystemAbilityList(const std::vector<FileSystemAbility>& abilities) { abilities_ = abilities; }
    std::vector<FileSystemAbility>& getFileSystemAbilityList() { return abilities_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<FileSystemAbility>& abilities);
    static bool readElement(const TiXmlElement& element, std::vector<FileSystemAbility>& abilities);
    /// @}

private:
    std::vector<FileSystemAbility> abilities_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
