#include "tests/suite/Codecs.h"

#include "media/AVStreamParamXml.h"
#include "media/AudioEncodeQualityXml.h"
#include "media/DeviceAVStreamParamXml.h"
#include "media/DeviceVideoEncodeQualityXml.h"
#include "media/EncodeQualityXml.h"
#include "media/OSDInfoXml.h"
#include "media/OriginalYUVConfigureXml.h"
#include "media/SVCStreamConfigureXml.h"
#include "media/SVCStreamParamXml.h"
#include "media/StreamConfigureXml.h"
#include "media/UserDefineParamItemXml.h"
#include "media/UserDefineParamXml.h"
#include "media/VideoCaptureConfigureXml.h"
#include "media/VideoEncodeQualityXml.h"
#include "media/VideoQualityXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> mediaCodecs()
{
    return {
        // clang-format off
        {"media", "AVStreamParamXml", "document", rewriteDocument<AVStreamParamXml>},
        {"media", "AudioEncodeQualityXml", "document", rewriteDocument<AudioEncodeQualityXml>},
        {"media", "AudioEncodeQualityXml", "node", rewriteText<AudioEncodeQualityXml, AudioEncodeQuality>},
        {"media", "DeviceAVStreamParamXml", "node", rewriteText<DeviceAVStreamParamXml, DeviceAVStreamParam>},
        {"media", "DeviceAVStreamParamXml", "list", rewriteText<DeviceAVStreamParamXml, std::vector<DeviceAVStreamParam>>},
        {"media", "DeviceVideoEncodeQualityXml", "node", rewriteText<DeviceVideoEncodeQualityXml, DeviceVideoEncodeQuality>},
        {"media", "DeviceVideoEncodeQualityXml", "list", rewriteText<DeviceVideoEncodeQualityXml, std::vector<DeviceVideoEncodeQuality>>},
        {"media", "EncodeQualityXml", "document", rewriteDocument<EncodeQualityXml>},
        {"media", "EncodeQualityXml", "node", rewriteText<EncodeQualityXml, EncodeQuality>},
        {"media", "EncodeQualityXml", "list", rewriteText<EncodeQualityXml, std::vector<EncodeQuality>>},
        {"media", "OSDInfoXml", "document", rewriteDocument<OSDInfoXml>},
        {"media", "OSDInfoXml", "node", rewriteText<OSDInfoXml, OSDInfo>},
        {"media", "OriginalYUVConfigureXml", "node", rewriteText<OriginalYUVConfigureXml, OriginalYUVConfigure>},
        {"media", "SVCStreamConfigureXml", "list", rewriteText<SVCStreamConfigureXml, std::vector<SVCStreamConfigure>>},
        {"media", "SVCStreamParamXml", "document", rewriteDocument<SVCStreamParamXml>},
        {"media", "StreamConfigureXml", "list", rewriteText<StreamConfigureXml, std::vector<StreamConfigure>>},
        {"media", "UserDefineParamItemXml", "document", rewriteDocument<UserDefineParamItemXml>},
        {"media", "UserDefineParamItemXml", "list", rewriteText<UserDefineParamItemXml, std::vector<UserDefineParamItem>>},
        {"media", "UserDefineParamXml", "document", rewriteDocument<UserDefineParamXml>},
        {"media", "UserDefineParamXml", "list", rewriteText<UserDefineParamXml, std::vector<UserDefineParam>>},
        {"media", "VideoCaptureConfigureXml", "node", rewriteText<VideoCaptureConfigureXml, VideoCaptureConfigure>},
        {"media", "VideoCaptureConfigureXml", "list", rewriteText<VideoCaptureConfigureXml, std::vector<VideoCaptureConfigure>>},
        {"media", "VideoEncodeQualityXml", "document", rewriteDocument<VideoEncodeQualityXml>},
        {"media", "VideoEncodeQualityXml", "node", rewriteText<VideoEncodeQualityXml, VideoEncodeQuality>},
        {"media", "VideoQualityXml", "document", rewriteDocument<VideoQualityXml>},
        // clang-format on
    };
}
