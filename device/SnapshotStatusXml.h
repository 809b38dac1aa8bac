#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// Which cameras take snapshots: the "SnapshotStatusList" document.
///
/// The reader appends to the list and passes over items of other names. An attribute that is missing, or is no number,
/// gives 0.
class SnapshotStatusXml : public IDomainXml
{
public:
    SnapshotStatusXml();
    ~SnapshotStatusXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotStatusList(const std::vector<SnapshotStatus>& statuses) { statuses_ = statuses; }
    std::vector<SnapshotStatus>& getSnapshotStatusList() { return statuses_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<SnapshotStatus>& statuses);
    static bool readElement(const TiXmlElement& element, std::vector<SnapshotStatus>& statuses);
    /// @}

private:
    std::vector<SnapshotStatus> statuses_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
