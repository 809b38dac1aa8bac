#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// The protocols that a device speaks: the "ProtocolConfigAbility" document.
///
/// The list of the record is replaced. Every child counts as an item, at both levels, whatever its name; a missing
/// property gives an empty text.
class ProtocolConfigAbilityXml : public IDomainXml
{
public:
    ProtocolConfigAbilityXml();
    ~ProtocolConfigAbilityXml() override;

    bool createXmlString(const ProtocolConfigAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, ProtocolConfigAbility& ability) const;

private:
    bool create(const ProtocolConfigAbility& ability, SafePointer<DomainXmlNode>& node) const;
    bool createProtocolType(const ProtocolType& type, SafePointer<DomainXmlNode>& node) const;
    bool createProtocolInfo(const ProtocolInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool parse(const SafePointer<DomainXmlNode>& node, ProtocolConfigAbility& ability) const;
    bool parseProtocolType(const SafePointer<DomainXmlNode>& node, ProtocolType& type) const;
    bool parseProtocolInfo(const SafePointer<DomainXmlNode>& node, ProtocolInfo& info) const;
};
