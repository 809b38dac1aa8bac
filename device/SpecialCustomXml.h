#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// What is shown over the picture for one customer or another: the "SpecialCustom" document.
///
/// A missing attribute resets its field.
class SpecialCustomXml : public IDomainXml
{
public:
    SpecialCustomXml();
    ~SpecialCustomXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const SpecialCustom& custom, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SpecialCustom& custom) const;
    bool createXmlString(const SpecialCustom& custom, std::string& text) const;
    bool parseXmlString(const std::string& text, SpecialCustom& custom) const;
    /// @}
};
