#include "tests/suite/Codecs.h"

#include "analysis/AbnormalSpeedParamXml.h"
#include "analysis/AdvancedParamXml.h"
#include "analysis/CameraMovedParamXml.h"
#include "analysis/CameraTamperParamXml.h"
#include "analysis/ConverseParamXml.h"
#include "analysis/IntelligeBaseParamXml.h"
#include "analysis/IntelligenceAnalyseAbilityXml.h"
#include "analysis/LoiterParamXml.h"
#include "analysis/MotionDetectionParamV3Xml.h"
#include "analysis/MultiLoiterParamXml.h"
#include "analysis/MultiTripWireParamXml.h"
#include "analysis/NoParkingParamXml.h"
#include "analysis/ObjectLeftParamXml.h"
#include "analysis/ObjectMovedParamXml.h"
#include "analysis/PerimeterParamXml.h"
#include "analysis/SignalBadParamXml.h"
#include "analysis/TripWireParamXml.h"
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
        {"analysis", "AbnormalSpeedParamXml", "node", rewriteText<AbnormalSpeedParamXml, AbnormalSpeedParam>},
        {"analysis", "AdvancedParamXml", "node", rewriteText<AdvancedParamXml, AdvancedParam>},
        {"analysis", "CameraMovedParamXml", "node", rewriteText<CameraMovedParamXml, CameraMovedParam>},
        {"analysis", "CameraTamperParamXml", "node", rewriteText<CameraTamperParamXml, CameraTamperParam>},
        {"analysis", "ConverseParamXml", "node", rewriteText<ConverseParamXml, ConverseParam>},
        {"analysis", "IntelligeBaseParamXml", "node", rewriteText<IntelligeBaseParamXml, IntelligeBaseParam>},
        {"analysis", "IntelligenceAnalyseAbilityXml", "node", rewriteAnalyseAbility},
        {"analysis", "LoiterParamXml", "node", rewriteText<LoiterParamXml, LoiterParam>},
        {"analysis", "MotionDetectionParamV3Xml", "node", rewriteText<MotionDetectionParamV3Xml, MotionDetectionParamV3>},
        {"analysis", "MultiLoiterParamXml", "node", rewriteText<MultiLoiterParamXml, MultiLoiterParam>},
        {"analysis", "MultiTripWireParamXml", "node", rewriteText<MultiTripWireParamXml, MultiTripWireParam>},
        {"analysis", "NoParkingParamXml", "node", rewriteText<NoParkingParamXml, NoParkingParam>},
        {"analysis", "ObjectLeftParamXml", "node", rewriteText<ObjectLeftParamXml, ObjectLeftParam>},
        {"analysis", "ObjectMovedParamXml", "node", rewriteText<ObjectMovedParamXml, ObjectMovedParam>},
        {"analysis", "PerimeterParamXml", "node", rewriteText<PerimeterParamXml, PerimeterParam>},
        {"analysis", "SignalBadParamXml", "node", rewriteText<SignalBadParamXml, SignalBadParam>},
        {"analysis", "TripWireParamXml", "node", rewriteText<TripWireParamXml, TripWireParam>},
        // clang-format on
    };
}
