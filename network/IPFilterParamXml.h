#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// Which addresses may reach a device, or may not: the "IPFilterParam" document.
///
/// The reader gives false at the first missing attribute, and without an "IPAddrSegmentList"; the fields before that
/// are set then. It replaces the list. An address range that lacks an attribute is passed over.
class IPFilterParamXml : public IDomainXml
{
public:
    IPFilterParamXml();
    ~IPFilterParamXml() override;

    bool createXmlString(const IPFilterParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, IPFilterParam& param) const;

    /// Appends each whole "IPAddrSegment" inside @p node, the list itself; false if that is empty.
    bool parseIPAddrList(const SafePointer<DomainXmlNode>& node, std::vector<IPAddrSegment>& segments) const;
    /// Reads the range that @p node itself is. False at the first missing attribute, and if @p node is empty.
    bool parseIPAddr(const SafePointer<DomainXmlNode>& node, IPAddrSegment& segment) const;
};
