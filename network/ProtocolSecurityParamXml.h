#pragma once

#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// How a device verifies the users of a protocol: the "UserVerification" document.
///
/// A missing property resets its field.
class ProtocolSecurityParamXml
{
public:
    ProtocolSecurityParamXml();
    virtual ~ProtocolSecurityParamXml();

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ProtocolSecurityParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ProtocolSecurityParam& param) const;
    bool createXmlString(const ProtocolSecurityParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, ProtocolSecurityParam& param) const;
    /// @}
};
