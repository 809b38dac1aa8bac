#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>

/// What triggers the pictures of traffic cameras: the "TrafficSnapshotPolicy" document.
///
/// The triggers replace those that the record has; children of other names are passed over. A missing property resets
/// its field.
class TrafficSnapshotPolicyXml : public IDomainXml
{
public:
    TrafficSnapshotPolicyXml();
    ~TrafficSnapshotPolicyXml() override;

    bool createXmlString(const TrafficSnapshotPolicy& policy, std::string& text) const;
    bool parseXmlString(const std::string& text, TrafficSnapshotPolicy& policy) const;

    /// @name Nodes
    /// The document's own node, and that of one "SnapshotTriggerParameter" in it. False only without a node.
    /// @{
    bool create(const TrafficSnapshotPolicy& policy, SafePointer<DomainXmlNode>& node) const;
    bool parse(const SafePointer<DomainXmlNode>& node, TrafficSnapshotPolicy& policy) const;
    /// Stops at the kind of flash: the four values that follow are written by `create` only.
    bool createSnapshotTriggerParameter(const SnapshotTriggerParameter& trigger,
                                        SafePointer<DomainXmlNode>& node) const;
    bool parseSnapshotTriggerParameter(const SafePointer<DomainXmlNode>& node, SnapshotTriggerParameter& trigger) const;
    /// @}
};
