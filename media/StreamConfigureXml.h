#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// What the streams of a camera are configured to: the "StreamConfigList" document.
///
/// A missing property leaves its field as in a new record.
class StreamConfigureXml : public IDomainXml
{
public:
    StreamConfigureXml();
    ~StreamConfigureXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<StreamConfigure>& streams, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<StreamConfigure>& streams) const;
    bool createXmlString(const std::vector<StreamConfigure>& streams, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<StreamConfigure>& streams) const;
    /// @}
};
