#pragma once

#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// The ports on which a device can be reached: the "DevicePort" document.
///
/// A missing attribute resets its field.
class DevicePortXml
{
public:
    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const DevicePort& port, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DevicePort& port) const;
    bool createXmlString(const DevicePort& port, std::string& text) const;
    bool parseXmlString(const std::string& text, DevicePort& port) const;
    /// @}
};
