#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// How large the packets of a device are: the "MTUParam" document.
///
/// A missing attribute leaves its field; where a text is read, it gives false as well.
class MTUParamXml : public IDomainXml
{
public:
    MTUParamXml();
    ~MTUParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const MTUParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MTUParam& param) const;
    bool createXmlString(const MTUParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, MTUParam& param) const;
    /// @}
};
