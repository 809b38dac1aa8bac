#include "tests/suite/Codecs.h"

#include "ptz/PTZProtocolXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> ptzCodecs()
{
    return {
        // clang-format off
        {"ptz", "PTZProtocolXml", "document", rewriteDocument<PTZProtocolXml>},
        {"ptz", "PTZProtocolXml", "list", rewriteText<PTZProtocolXml, std::vector<PTZProtocol>>},
        // clang-format on
    };
}
