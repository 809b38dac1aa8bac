#include "tests/suite/Codecs.h"

std::vector<CodecCase> alarmCodecs();
std::vector<CodecCase> analysisCodecs();
std::vector<CodecCase> commandsCodecs();
std::vector<CodecCase> coreCodecs();
std::vector<CodecCase> deviceCodecs();
std::vector<CodecCase> displayCodecs();
std::vector<CodecCase> mediaCodecs();
std::vector<CodecCase> networkCodecs();
std::vector<CodecCase> ptzCodecs();
std::vector<CodecCase> recordCodecs();
std::vector<CodecCase> securityCodecs();
std::vector<CodecCase> snapshotCodecs();

std::string CodecCase::golden() const
{
    return std::string(family) + "/" + codec + "." + form + ".xml";
}

std::string CodecCase::rewrittenGolden() const
{
    return std::string(family) + "/" + codec + "." + (rewritten != nullptr ? rewritten : form) + ".xml";
}

const std::vector<CodecCase>& allCodecs()
{
    static const std::vector<CodecCase> codecs = []
    {
        std::vector<CodecCase> all;
        for (auto family : {alarmCodecs, analysisCodecs, commandsCodecs, coreCodecs, deviceCodecs, displayCodecs,
                            mediaCodecs, networkCodecs, ptzCodecs, recordCodecs, securityCodecs, snapshotCodecs})
        {
            const std::vector<CodecCase> codecsOfFamily = family();
            all.insert(all.end(), codecsOfFamily.begin(), codecsOfFamily.end());
        }
        return all;
    }();
    return codecs;
}
