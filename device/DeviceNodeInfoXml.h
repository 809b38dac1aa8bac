#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <vector>

/// The nodes of a device's domains: the "DeviceNodeInfoList" child of other documents. It is only read.
///
/// A missing property gives an empty text; for "DomainName" and "DomainNode" it prints a line.
class DeviceNodeInfoXml : public IDomainXml
{
public:
    DeviceNodeInfoXml();
    ~DeviceNodeInfoXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{

    /// Writes nothing; false.
    bool createDomainXmlNode(const std::vector<DeviceNodeInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    /// Reads the child of @p node; false without it.
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<DeviceNodeInfo>& infos) const;
    /// @}
};
