#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>

/// The output of raw pictures: the "OriginalYUV" document.
///
/// A missing property leaves its field.
class OriginalYUVConfigureXml : public IDomainXml
{
public:
    OriginalYUVConfigureXml();
    ~OriginalYUVConfigureXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const OriginalYUVConfigure& output, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OriginalYUVConfigure& output) const;
    bool createXmlString(const OriginalYUVConfigure& output, std::string& text) const;
    bool parseXmlString(const std::string& text, OriginalYUVConfigure& output) const;
    /// @}
};
