#include "tests/suite/Codecs.h"

#include "device/AVStreamAbilityXml.h"
#include "device/AVStreamAttributeAbilityXml.h"
#include "device/AlarmInStatisticXml.h"
#include "device/AlarmOutStatisticXml.h"
#include "device/AudioAbilityXml.h"
#include "device/AudioDecodeTypeXml.h"
#include "device/AudioEncodeTypeXml.h"
#include "device/AudioExAbilityXml.h"
#include "device/AudioInTypeXml.h"
#include "device/AudioOutTypeXml.h"
#include "device/BitrateTypeXml.h"
#include "device/BlindAbilityConfigureXml.h"
#include "device/BlindAbilityXml.h"
#include "device/BlindAbilityXmlV2.h"
#include "device/CameraAbilityXml.h"
#include "device/CameraDeviceXml.h"
#include "device/CameraExAbilityXml.h"
#include "device/CameraInfoXml.h"
#include "device/CpuStatisticXml.h"
#include "device/DeviceAbilityXml.h"
#include "device/DeviceBaseInfoListXml.h"
#include "device/DeviceBaseInfoXml.h"
#include "device/DeviceConfigureXml.h"
#include "device/DeviceExAbilityXml.h"
#include "device/DeviceImageFormatXml.h"
#include "device/DeviceMcuInfoXml.h"
#include "device/DeviceNodeInfoXml.h"
#include "device/DeviceParamXml.h"
#include "device/DevicePortXml.h"
#include "device/DeviceProductInfoXml.h"
#include "device/DeviceResetCommandV2Xml.h"
#include "device/DeviceSummaryInfoXml.h"
#include "device/DeviceTypeXml.h"
#include "device/DeviceWorkStateXml.h"
#include "device/DiskStatisticXml.h"
#include "device/EncoderAbilityXml.h"
#include "device/FileSystemAbilityXml.h"
#include "device/I3GAbilityParamXml.h"
#include "device/IPCNetworkAbilityXml.h"
#include "device/ImageFormatXml.h"
#include "device/LanguageAbilityXml.h"
#include "device/ManualRecordStatusXml.h"
#include "device/MemStatisticXml.h"
#include "device/MotionDetectionAbilityConfigureXml.h"
#include "device/MotionDetectionAbilityXml.h"
#include "device/MotionDetectionExAbilityXml.h"
#include "device/OSDFontAbilityXml.h"
#include "device/OSDFormatAbilityXml.h"
#include "device/PIRAlarmAbilityXml.h"
#include "device/PTZAbilityXml.h"
#include "device/ProtocolConfigAbilityXml.h"
#include "device/ROIAbilityXml.h"
#include "device/RecordStateXml.h"
#include "device/ResolutionXml.h"
#include "device/SensorAbilityXml.h"
#include "device/ServerParameterXml.h"
#include "device/SnapshotStatusXml.h"
#include "device/SourceResolutionAbilityXml.h"
#include "device/SourceResolutionXml.h"
#include "device/SpecialCustomXml.h"
#include "device/StreamEncodeAbilityXml.h"
#include "device/SystemServiceInfoXml.h"
#include "device/TimeZoneAbilityXml.h"
#include "device/VideoAbilityXml.h"
#include "device/VideoChannelStatisticXml.h"
#include "device/VideoEncoderAbilityXml.h"
#include "device/VideoExAbilityXml.h"
#include "device/VideoResolutionAbilityXml.h"
#include "device/VideoResolutionXml.h"
#include "device/VideoSystemXml.h"
#include "device/WifiAbilityParamXml.h"
#include "device/WorkingModeAbilityXml.h"
#include "device/ZentarDDNSAbilityXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

bool rewriteConfigure(const std::string& text, std::string& rewritten)
{
    DeviceConfigureXml codec;
    return codec.parseXmlString(text) && codec.createXmlString(rewritten);
}

bool rewriteNodeInfos(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parsed;
    SafePointer<DomainXmlNode> written(new DomainXmlNode("Parent"));
    std::vector<DeviceNodeInfo> infos;
    return DomainXmlNode::parse(text, parsed) && DeviceNodeInfoXml().parseDomainXmlNode(parsed, infos) &&
           DeviceNodeInfoXml().createDomainXmlNode(infos, written) && DomainXmlNode::toString(written, rewritten);
}

} // namespace

