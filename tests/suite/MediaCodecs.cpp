#include "tests/suite/Codecs.h"

#include "media/AVStreamParamXml.h"
#include "media/AreaParamV2Xml.h"
#include "media/AreaParamXml.h"
#include "media/AudioEncodeQualityXml.h"
#include "media/AudioProcessInfoXml.h"
#include "media/AudioProcessParamXml.h"
#include "media/BlindAreaParamV2Xml.h"
#include "media/BlindAreaParamXml.h"
#include "media/CameraConfigureExXml.h"
#include "media/DeviceAVStreamParamXml.h"
#include "media/DeviceOSDInfoXml.h"
#include "media/DeviceROIInfoParamXml.h"
#include "media/DeviceVideoEncodeQualityXml.h"
#include "media/EncodeQualityXml.h"
#include "media/LoudhailerParamXml.h"
#include "media/MosaicParamXml.h"
#include "media/OSDInfoExXml.h"
#include "media/OSDInfoXml.h"
#include "media/OSDPrintTimeXml.h"
#include "media/OriginalYUVConfigureXml.h"
#include "media/ROIConfigureXml.h"
#include "media/ROIInfoParamXml.h"
#include "media/SVCStreamConfigureXml.h"
#include "media/SVCStreamParamXml.h"
#include "media/StreamConfigureXml.h"
#include "media/ToneArmParamXml.h"
#include "media/UserDefineParamItemXml.h"
#include "media/UserDefineParamXml.h"
#include "media/VideoCaptureConfigureXml.h"
#include "media/VideoEncodeQualityXml.h"
#include "media/VideoOSDFontXml.h"
#include "media/VideoOSDInfoExXml.h"
#include "media/VideoQualityXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

/// Node form of a codec that has no texts of its own.
bool rewriteAudioProcessParam(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parsed;
    AudioProcessParam param;
    if (!DomainXmlNode::parse(text, parsed) || !AudioProcessParamXml().parseDomainXmlNode(parsed, param)) return false;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("ProcessParam"));
    return AudioProcessParamXml().createDomainXmlNode(param, node) && DomainXmlNode::toString(node, rewritten);
}

} // namespace

