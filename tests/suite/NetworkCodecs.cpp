#include "tests/suite/Codecs.h"

#include "network/IpRangeInfoXml.h"
#include "network/NTPParamXml.h"
#include "network/UploadPolicyXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> networkCodecs()
{
    return {
        // clang-format off
        {"network", "IpRangeInfoXml", "node", rewriteText<IpRangeInfoXml, IpRangeInfo>},
        {"network", "IpRangeInfoXml", "list", rewriteText<IpRangeInfoXml, std::vector<IpRangeInfo>>},
        {"network", "NTPParamXml", "document", rewriteDocument<NTPParamXml>},
        {"network", "NTPParamXml", "node", rewriteText<NTPParamXml, NTPParam>},
        {"network", "NTPParamXml", "list", rewriteText<NTPParamXml, std::vector<NTPParam>>},
        {"network", "UploadPolicyXml", "document", rewriteDocument<UploadPolicyXml>},
        {"network", "UploadPolicyXml", "node", rewriteText<UploadPolicyXml, UploadPolicy>},
        // clang-format on
    };
}
