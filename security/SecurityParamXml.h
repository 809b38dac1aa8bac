#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SecurityRecords.h"

#include <string>

/// How a device lets users in: the "SecurityParam" document.
///
/// A missing property prints a line; "LoginMode" then gives 2, "WebMode" 1, and any other 0 or false.
class SecurityParamXml : public IDomainXml
{
public:
    SecurityParamXml();
    ~SecurityParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const SecurityParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SecurityParam& param) const;
    bool createXmlString(const SecurityParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, SecurityParam& param) const;
    /// @}
};
