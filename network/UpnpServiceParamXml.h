#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// Whether a device is found by UPnP: the "UpnpServiceParam" document.
///
/// A missing attribute leaves its field and gives false.
class UpnpServiceParamXml : public IDomainXml
{
public:
    UpnpServiceParamXml();
    ~UpnpServiceParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{

    /// Puts a new node into @p node, in place of the one that it holds, which stays as it is. Always true.
    bool createDomainXmlNode(const UpnpServiceParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, UpnpServiceParam& param) const;
    bool createXmlString(const UpnpServiceParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, UpnpServiceParam& param) const;

    /// What `createDomainXmlNode` and `createXmlString` go through.
    bool create(const UpnpServiceParam& param, SafePointer<DomainXmlNode>& node) const;
    /// What `parseDomainXmlNode` and `parseXmlString` go through.
    bool parse(const SafePointer<DomainXmlNode>& node, UpnpServiceParam& param) const;
    /// @}
};
