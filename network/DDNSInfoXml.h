#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// How addresses are reported to a provider of names: the "DDNSInfo" document, and "DDNSInfoList" for several.
///
/// The reader ends at the first missing property, with a line and false; the fields before that property are set then.
class DDNSInfoXml : public IDomainXml
{
public:
    DDNSInfoXml();
    ~DDNSInfoXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const DDNSInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<DDNSInfo>& infos, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DDNSInfo& info) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<DDNSInfo>& infos) const;
    bool createXmlString(const DDNSInfo& info, std::string& text) const;
    bool createXmlString(const std::vector<DDNSInfo>& infos, std::string& text) const;
    bool parseXmlString(const std::string& text, DDNSInfo& info) const;
    bool parseXmlString(const std::string& text, std::vector<DDNSInfo>& infos) const;
    /// @}
};
