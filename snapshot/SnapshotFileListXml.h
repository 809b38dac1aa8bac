#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Stored pictures, grouped by device and camera: the "SnapshotFileList" document.
///
/// Entries of a device and camera stand in one group, also if others come between them. The codec remembers the group
/// that it wrote to last: a second `createXmlNode` that begins with the same device and camera goes on there, in the
/// first root.
///
/// The reader empties the list first. It names the files: see `SnapshotFileXml::createSnapshotFileName`, also for
/// what a name may hold. Items of any name count as groups, and what a group lacks is empty or 0.
class SnapshotFileListXml : public IDomainXml
{
public:
    SnapshotFileListXml();
    ~SnapshotFileListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotFileList(const std::vector<SnapshotFile>& files) { files_ = files; }
    std::vector<SnapshotFile>& getSnapshotFileList() { return files_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<SnapshotFile>& files);
    static bool readElement(const TiXmlElement& element, std::vector<SnapshotFile>& files);
    /// @}

    /// @name Groups
    /// @{

    /// Appends a group for the device and camera of @p file to @p list; null if that is null.
    TiXmlNode* createDeviceInfoXmlNode(TiXmlNode* list, const SnapshotFile& file) const;

    /// Looks for the group of a device and camera below @p list, and remembers it as the one that was written to last.
    /// False, with the memory as it was, if there is none.
    /// @param group is not used.
    bool findNode(TiXmlNode* list, const std::string& deviceId, int cameraId, TiXmlNode* group);

    /// Appends the entries of the group that @p node is to @p files; false if it is no element.
    bool parserDeviceInfoNode(TiXmlNode* node, std::vector<SnapshotFile>& files) const;
    /// @}

private:
    struct Group
    {
        std::string deviceId;
        int cameraId = -1;
        TiXmlNode* node = nullptr;
    };

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<SnapshotFile>& files, Group& last);
    static void readGroup(const TiXmlElement& group, std::vector<SnapshotFile>& files);

    std::vector<SnapshotFile> files_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
    Group last_; ///< the group that was written to last
};
