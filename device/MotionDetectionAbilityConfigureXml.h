#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>

/// How finely a camera detects motion, as part of its configuration: a "MotionDetectionAbility" document.
///
/// A missing property resets its field. It shares its root with MotionDetectionAbilityXml, which carries other
/// attributes.
class MotionDetectionAbilityConfigureXml : public IDomainXml
{
public:
    MotionDetectionAbilityConfigureXml();
    ~MotionDetectionAbilityConfigureXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const MotionDetectionAbilityConfigure& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MotionDetectionAbilityConfigure& ability) const;
    bool createXmlString(const MotionDetectionAbilityConfigure& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, MotionDetectionAbilityConfigure& ability) const;
    /// @}
};
