#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// Whether a device is found by Bonjour: the "BonjourServiceParam" document.
///
/// A missing attribute resets its field, except in `parse`.
class BonjourServiceParamXml : public IDomainXml
{
public:
    BonjourServiceParamXml();
    ~BonjourServiceParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const BonjourServiceParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, BonjourServiceParam& param) const;
    bool createXmlString(const BonjourServiceParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, BonjourServiceParam& param) const;

    /// Puts a new node into @p node, in place of the one that it holds, which stays as it is. Always true.
    bool create(const BonjourServiceParam& param, SafePointer<DomainXmlNode>& node) const;
    /// The strict reader: a missing attribute leaves its field and gives false.
    bool parse(const SafePointer<DomainXmlNode>& node, BonjourServiceParam& param) const;
    /// @}
};