std::vector<CodecCase> deviceCodecs()
{
    return {
        // clang-format off
        {"device", "AVStreamAbilityXml", "document", rewriteDocument<AVStreamAbilityXml>},
        {"device", "AVStreamAbilityXml", "node", rewriteText<AVStreamAbilityXml, AVStreamAbility>},
        {"device", "AVStreamAttributeAbilityXml", "document", rewriteDocument<AVStreamAttributeAbilityXml>},
        {"device", "AVStreamAttributeAbilityXml", "node", rewriteText<AVStreamAttributeAbilityXml, AVStreamAttributeAbility>},
        {"device", "AlarmInStatisticXml", "document", rewriteDocument<AlarmInStatisticXml>},
        {"device", "AlarmOutStatisticXml", "document", rewriteDocument<AlarmOutStatisticXml>},
        {"device", "AudioAbilityXml", "document", rewriteDocument<AudioAbilityXml>},
        {"device", "AudioDecodeTypeXml", "document", rewriteDocument<AudioDecodeTypeXml>},
        {"device", "AudioEncodeTypeXml", "document", rewriteDocument<AudioEncodeTypeXml>},
        {"device", "AudioExAbilityXml", "document", rewriteDocument<AudioExAbilityXml>},
        {"device", "AudioInTypeXml", "document", rewriteDocument<AudioInTypeXml>},
        {"device", "AudioOutTypeXml", "document", rewriteDocument<AudioOutTypeXml>},
        {"device", "BitrateTypeXml", "document", rewriteDocument<BitrateTypeXml>},
        {"device", "BitrateTypeXml", "list", rewriteText<BitrateTypeXml, std::vector<BitrateType>>},
        {"device", "BlindAbilityConfigureXml", "node", rewriteText<BlindAbilityConfigureXml, BlindAbilityConfigure>},
        {"device", "BlindAbilityXml", "document", rewriteDocument<BlindAbilityXml>},
        {"device", "BlindAbilityXmlV2", "document", rewriteBackedDocument<BlindAbilityXmlV2>},
        {"device", "CameraAbilityXml", "document", rewriteDocument<CameraAbilityXml>},
        {"device", "CameraDeviceXml", "document", rewriteDocument<CameraDeviceXml>},
        {"device", "CameraDeviceXml", "node", rewriteText<CameraDeviceXml, CameraDevice>},
        {"device", "CameraDeviceXml", "list", rewriteText<CameraDeviceXml, std::vector<CameraDevice>>},
        {"device", "CameraExAbilityXml", "document", rewriteDocument<CameraExAbilityXml>},
        {"device", "CameraInfoXml", "node", rewriteText<CameraInfoXml, CameraInfo>},
        {"device", "CameraInfoXml", "list", rewriteText<CameraInfoXml, std::vector<CameraInfo>>},
        {"device", "CpuStatisticXml", "document", rewriteDocument<CpuStatisticXml>},
        {"device", "DeviceAbilityXml", "document", rewriteDocument<DeviceAbilityXml>, ""},
        {"device", "DeviceBaseInfoListXml", "document", rewriteDocument<DeviceBaseInfoListXml>},
        {"device", "DeviceBaseInfoXml", "document", rewriteDocument<DeviceBaseInfoXml>},
        {"device", "DeviceConfigureXml", "document", rewriteConfigure},
        {"device", "DeviceExAbilityXml", "document", rewriteDocument<DeviceExAbilityXml>},
        {"device", "DeviceImageFormatXml", "document", rewriteDocument<DeviceImageFormatXml>},
        {"device", "DeviceMcuInfoXml", "node", rewriteText<DeviceMcuInfoXml, DeviceMcuInfo>},
        {"device", "DeviceNodeInfoXml", "list", rewriteNodeInfos, ""},
        {"device", "DeviceParamXml", "document", rewriteDocument<DeviceParamXml>},
        {"device", "DevicePortXml", "node", rewriteText<DevicePortXml, DevicePort>},
        {"device", "DeviceProductInfoXml", "list", rewriteText<DeviceProductInfoXml, std::vector<DeviceProductInfo>>},
        {"device", "DeviceResetCommandV2Xml", "list", rewriteText<DeviceResetCommandV2Xml, std::vector<int>>},
        {"device", "DeviceSummaryInfoXml", "document", rewriteDocument<DeviceSummaryInfoXml>},
        {"device", "DeviceTypeXml", "document", rewriteDocument<DeviceTypeXml>},
        {"device", "DeviceTypeXml", "node", rewriteText<DeviceTypeXml, DeviceType>},
        {"device", "DeviceWorkStateXml", "document", rewriteDocument<DeviceWorkStateXml>},
        {"device", "DiskStatisticXml", "document", rewriteDocument<DiskStatisticXml>},
        {"device", "EncoderAbilityXml", "document", rewriteDocument<EncoderAbilityXml>},
        {"device", "FileSystemAbilityXml", "document", rewriteDocument<FileSystemAbilityXml>},
        {"device", "I3GAbilityParamXml", "document", rewriteDocument<I3GAbilityParamXml>},
        {"device", "IPCNetworkAbilityXml", "element", rewriteBackedElement<IPCNetworkAbilityXml>},
        {"device", "ImageFormatXml", "document", rewriteDocument<ImageFormatXml>},
        {"device", "LanguageAbilityXml", "document", rewriteBackedDocument<LanguageAbilityXml>},
        {"device", "ManualRecordStatusXml", "document", rewriteDocument<ManualRecordStatusXml>},
        {"device", "MemStatisticXml", "document", rewriteDocument<MemStatisticXml>},
        {"device", "MotionDetectionAbilityConfigureXml", "node", rewriteText<MotionDetectionAbilityConfigureXml, MotionDetectionAbilityConfigure>},
        {"device", "MotionDetectionAbilityXml", "document", rewriteDocument<MotionDetectionAbilityXml>},
        {"device", "MotionDetectionExAbilityXml", "document", rewriteDocument<MotionDetectionExAbilityXml>},
        {"device", "OSDFontAbilityXml", "document", rewriteBackedDocument<OSDFontAbilityXml>},
        {"device", "OSDFormatAbilityXml", "document", rewriteBackedDocument<OSDFormatAbilityXml>},
        {"device", "PIRAlarmAbilityXml", "element", rewriteBackedElement<PIRAlarmAbilityXml>},
        {"device", "PTZAbilityXml", "document", rewriteDocument<PTZAbilityXml>},
        {"device", "ProtocolConfigAbilityXml", "node", rewriteText<ProtocolConfigAbilityXml, ProtocolConfigAbility>},
        {"device", "ROIAbilityXml", "document", rewriteDocument<ROIAbilityXml>},
        {"device", "ROIAbilityXml", "node", rewriteText<ROIAbilityXml, ROIAbility>},
        {"device", "RecordStateXml", "document", rewriteDocument<RecordStateXml>},
        {"device", "ResolutionXml", "document", rewriteDocument<ResolutionXml>},
        {"device", "SensorAbilityXml", "document", rewriteBackedDocument<SensorAbilityXml>},
        {"device", "ServerParameterXml", "node", rewriteText<ServerParameterXml, ServerParameter>},
        {"device", "SnapshotStatusXml", "document", rewriteDocument<SnapshotStatusXml>},
        {"device", "SourceResolutionAbilityXml", "document", rewriteDocument<SourceResolutionAbilityXml>},
        {"device", "SourceResolutionXml", "document", rewriteDocument<SourceResolutionXml>},
        {"device", "SpecialCustomXml", "node", rewriteText<SpecialCustomXml, SpecialCustom>},
        {"device", "StreamEncodeAbilityXml", "document", rewriteDocument<StreamEncodeAbilityXml>},
        {"device", "StreamEncodeAbilityXml", "node", rewriteText<StreamEncodeAbilityXml, StreamEncodeAbility>},
        {"device", "SystemServiceInfoXml", "node", rewriteText<SystemServiceInfoXml, SystemServiceInfo>},
        {"device", "TimeZoneAbilityXml", "node", rewriteText<TimeZoneAbilityXml, TimeZoneAbility>},
        {"device", "VideoAbilityXml", "document", rewriteDocument<VideoAbilityXml>, "reread"},
        {"device", "VideoChannelStatisticXml", "document", rewriteDocument<VideoChannelStatisticXml>},
        {"device", "VideoEncoderAbilityXml", "document", rewriteDocument<VideoEncoderAbilityXml>},
        {"device", "VideoExAbilityXml", "document", rewriteDocument<VideoExAbilityXml>},
        {"device", "VideoResolutionAbilityXml", "document", rewriteDocument<VideoResolutionAbilityXml>},
        {"device", "VideoResolutionXml", "document", rewriteDocument<VideoResolutionXml>},
        {"device", "VideoResolutionXml", "node", rewriteText<VideoResolutionXml, VideoResolution>},
        {"device", "VideoSystemXml", "document", rewriteDocument<VideoSystemXml>},
        {"device", "VideoSystemXml", "node", rewriteText<VideoSystemXml, VideoSystem>},
        {"device", "VideoSystemXml", "list", rewriteText<VideoSystemXml, std::vector<VideoSystem>>},
        {"device", "WifiAbilityParamXml", "document", rewriteBackedDocument<WifiAbilityParamXml>},
        {"device", "WorkingModeAbilityXml", "element", rewriteBackedElement<WorkingModeAbilityXml>},
        {"device", "ZentarDDNSAbilityXml", "document", rewriteDocument<ZentarDDNSAbilityXml>},
        {"device", "ZentarDDNSAbilityXml", "node", rewriteText<ZentarDDNSAbilityXml, ZentarDDNSAbility>},
        // clang-format on
    };
}
