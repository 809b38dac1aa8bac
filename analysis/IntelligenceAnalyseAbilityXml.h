#pragma once

#include "core/IDomainXml.h"
#include "domain/AnalysisRecords.h"

#include <string>

/// What the analysis libraries of a device can do: the "IntelligenceAnalyseAbility" document.
///
/// Of what is missing, a library has the number -1 and pictures of 320 by 240, a function is disabled and has the
/// library -1, and all else is 0, false or empty; without "LIBCommon" the libraries, without "Functions" the functions
/// stay as they were. The reader prints a line for nearly all of it.
class IntelligenceAnalyseAbilityXml : public IDomainXml
{
public:
    IntelligenceAnalyseAbilityXml();
    ~IntelligenceAnalyseAbilityXml() override;

    /// @return false if nothing could be written.
    bool createXmlString(const IntelligenceAnalyseAbility& ability, std::string& text) const;

    /// @return false, with @p ability as it was, if @p text is no such document or has no version.
    /// @throws ZTRuntimeError, with @p ability as it was, if a "LIB" has no "Resolution" or no "Common", or the
    /// "MotionDetection" no "Cell". Whoever reads texts from a network must be ready for it.
    bool parseXmlString(const std::string& text, IntelligenceAnalyseAbility& ability) const;
};
