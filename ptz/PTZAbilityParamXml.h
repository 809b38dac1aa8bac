#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>

/// What a head can do: the "PTZAbilityParam" document.
///
/// The reader takes the children in the document's order, each whole or not at all: the first element or property that
/// is missing ends it with false. What was read before stays in the record; that includes the speed table if only the
/// rest of "PTZSpeedConfig" is missing. Items of other names are passed over, and lists are replaced.
class PTZAbilityParamXml : public IDomainXml
{
public:
    PTZAbilityParamXml();
    ~PTZAbilityParamXml() override;

    bool createXmlString(const PTZAbilityParam& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, PTZAbilityParam& ability) const;
};