std::vector<CodecCase> mediaCodecs()
{
    return {
        // clang-format off
        {"media", "AVStreamParamXml", "document", rewriteDocument<AVStreamParamXml>},
        {"media", "AreaParamV2Xml", "node", rewriteText<AreaParamV2Xml, AreaParamV2>},
        {"media", "AreaParamXml", "document", rewriteDocument<AreaParamXml>},
        {"media", "AreaParamXml", "node", rewriteText<AreaParamXml, AreaParam>},
        {"media", "AudioEncodeQualityXml", "document", rewriteDocument<AudioEncodeQualityXml>},
        {"media", "AudioEncodeQualityXml", "node", rewriteText<AudioEncodeQualityXml, AudioEncodeQuality>},
        {"media", "AudioProcessInfoXml", "list", rewriteText<AudioProcessInfoXml, std::vector<AudioProcessInfo>>},
        {"media", "AudioProcessParamXml", "element", rewriteAudioProcessParam},
        {"media", "BlindAreaParamV2Xml", "list", rewriteText<BlindAreaParamV2Xml, std::vector<BlindAreaParamV2>>},
        {"media", "BlindAreaParamXml", "document", rewriteDocument<BlindAreaParamXml>},
        {"media", "BlindAreaParamXml", "node", rewriteText<BlindAreaParamXml, BlindAreaParam>},
        {"media", "BlindAreaParamXml", "list", rewriteText<BlindAreaParamXml, std::vector<BlindAreaParam>>},
        {"media", "CameraConfigureExXml", "node", rewriteText<CameraConfigureExXml, CameraConfigureEx>},
        {"media", "DeviceAVStreamParamXml", "node", rewriteText<DeviceAVStreamParamXml, DeviceAVStreamParam>},
        {"media", "DeviceAVStreamParamXml", "list", rewriteText<DeviceAVStreamParamXml, std::vector<DeviceAVStreamParam>>},
        {"media", "DeviceOSDInfoXml", "node", rewriteText<DeviceOSDInfoXml, DeviceOSDInfo>},
        {"media", "DeviceROIInfoParamXml", "node", rewriteText<DeviceROIInfoParamXml, DeviceROIInfoParam>},
        {"media", "DeviceROIInfoParamXml", "list", rewriteText<DeviceROIInfoParamXml, std::vector<DeviceROIInfoParam>>},
        {"media", "DeviceVideoEncodeQualityXml", "node", rewriteText<DeviceVideoEncodeQualityXml, DeviceVideoEncodeQuality>},
        {"media", "DeviceVideoEncodeQualityXml", "list", rewriteText<DeviceVideoEncodeQualityXml, std::vector<DeviceVideoEncodeQuality>>},
        {"media", "EncodeQualityXml", "document", rewriteDocument<EncodeQualityXml>},
        {"media", "EncodeQualityXml", "node", rewriteText<EncodeQualityXml, EncodeQuality>},
        {"media", "EncodeQualityXml", "list", rewriteText<EncodeQualityXml, std::vector<EncodeQuality>>},
        {"media", "LoudhailerParamXml", "document", rewriteDocument<LoudhailerParamXml>},
        {"media", "LoudhailerParamXml", "node", rewriteText<LoudhailerParamXml, LoudhailerParam>},
        {"media", "LoudhailerParamXml", "list", rewriteText<LoudhailerParamXml, std::vector<LoudhailerParam>>},
        {"media", "MosaicParamXml", "document", rewriteDocument<MosaicParamXml>},
        {"media", "MosaicParamXml", "node", rewriteText<MosaicParamXml, MosaicParam>},
        {"media", "MosaicParamXml", "list", rewriteText<MosaicParamXml, std::vector<MosaicParam>>},
        {"media", "OSDInfoExXml", "document", rewriteDocument<OSDInfoExXml>},
        {"media", "OSDInfoExXml", "node", rewriteText<OSDInfoExXml, OSDInfoEx>},
        {"media", "OSDInfoXml", "document", rewriteDocument<OSDInfoXml>},
        {"media", "OSDInfoXml", "node", rewriteText<OSDInfoXml, OSDInfo>},
        {"media", "OSDPrintTimeXml", "node", rewriteText<OSDPrintTimeXml, OSDPrintTime>},
        {"media", "OriginalYUVConfigureXml", "node", rewriteText<OriginalYUVConfigureXml, OriginalYUVConfigure>},
        {"media", "ROIConfigureXml", "list", rewriteText<ROIConfigureXml, std::vector<ROIConfigure>>},
        {"media", "ROIInfoParamXml", "node", rewriteText<ROIInfoParamXml, ROIInfoParam>},
        {"media", "ROIInfoParamXml", "list", rewriteText<ROIInfoParamXml, std::vector<ROIInfoParam>>},
        {"media", "SVCStreamConfigureXml", "list", rewriteText<SVCStreamConfigureXml, std::vector<SVCStreamConfigure>>},
        {"media", "SVCStreamParamXml", "document", rewriteDocument<SVCStreamParamXml>},
        {"media", "StreamConfigureXml", "list", rewriteText<StreamConfigureXml, std::vector<StreamConfigure>>},
        {"media", "ToneArmParamXml", "document", rewriteDocument<ToneArmParamXml>},
        {"media", "ToneArmParamXml", "node", rewriteText<ToneArmParamXml, ToneArmParam>},
        {"media", "ToneArmParamXml", "list", rewriteText<ToneArmParamXml, std::vector<ToneArmParam>>},
        {"media", "UserDefineParamItemXml", "document", rewriteDocument<UserDefineParamItemXml>},
        {"media", "UserDefineParamItemXml", "list", rewriteText<UserDefineParamItemXml, std::vector<UserDefineParamItem>>},
        {"media", "UserDefineParamXml", "document", rewriteDocument<UserDefineParamXml>},
        {"media", "UserDefineParamXml", "list", rewriteText<UserDefineParamXml, std::vector<UserDefineParam>>},
        {"media", "VideoCaptureConfigureXml", "node", rewriteText<VideoCaptureConfigureXml, VideoCaptureConfigure>},
        {"media", "VideoCaptureConfigureXml", "list", rewriteText<VideoCaptureConfigureXml, std::vector<VideoCaptureConfigure>>},
        {"media", "VideoEncodeQualityXml", "document", rewriteDocument<VideoEncodeQualityXml>},
        {"media", "VideoEncodeQualityXml", "node", rewriteText<VideoEncodeQualityXml, VideoEncodeQuality>},
        {"media", "VideoOSDFontXml", "list", rewriteText<VideoOSDFontXml, std::vector<VideoOSDFont>>},
        {"media", "VideoOSDInfoExXml", "document", rewriteDocument<VideoOSDInfoExXml>},
        {"media", "VideoOSDInfoExXml", "list", rewriteText<VideoOSDInfoExXml, std::vector<VideoOSDInfoEx>>},
        {"media", "VideoQualityXml", "document", rewriteDocument<VideoQualityXml>},
        // clang-format on
    };
}
