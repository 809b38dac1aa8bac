#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>

/// The part of the pictures in the configuration of a camera: the "SnapShotConfig" document.
///
/// A missing property resets its field.
class SnapShotConfigXml : public IDomainXml
{
public:
    SnapShotConfigXml();
    ~SnapShotConfigXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const SnapShotConfig& config, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SnapShotConfig& config) const;
    bool createXmlString(const SnapShotConfig& config, std::string& text) const;
    bool parseXmlString(const std::string& text, SnapShotConfig& config) const;
    /// @}
};
