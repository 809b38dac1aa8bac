#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// What the scalable sub-streams of a camera are configured to: the "SVCStreamConfigureList" document.
///
/// A missing property leaves its field as in a new record.
class SVCStreamConfigureXml : public IDomainXml
{
public:
    SVCStreamConfigureXml();
    ~SVCStreamConfigureXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<SVCStreamConfigure>& streams, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<SVCStreamConfigure>& streams) const;
    bool createXmlString(const std::vector<SVCStreamConfigure>& streams, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<SVCStreamConfigure>& streams) const;
    /// @}
};
