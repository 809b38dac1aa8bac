#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// The favoured regions of several streams: the "ROIConfigureList" document.
///
/// A missing "StreamID" gives 0. A stream's regions are its children named "ROIInfoParam"; others are passed over.
class ROIConfigureXml : public IDomainXml
{
public:
    ROIConfigureXml();
    ~ROIConfigureXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<ROIConfigure>& streams, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ROIConfigure>& streams) const;
    bool createXmlString(const std::vector<ROIConfigure>& streams, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<ROIConfigure>& streams) const;
    /// @}
};
