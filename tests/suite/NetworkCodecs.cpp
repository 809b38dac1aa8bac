#include "tests/suite/Codecs.h"

#include "network/NTPParamXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> networkCodecs()
{
    return {
        // clang-format off
        {"network", "NTPParamXml", "document", rewriteDocument<NTPParamXml>},
        {"network", "NTPParamXml", "node", rewriteText<NTPParamXml, NTPParam>},
        {"network", "NTPParamXml", "list", rewriteText<NTPParamXml, std::vector<NTPParam>>},
        // clang-format on
    };
}
