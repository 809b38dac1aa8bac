#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <tinyxml.h>

/// Orders a disk to be formatted: the "DiskFormatCommand" document.
///
/// A missing attribute leaves its field.
class DiskFormatExXml : public IDomainXml
{
public:
    DiskFormatExXml();
    ~DiskFormatExXml() override;

    /// Name of the disk; of any length.
    const std::string& getDiskName() const { return diskName_; }
    void setDiskName(const std::string& diskName) { diskName_ = diskName; }

    /// Kind of its file system, as the device numbers it.
    int getFileSystemType() const { return fileSystemType_; }
    void setFileSystemType(int fileSystemType) { fileSystemType_ = fileSystemType; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    std::string diskName_;
    int fileSystemType_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
