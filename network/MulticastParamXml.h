#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// How a device announces itself to groups: the "MulticastParamConfig" document, a list of "MulticastParam".
///
/// Where nodes are read, a missing attribute leaves 0, empty or false in its item. Where texts are read, it ends the
/// list with false: that item is dropped, and those before it stay.
class MulticastParamXml : public IDomainXml
{
public:
    MulticastParamXml();
    ~MulticastParamXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to; items may have any name.
    /// @{
    bool createDomainXmlNode(const std::vector<MulticastParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<MulticastParam>& params) const;
    bool createXmlString(const std::vector<MulticastParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<MulticastParam>& params) const;
    /// @}
};
