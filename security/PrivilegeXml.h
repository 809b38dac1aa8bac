#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <vector>

/// The rights of a group of accounts: the "Privilege" document.
///
/// Without "GroupId" the reader gives false and leaves the record; with it, the rights that the record held make room
/// for those of the document. Every child is a right, whatever its name; one without "String" is an empty right.
class PrivilegeXml : public IDomainXml
{
public:
    PrivilegeXml();
    ~PrivilegeXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to, and stand below a node that the caller names.
    /// @{
    bool createDomainXmlNode(const Privilege& privilege, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<Privilege>& privileges, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, Privilege& privilege) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<Privilege>& privileges) const;
    bool createXmlString(const Privilege& privilege, std::string& text) const;
    bool parseXmlString(const std::string& text, Privilege& privilege) const;
    /// @}
};
