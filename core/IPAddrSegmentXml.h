#pragma once

#include "core/IDomainXml.h"
#include "domain/CoreRecords.h"
#include "domain/DomainXmlNode.h"

/// A range of network addresses inside other documents: the "IPAddrSegment" node.
///
/// The names are misleading: neither operation has to do with a text.
class IPAddrSegmentXml : public IDomainXml
{
public:
    IPAddrSegmentXml();
    ~IPAddrSegmentXml() override;

    /// Adds an "IPAddrSegment" child to @p parent; false if that is empty.
    bool createXmlString(const IPAddrSegment& segment, SafePointer<DomainXmlNode>& parent) const;

    /// Reads the segment that @p node itself is. False at the first missing property, and if @p node is empty; the
    /// fields before that property are set then.
    bool parseXmlString(const SafePointer<DomainXmlNode>& node, IPAddrSegment& segment) const;
};
