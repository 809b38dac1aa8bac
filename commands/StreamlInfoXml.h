#pragma once

#include "domain/CommandRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// Which stream of which camera: the "StreamlInfo" document. The name is the protocol's.
///
/// A missing property resets its field; a missing "CameraId" prints a line.
class StreamlInfoXml
{
public:
    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const StreamlInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, StreamlInfo& info) const;
    bool createXmlString(const StreamlInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, StreamlInfo& info) const;
    /// @}
};
