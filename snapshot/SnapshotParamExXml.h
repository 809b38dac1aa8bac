#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>

/// The servers that pictures are stored on: the "SnapshotParamEX" document.
///
/// The servers replace those that the record has; children of other names are passed over. A missing property resets
/// its field.
class SnapshotParamExXml : public IDomainXml
{
public:
    SnapshotParamExXml();
    ~SnapshotParamExXml() override;

    bool createXmlString(const SnapshotParamEX& param, std::string& text) const;
    bool parseXmlString(const std::string& text, SnapshotParamEX& param) const;

    /// @name Nodes
    /// The document's own node, and that of one "SnapshotStorageParam" in it. False only without a node.
    /// @{
    bool create(const SnapshotParamEX& param, SafePointer<DomainXmlNode>& node) const;
    bool parse(const SafePointer<DomainXmlNode>& node, SnapshotParamEX& param) const;
    bool createSnapshotStorageParam(const SnapshotStorageParam& storage, SafePointer<DomainXmlNode>& node) const;
    bool parseSnapshotStorageParam(const SafePointer<DomainXmlNode>& node, SnapshotStorageParam& storage) const;
    /// @}
};
