#pragma once

#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// The kinds of protocol that a device can speak: the "ProtocolConfigList" document.
///
/// A missing property resets its field.
class ProtocolTypeInfoXml
{
public:
    ProtocolTypeInfoXml();
    virtual ~ProtocolTypeInfoXml();

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<ProtocolTypeInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ProtocolTypeInfo>& infos) const;
    bool createXmlString(const std::vector<ProtocolTypeInfo>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<ProtocolTypeInfo>& infos) const;
    /// @}
};
