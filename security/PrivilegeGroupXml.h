#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <vector>

/// A group of accounts: the "PrivilegeGroup" document, and "PrivilegeGroupList" for several.
///
/// A missing property resets its field. A line is printed for it, unless the text of a list is read.
class PrivilegeGroupXml : public IDomainXml
{
public:
    PrivilegeGroupXml();
    ~PrivilegeGroupXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const PrivilegeGroup& group, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<PrivilegeGroup>& groups, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PrivilegeGroup& group) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PrivilegeGroup>& groups) const;
    bool createXmlString(const PrivilegeGroup& group, std::string& text) const;
    bool createXmlString(const std::vector<PrivilegeGroup>& groups, std::string& text) const;
    bool parseXmlString(const std::string& text, PrivilegeGroup& group) const;
    bool parseXmlString(const std::string& text, std::vector<PrivilegeGroup>& groups) const;
    /// @}
};
