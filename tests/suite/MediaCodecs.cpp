#include "tests/suite/Codecs.h"

#include "media/AVStreamParamXml.h"
#include "media/AudioEncodeQualityXml.h"
#include "media/OSDInfoXml.h"
#include "media/VideoEncodeQualityXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> mediaCodecs()
{
    return {
        // clang-format off
        {"media", "AVStreamParamXml", "document", rewriteDocument<AVStreamParamXml>},
        {"media", "AudioEncodeQualityXml", "document", rewriteDocument<AudioEncodeQualityXml>},
        {"media", "AudioEncodeQualityXml", "node", rewriteText<AudioEncodeQualityXml, AudioEncodeQuality>},
        {"media", "OSDInfoXml", "document", rewriteDocument<OSDInfoXml>},
        {"media", "OSDInfoXml", "node", rewriteText<OSDInfoXml, OSDInfo>},
        {"media", "VideoEncodeQualityXml", "document", rewriteDocument<VideoEncodeQualityXml>},
        {"media", "VideoEncodeQualityXml", "node", rewriteText<VideoEncodeQualityXml, VideoEncodeQuality>},
        // clang-format on
    };
}
