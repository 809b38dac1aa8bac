#include "tests/suite/Codecs.h"

#include "analysis/IntelligenceAnalyseAbilityXml.h"
#include "core/ZTRuntimeError.h"
#include "tests/suite/Rewrite.h"

namespace
{

bool rewriteAnalyseAbility(const std::string& text, std::string& rewritten)
{
    try
    {
        return rewriteText<IntelligenceAnalyseAbilityXml, IntelligenceAnalyseAbility>(text, rewritten);
    }
    catch (const ZTRuntimeError&)
    {
        return false; // a part is missing
    }
}

} // namespace

std::vector<CodecCase> analysisCodecs()
{
    return {
        // clang-format off
        {"analysis", "IntelligenceAnalyseAbilityXml", "node", rewriteAnalyseAbility},
        // clang-format on
    };
}
