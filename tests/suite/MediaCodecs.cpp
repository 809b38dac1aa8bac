#include "tests/suite/Codecs.h"

#include "media/OSDInfoXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> mediaCodecs()
{
    return {
        // clang-format off
        {"media", "OSDInfoXml", "document", rewriteDocument<OSDInfoXml>},
        {"media", "OSDInfoXml", "node", rewriteText<OSDInfoXml, OSDInfo>},
        // clang-format on
    };
}
