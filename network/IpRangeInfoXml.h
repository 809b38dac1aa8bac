#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// A range of network addresses: the "IpRangeInfo" document, and "IpRangeInfoList" for several.
///
/// A missing attribute prints a line and resets its field.
class IpRangeInfoXml : public IDomainXml
{
public:
    IpRangeInfoXml();
    ~IpRangeInfoXml() override;

    /// @name Node form
    /// See IDomainXml. Lists have texts of their own, but no node operations; they are appended to.
    /// @{
    bool createDomainXmlNode(const IpRangeInfo& range, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, IpRangeInfo& range) const;
    bool createXmlString(const IpRangeInfo& range, std::string& text) const;
    bool createXmlString(const std::vector<IpRangeInfo>& ranges, std::string& text) const;
    bool parseXmlString(const std::string& text, IpRangeInfo& range) const;
    bool parseXmlString(const std::string& text, std::vector<IpRangeInfo>& ranges) const;
    /// @}
};
