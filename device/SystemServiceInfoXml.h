#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// The services that a device offers beside its protocol: the "SystemServiceInfoList" document, which is no list.
///
/// A missing attribute resets its field.
class SystemServiceInfoXml : public IDomainXml
{
public:
    SystemServiceInfoXml();
    ~SystemServiceInfoXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const SystemServiceInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SystemServiceInfo& info) const;
    bool createXmlString(const SystemServiceInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, SystemServiceInfo& info) const;
    /// @}
};
