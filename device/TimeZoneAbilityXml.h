#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>

/// The time zones that a device knows: the "TimeZoneAbility" document.
///
/// The list of the record is replaced. Every child counts as a zone, whatever its name; a missing property gives 0 or
/// an empty text.
class TimeZoneAbilityXml : public IDomainXml
{
public:
    TimeZoneAbilityXml();
    ~TimeZoneAbilityXml() override;

    bool createXmlString(const TimeZoneAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, TimeZoneAbility& ability) const;
};
