#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// What a camera can do to hide areas of its picture, as part of its configuration: a "BlindAbility" document.
///
/// A missing property resets its field. It shares its root with BlindAbilityXml, which carries other attributes.
class BlindAbilityConfigureXml : public IDomainXml
{
public:
    BlindAbilityConfigureXml();
    ~BlindAbilityConfigureXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const BlindAbilityConfigure& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, BlindAbilityConfigure& ability) const;
    bool createXmlString(const BlindAbilityConfigure& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, BlindAbilityConfigure& ability) const;
    /// @}
};
