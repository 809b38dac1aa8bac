#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <vector>

/// Which addresses may reach a device: the "NetworkPrivilegeInfo" document, and "NetworkPrivilegeInfoList" for several.
///
/// Without the list of ranges the reader gives false and leaves the record; one that is there takes the place of the
/// record's. A missing "IpConfigType" prints a line and leaves its field.
class NetworkPrivilegeInfoXml : public IDomainXml
{
public:
    NetworkPrivilegeInfoXml();
    ~NetworkPrivilegeInfoXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const NetworkPrivilegeInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<NetworkPrivilegeInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NetworkPrivilegeInfo& info) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<NetworkPrivilegeInfo>& infos) const;
    bool createXmlString(const NetworkPrivilegeInfo& info, std::string& text) const;
    bool createXmlString(const std::vector<NetworkPrivilegeInfo>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, NetworkPrivilegeInfo& info) const;
    bool parseXmlString(const std::string& text, std::vector<NetworkPrivilegeInfo>& infos) const;
    /// @}
};
