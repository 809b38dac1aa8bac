#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "device/DeviceExAbilityXml.h"

#include <cstring>
#include <utility>
#include <vector>

namespace
{

VideoResolution makeResolution(int height, int width, const char* name)
{
    VideoResolution resolution;
    resolution.setVideoHeight(height);
    resolution.setVideoWidth(width);
    resolution.setResolutionName(name);
    return resolution;
}

std::vector<VideoResolution> makeResolutions()
{
    return {makeResolution(1080, 1920, "1080P"), makeResolution(720, 1280, "720P"), makeResolution(576, 704, "4CIF")};
}

PTZAbility makePTZ()
{
    PTZAbility ability;
    ability.setInternalPTZFlag(true);
    ability.setThreeDimensionalPositioningFlag(true);
    ability.setMaxPresetCount(255);
    ability.setMaxScanCount(4);
    ability.setMaxAutoStudyCount(4);
    ability.setMaxTourCount(8);
    ability.setBrushFlag(true);
    ability.setLightFlag(true);
    ability.setInfraredFlag(true);
    for (int id = 1; id <= 4; ++id)
    {
        PTZProtocol protocol;
        protocol.setProtocolId(id);
        protocol.setProtocolName("Serial protocol " + std::to_string(id));
        ability.getPTZProtocolList().push_back(protocol);
    }
    return ability;
}

AVStreamAbility makeStream(int id)
{
    AVStreamAbility stream;
    stream.setStreamId(id);
    stream.setSupportROI(true);
    for (int type = 1; type <= 2; ++type)
    {
        StreamEncodeAbility encoding;
        encoding.setEncoderType(type);
        encoding.setVideoResolutionList(makeResolutions());
        stream.getStreamEncodeAbilityList().push_back(encoding);
    }
    stream.getAVStreamAttributeAbility().setStreamMode(2);
    stream.getAVStreamAttributeAbility().setFrameSkipIntervalList({1, 2, 4});
    stream.getAVStreamAttributeAbility().setSVCStreamIDList({1, 2});
    stream.getROIAbility().setROIMaxNum(8);
    stream.getROIAbility().setROIMaxScale(50);
    stream.getROIAbility().setROIMaxLevel(3);
    stream.getROIAbility().setLevelQPMap({{1, -3}, {2, -6}, {3, -9}});
    return stream;
}

CameraExAbility makeCamera(int id)
{
    CameraExAbility camera;
    camera.setCameraId(id);
    camera.setMaxVideoResolution(makeResolution(1080, 1920, "1080P"));
    camera.getBlindAbility().setMaxBlindAreaNum(4);
    camera.getBlindAbility().setBlindArea(100);
    camera.getBlindAbility().setBlindType(1);
    camera.setSourceResolutionList(makeResolutions());
    camera.setVideoResolutionList(makeResolutions());
    camera.setAVStreamAbilityList({makeStream(1), makeStream(2)});

    MotionDetectionExAbility& detection = camera.getMotionDetectionExAbility();
    detection.setMaxSensitivity(100);
    detection.setMinSensitivity(1);
    detection.setDefualSensitivity(60);
    detection.setDefualWidthCellNumber(22);
    detection.setDefualHighCellNumber(18);
    detection.setMaxWidthCellNumber(44);
    detection.setMinWidthCellNumber(11);
    detection.setMaxHighCellNumber(36);
    detection.setMinHighCellNumber(9);
    return camera;
}

VideoEncoderAbility makeEncoder(int type, const char* name)
{
    VideoEncoderAbility encoder;
    encoder.setEncoderType(type);
    encoder.setEncoderName(name);
    encoder.setVideoEncodeTotleAbility(16);
    for (const VideoResolution& resolution : makeResolutions())
    {
        VideoResolutionAbility ability;
        ability.setMaxFrameRate(30);
        ability.setMinFrameRate(1);
        ability.setMaxBitRate(8192);
        ability.setMinBitRate(64);
        ability.setMaxQuality(9);
        ability.setMinQuality(1);
        ability.setMaxIFrameInterval(100);
        ability.setMinIFrameInterval(10);
        ability.setIFrameIntervalUnit(2);
        ability.setBitRateTypeList({1, 2});
        ability.setVideoResolution(resolution);
        encoder.getVideoResolutionAbilityList().push_back(ability);
    }
    return encoder;
}

VideoSystem makeSystem(int id, const char* name)
{
    VideoSystem system;
    system.setVideoSystemId(id);
    system.setVideoSystemName(name);
    return system;
}

VideoExAbility makeVideo(int cameras)
{
    VideoExAbility ability;
    ability.setVideoSystemConfigurableFlag(true);
    for (int id = 1; id <= cameras; ++id)
        ability.getCameraExAbilityList().push_back(makeCamera(id));
    ability.setVideoEncoderAbilityList({makeEncoder(1, "H.264"), makeEncoder(2, "MJPEG")});
    ability.setVideoSystemList({makeSystem(1, "PAL"), makeSystem(2, "NTSC")});
    for (const VideoSystem& system : ability.getVideoSystemList())
    {
        SourceResolutionAbility source;
        source.setVideoSystem(system);
        source.setSourceResolutionList(makeResolutions());
        ability.getSourceResolutionAbilityList().push_back(source);
    }
    ability.getVideoOutAbility().setVideoOutConfigurable(true);
    ability.getVideoOutAbility().setIsSupportVideoOut(true);
    return ability;
}

AudioExAbility makeAudio()
{
    AudioExAbility ability;
    ability.setInterPhoneFlag(true);
    ability.setAudioInFlag(true);
    ability.setAudioOutFlag(true);
    for (int id = 1; id <= 2; ++id)
    {
        const std::string number = std::to_string(id);
        AudioInType input;
        input.setAudioInTypeId(id);
        input.setAudioInTypeName("Line in " + number);
        ability.getAudioInTypeList().push_back(input);

        AudioOutType output;
        output.setAudioOutTypeId(id);
        output.setAudioOutTypeName("Line out " + number);
        ability.getAudioOutTypeList().push_back(output);

        AudioEncodeType encoding;
        encoding.setAudioEncodeTypeId(id);
        encoding.setAudioEncodeTypeName("G.711, law " + number);
        ability.getAudioEncodeTypeList().push_back(encoding);

        AudioDecodeType decoding;
        decoding.setAudioDecodeTypeId(id);
        decoding.setAudioDecodeTypeName("G.711, law " + number);
        ability.getAudioDecodeTypeList().push_back(decoding);
    }
    return ability;
}

FileSystemAbility makeFileSystems(int diskType)
{
    FileSystemAbility ability;
    ability.setDiskType(diskType);
    for (int id = 1; id <= 2; ++id)
    {
        FileSystem system;
        system.setFileSystemType(id);
        system.setFileSystemName("ext" + std::to_string(id + 2));
        ability.getFileSystemList().push_back(system);

        DiskAttributeEx attribute;
        attribute.setDiskAttribute(id);
        attribute.setAttributeName("Storage class " + std::to_string(id));
        ability.getDiskAttributeList().push_back(attribute);
    }
    return ability;
}

DeviceExAbility makeAbility(int cameras)
{
    DeviceExAbility ability;
    ability.setPTZAbility(makePTZ());
    ability.setVideoExAbility(makeVideo(cameras));
    ability.setAudioExAbility(makeAudio());
    ability.setFileSystemAbilityList({makeFileSystems(1), makeFileSystems(2)});
    for (int id = 1; id <= 2; ++id)
    {
        const std::string number = std::to_string(id);
        WorkingMode mode;
        mode.setModeID(id);
        mode.setModeName("Scene mode " + number);
        ability.getWorkingModeAbility().push_back(mode);

        LanguageType language;
        language.setLanguageID(id);
        language.setLanguageName("Language " + number);
        ability.getLanguageAbility().push_back(language);

        IPCNetworkCardAbility card;
        card.setNetWorkCardId(id);
        card.setNetWorkCardName("eth" + number);
        card.setDescription("Socket " + number + " on the back");
        card.setSupportAlarm(true);
        ability.getNetworkAbility().push_back(card);
    }
    ability.getPIRAlarmAbility().setPIRAlarmSupportFlag(true);
    ability.getWifiAbilityParam().setSupportFlag(true);
    ability.getWifiAbilityParam().setWifiDeviceName("wlan0");
    return ability;
}

/// Appends an element of two attributes, a number and its name.
void appendFloorEntry(TiXmlElement& list, const char* item, const char* idName, int id, const char* nameName,
                      const std::string& name)
{
    TiXmlElement& element = bare::appendElement(list, item);
    element.SetAttribute(idName, id);
    element.SetAttribute(nameName, name.c_str());
}

void appendFloorInt(TiXmlElement& parent, const char* child, int value)
{
    bare::appendElement(parent, child).SetAttribute("value", value);
}

void appendFloorInts(TiXmlElement& parent, const char* container, const char* item, const std::vector<int>& values)
{
    TiXmlElement& list = bare::appendElement(parent, container);
    for (const int value : values)
        appendFloorInt(list, item, value);
}

void writeFloorPTZ(TiXmlElement& parent, const PTZAbility& ability)
{
    TiXmlElement& element = bare::appendElement(parent, "PTZAbility");
    bare::setFlag(element, "InternalPTZFlag", ability.getInternalPTZFlag());
    bare::setFlag(element, "ThreeDimensionalPositioningFlag", ability.getThreeDimensionalPositioningFlag());
    element.SetAttribute("MaxPresetCount", ability.getMaxPresetCount());
    element.SetAttribute("MaxScanCount", ability.getMaxScanCount());
    element.SetAttribute("MaxAutoStudyCount", ability.getMaxAutoStudyCount());
    element.SetAttribute("MaxTourCount", ability.getMaxTourCount());
    bare::setFlag(element, "BrushFlag", ability.getBrushFlag());
    bare::setFlag(element, "LightFlag", ability.getLightFlag());
    bare::setFlag(element, "InfraredFlag", ability.getInfraredFlag());

    TiXmlElement& protocols = bare::appendElement(element, "PTZProtocolList");
    for (const PTZProtocol& protocol : ability.getPTZProtocolList())
    {
        appendFloorEntry(protocols, "PTZProtocol", "ProtocolId", protocol.getProtocolId(), "ProtocolName",
                         protocol.getProtocolName());
    }
}

void writeFloorResolution(TiXmlElement& parent, const VideoResolution& resolution)
{
    TiXmlElement& element = bare::appendElement(parent, "VideoResolution");
    element.SetAttribute("VideoHeight", resolution.getVideoHeight());
    element.SetAttribute("VideoWidth", resolution.getVideoWidth());
    element.SetAttribute("ResolutionName", resolution.getResolutionName().c_str());
}

void writeFloorResolutions(TiXmlElement& parent, const char* container, const std::vector<VideoResolution>& resolutions)
{
    TiXmlElement& list = bare::appendElement(parent, container);
    for (const VideoResolution& resolution : resolutions)
        writeFloorResolution(list, resolution);
}

void writeFloorStream(TiXmlElement& parent, const AVStreamAbility& stream)
{
    TiXmlElement& element = bare::appendElement(parent, "AVStreamAbility");
    TiXmlElement& encodings = bare::appendElement(element, "StreamEncodeAbilityList");
    for (const StreamEncodeAbility& encoding : stream.getStreamEncodeAbilityList())
    {
        TiXmlElement& item = bare::appendElement(encodings, "StreamEncodeAbility");
        writeFloorResolutions(item, "VideoResolutionList", encoding.getVideoResolutionList());
        appendFloorInt(item, "EncoderType", encoding.getEncoderType());
    }

    appendFloorInt(element, "StreamId", stream.getStreamId());

    const AVStreamAttributeAbility& attribute = stream.getAVStreamAttributeAbility();
    TiXmlElement& attributeChild = bare::appendElement(element, "AVStreamAttributeAbility");
    appendFloorInt(attributeChild, "StreamMode", attribute.getStreamMode());
    appendFloorInts(attributeChild, "FrameSkipIntervalList", "FrameSkipInterval", attribute.getFrameSkipIntervalList());
    appendFloorInts(attributeChild, "SVCStreamIDList", "SVCStreamID", attribute.getSVCStreamIDList());

    bare::setFlag(bare::appendElement(element, "SupportROI"), "value", stream.getSupportROI());

    const ROIAbility& regions = stream.getROIAbility();
    TiXmlElement& regionsChild = bare::appendElement(element, "ROIAbility");
    regionsChild.SetAttribute("ROIMaxNum", regions.getROIMaxNum());
    regionsChild.SetAttribute("ROIMaxScale", regions.getROIMaxScale());
    regionsChild.SetAttribute("ROIMaxLevel", regions.getROIMaxLevel());
    for (const auto& entry : regions.getLevelQPMap())
    {
        TiXmlElement& item = bare::appendElement(regionsChild, "LevelQPMap");
        item.SetAttribute("Level", entry.first);
        item.SetAttribute("QP", entry.second);
    }
}

void writeFloorCamera(TiXmlElement& list, const CameraExAbility& camera)
{
    TiXmlElement& element = bare::appendElement(list, "CameraExAbility");
    writeFloorResolution(element, camera.getMaxVideoResolution());

    TiXmlElement& blind = bare::appendElement(element, "BlindAbility");
    blind.SetAttribute("maxBlindAreaNum", camera.getBlindAbility().getMaxBlindAreaNum());
    blind.SetAttribute("blindArea", camera.getBlindAbility().getBlindArea());
    blind.SetAttribute("type", camera.getBlindAbility().getBlindType());

    writeFloorResolutions(element, "SourceResolutionList", camera.getSourceResolutionList());
    writeFloorResolutions(element, "VideoResolutionList", camera.getVideoResolutionList());

    TiXmlElement& streams = bare::appendElement(element, "AVStreamAbilityList");
    for (const AVStreamAbility& stream : camera.getAVStreamAbilityList())
        writeFloorStream(streams, stream);

    const MotionDetectionExAbility& detection = camera.getMotionDetectionExAbility();
    TiXmlElement& detectionChild = bare::appendElement(element, "MotionDetectionExAbility");
    detectionChild.SetAttribute("MaxSensitivity", detection.getMaxSensitivity());
    detectionChild.SetAttribute("MinSensitivity", detection.getMinSensitivity());
    detectionChild.SetAttribute("DefualSensitivity", detection.getDefualSensitivity());
    detectionChild.SetAttribute("DefualWidthCellNumber", detection.getDefualWidthCellNumber());
    detectionChild.SetAttribute("DefualHighCellNumber", detection.getDefualHighCellNumber());
    detectionChild.SetAttribute("MaxWidthCellNumber", detection.getMaxWidthCellNumber());
    detectionChild.SetAttribute("MinWidthCellNumber", detection.getMinWidthCellNumber());
    detectionChild.SetAttribute("MaxHighCellNumber", detection.getMaxHighCellNumber());
    detectionChild.SetAttribute("MinHighCellNumber", detection.getMinHighCellNumber());

    appendFloorInt(element, "CameraId", camera.getCameraId());
}

void writeFloorEncoder(TiXmlElement& list, const VideoEncoderAbility& encoder)
{
    TiXmlElement& element = bare::appendElement(list, "VideoEncoderAbility");
    element.SetAttribute("VideoEncoderType", encoder.getEncoderType());
    element.SetAttribute("VideoEncoderName", encoder.getEncoderName().c_str());
    element.SetAttribute("VideoEncodeTotleAbility", encoder.getVideoEncodeTotleAbility());

    TiXmlElement& resolutions = bare::appendElement(element, "VideoResolutionAbilityList");
    for (const VideoResolutionAbility& ability : encoder.getVideoResolutionAbilityList())
    {
        TiXmlElement& item = bare::appendElement(resolutions, "VideoResolutionAbility");
        item.SetAttribute("MaxFrameRate", ability.getMaxFrameRate());
        item.SetAttribute("MinFrameRate", ability.getMinFrameRate());
        item.SetAttribute("MaxBitRate", ability.getMaxBitRate());
        item.SetAttribute("MinBitRate", ability.getMinBitRate());
        item.SetAttribute("MaxQuality", ability.getMaxQuality());
        item.SetAttribute("MinQuality", ability.getMinQuality());
        item.SetAttribute("MaxIFrameInterval", ability.getMaxIFrameInterval());
        item.SetAttribute("MinIFrameInterval", ability.getMinIFrameInterval());
        item.SetAttribute("IFrameIntervalUnit", ability.getIFrameIntervalUnit());
        appendFloorInts(item, "BitRateTypeList", "BitRateType", ability.getBitRateTypeList());
        writeFloorResolution(item, ability.getVideoResolution());
    }
}

void writeFloorSystem(TiXmlElement& parent, const VideoSystem& system)
{
    appendFloorEntry(parent, "VideoSystem", "VideoSystemId", system.getVideoSystemId(), "VideoSystemName",
                     system.getVideoSystemName());
}

void writeFloorVideo(TiXmlElement& parent, const VideoExAbility& ability)
{
    TiXmlElement& element = bare::appendElement(parent, "VideoExAbility");
    bare::setFlag(element, "VideoSystemConfigurableFlag", ability.getVideoSystemConfigurableFlag());

    TiXmlElement& cameras = bare::appendElement(element, "CameraExAbilityList");
    for (const CameraExAbility& camera : ability.getCameraExAbilityList())
        writeFloorCamera(cameras, camera);

    TiXmlElement& encoders = bare::appendElement(element, "VideoEncoderAbilityList");
    for (const VideoEncoderAbility& encoder : ability.getVideoEncoderAbilityList())
        writeFloorEncoder(encoders, encoder);

    TiXmlElement& systems = bare::appendElement(element, "VideoSystemList");
    for (const VideoSystem& system : ability.getVideoSystemList())
        writeFloorSystem(systems, system);

    TiXmlElement& sources = bare::appendElement(element, "SourceResolutionAbilityList");
    for (const SourceResolutionAbility& source : ability.getSourceResolutionAbilityList())
    {
        TiXmlElement& item = bare::appendElement(sources, "SourceResolutionAbility");
        writeFloorSystem(item, source.getVideoSystem());
        writeFloorResolutions(item, "VideoResolutionList", source.getSourceResolutionList());
    }

    TiXmlElement& output = bare::appendElement(element, "VideoOutAbility");
    bare::setFlag(output, "userConfigurable", ability.getVideoOutAbility().getVideoOutConfigurable());
    bare::setFlag(output, "IsSupportVideoOut", ability.getVideoOutAbility().getIsSupportVideoOut());
}

void writeFloorAudio(TiXmlElement& parent, const AudioExAbility& ability)
{
    TiXmlElement& element = bare::appendElement(parent, "AudioExAbility");
    bare::setFlag(bare::appendElement(element, "InterPhoneFlag"), "Value", ability.getInterPhoneFlag());
    bare::setFlag(bare::appendElement(element, "AudioInFlag"), "Value", ability.getAudioInFlag());

    TiXmlElement& inputs = bare::appendElement(element, "AudioInTypeList");
    for (const AudioInType& type : ability.getAudioInTypeList())
    {
        appendFloorEntry(inputs, "AudioInType", "AudioInTypeId", type.getAudioInTypeId(), "AudioInTypeName",
                         type.getAudioInTypeName());
    }

    bare::setFlag(bare::appendElement(element, "AudioOutFlag"), "Value", ability.getAudioOutFlag());

    TiXmlElement& outputs = bare::appendElement(element, "AudioOutTypeList");
    for (const AudioOutType& type : ability.getAudioOutTypeList())
    {
        appendFloorEntry(outputs, "AudioOutType", "AudioOutTypeId", type.getAudioOutTypeId(), "AudioOutTypeName",
                         type.getAudioOutTypeName());
    }

    TiXmlElement& encodings = bare::appendElement(element, "AudioEncodeTypeList");
    for (const AudioEncodeType& type : ability.getAudioEncodeTypeList())
    {
        appendFloorEntry(encodings, "AudioEncodeType", "AudioEncodeTypeId", type.getAudioEncodeTypeId(),
                         "AudioEncodeTypeName", type.getAudioEncodeTypeName());
    }

    TiXmlElement& decodings = bare::appendElement(element, "AudioDecodeTypeList");
    for (const AudioDecodeType& type : ability.getAudioDecodeTypeList())
    {
        appendFloorEntry(decodings, "AudioDecodeType", "AudioDecodeTypeId", type.getAudioDecodeTypeId(),
                         "AudioDecodeTypeName", type.getAudioDecodeTypeName());
    }
}

void writeFloorFileSystems(TiXmlElement& parent, const std::vector<FileSystemAbility>& abilities)
{
    TiXmlElement& element = bare::appendElement(parent, "FileSystemAbilityList");
    for (const FileSystemAbility& ability : abilities)
    {
        TiXmlElement& item = bare::appendElement(element, "FileSystemAbility");
        item.SetAttribute("DiskType", ability.getDiskType());
        for (const FileSystem& system : ability.getFileSystemList())
        {
            appendFloorEntry(item, "FileSystem", "FileSystemType", system.getFileSystemType(), "FileSystemName",
                             system.getFileSystemName());
        }
        for (const DiskAttributeEx& attribute : ability.getDiskAttributeList())
        {
            appendFloorEntry(item, "DiskAttribute", "DiskAttributeType", attribute.getDiskAttribute(),
                             "DiskAttributeName", attribute.getAttributeName());
        }
    }
}

/// Modes, languages, network cards, infrared and wireless: each in a container within its element.
void writeFloorOthers(TiXmlElement& element, const DeviceExAbility& ability)
{
    TiXmlElement& modes = bare::appendElement(bare::appendElement(element, "WorkingModeAbility"), "WorkingModeList");
    for (const WorkingMode& mode : ability.getWorkingModeAbility())
        appendFloorEntry(modes, "WorkingMode", "ModeID", mode.getModeID(), "ModeName", mode.getModeName());

    TiXmlElement& languages = bare::appendElement(bare::appendElement(element, "LanguageAbility"), "LanguageTypeList");
    for (const LanguageType& language : ability.getLanguageAbility())
    {
        appendFloorEntry(languages, "LanguageType", "LanguageID", language.getLanguageID(), "LanguageName",
                         language.getLanguageName());
    }

    TiXmlElement& cards = bare::appendElement(bare::appendElement(element, "NetworkAbility"), "NetworkAbilityList");
    for (const IPCNetworkCardAbility& card : ability.getNetworkAbility())
    {
        TiXmlElement& item = bare::appendElement(cards, "NetworkCardAbility");
        item.SetAttribute("NetWorkCardId", card.getNetWorkCardId());
        item.SetAttribute("NetWorkCardName", card.getNetWorkCardName().c_str());
        item.SetAttribute("Description", card.getDescription().c_str());
        bare::setFlag(item, "SupportAlarm", card.getSupportAlarm());
    }

    TiXmlElement& infrared =
        bare::appendElement(bare::appendElement(element, "PIRAlarmAbility"), "PIRAlarmAbilityItem");
    bare::setFlag(infrared, "PIRAlarmAbilitySupportFlag", ability.getPIRAlarmAbility().getPIRAlarmSupportFlag());

    TiXmlElement& wifi = bare::appendElement(bare::appendElement(element, "WifiAbilityParam"), "WifiAbilityParamItem");
    bare::setFlag(wifi, "SupportFlag", ability.getWifiAbilityParam().getSupportFlag());
    wifi.SetAttribute("DeviceName", ability.getWifiAbilityParam().getWifiDeviceName().c_str());
}

/// The number that a child holds.
int floorIntOf(const TiXmlElement& parent, const char* child)
{
    const TiXmlElement* element = parent.FirstChildElement(child);
    return element != nullptr ? bare::intOf(*element, "value", 0) : 0;
}

/// The flag that a child holds.
bool floorFlagOf(const TiXmlElement& parent, const char* child)
{
    const TiXmlElement* element = parent.FirstChildElement(child);
    return element != nullptr && bare::flagOf(*element, "Value");
}

void readFloorInts(const TiXmlElement& parent, const char* container, const char* item, std::vector<int>& values)
{
    const TiXmlElement* element = bare::firstItem(parent, container, item);
    for (; element != nullptr; element = element->NextSiblingElement())
        values.push_back(bare::intOf(*element, "value", 0));
}

void readFloorPTZ(const TiXmlElement& element, PTZAbility& ability)
{
    ability.setInternalPTZFlag(bare::flagOf(element, "InternalPTZFlag"));
    ability.setThreeDimensionalPositioningFlag(bare::flagOf(element, "ThreeDimensionalPositioningFlag"));
    ability.setMaxPresetCount(bare::intOf(element, "MaxPresetCount", 0));
    ability.setMaxScanCount(bare::intOf(element, "MaxScanCount", 0));
    ability.setMaxAutoStudyCount(bare::intOf(element, "MaxAutoStudyCount", 0));
    ability.setMaxTourCount(bare::intOf(element, "MaxTourCount", 0));
    ability.setBrushFlag(bare::flagOf(element, "BrushFlag"));
    ability.setLightFlag(bare::flagOf(element, "LightFlag"));
    ability.setInfraredFlag(bare::flagOf(element, "InfraredFlag"));

    const TiXmlElement* item = bare::firstItem(element, "PTZProtocolList", "PTZProtocol");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PTZProtocol protocol;
        protocol.setProtocolId(bare::intOf(*item, "ProtocolId", 0));
        protocol.setProtocolName(bare::textOf(*item, "ProtocolName"));
        ability.getPTZProtocolList().push_back(std::move(protocol));
    }
}

void readFloorResolution(const TiXmlElement& element, VideoResolution& resolution)
{
    resolution.setVideoHeight(bare::intOf(element, "VideoHeight", 0));
    resolution.setVideoWidth(bare::intOf(element, "VideoWidth", 0));
    resolution.setResolutionName(bare::textOf(element, "ResolutionName"));
}

void readFloorResolutions(const TiXmlElement& parent, const char* container, std::vector<VideoResolution>& resolutions)
{
    const TiXmlElement* item = bare::firstItem(parent, container, "VideoResolution");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoResolution resolution;
        readFloorResolution(*item, resolution);
        resolutions.push_back(std::move(resolution));
    }
}

void readFloorRegions(const TiXmlElement& element, ROIAbility& regions)
{
    regions.setROIMaxNum(bare::intOf(element, "ROIMaxNum", 0));
    regions.setROIMaxScale(bare::intOf(element, "ROIMaxScale", 0));
    regions.setROIMaxLevel(bare::intOf(element, "ROIMaxLevel", 0));

    const TiXmlElement* item = element.FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
        regions.getLevelQPMap()[bare::intOf(*item, "Level", 0)] = bare::intOf(*item, "QP", 0);
}

/// Takes the two records by their place, as the library does.
void readFloorStream(const TiXmlElement& element, AVStreamAbility& stream)
{
    const TiXmlElement* item = bare::firstItem(element, "StreamEncodeAbilityList", "StreamEncodeAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        StreamEncodeAbility encoding;
        readFloorResolutions(*item, "VideoResolutionList", encoding.getVideoResolutionList());
        encoding.setEncoderType(floorIntOf(*item, "EncoderType"));
        stream.getStreamEncodeAbilityList().push_back(std::move(encoding));
    }

    const TiXmlElement* id = element.FirstChildElement("StreamId");
    if (id != nullptr) stream.setStreamId(bare::intOf(*id, "value", 0));

    AVStreamAttributeAbility& attribute = stream.getAVStreamAttributeAbility();
    const TiXmlElement* child = id != nullptr ? id->NextSiblingElement() : nullptr;
    if (child != nullptr)
    {
        attribute.setStreamMode(floorIntOf(*child, "StreamMode"));
        readFloorInts(*child, "FrameSkipIntervalList", "FrameSkipInterval", attribute.getFrameSkipIntervalList());
        readFloorInts(*child, "SVCStreamIDList", "SVCStreamID", attribute.getSVCStreamIDList());
    }
    else
    {
        attribute.setStreamMode(1);
    }

    const TiXmlElement* support = element.FirstChildElement("SupportROI");
    if (support == nullptr) return;
    stream.setSupportROI(std::strcmp(bare::textOf(*support, "value"), "true") == 0);

    child = support->NextSiblingElement();
    if (child != nullptr) readFloorRegions(*child, stream.getROIAbility());
}

void readFloorDetection(const TiXmlElement& element, MotionDetectionExAbility& detection)
{
    detection.setMaxSensitivity(bare::intOf(element, "MaxSensitivity", 0));
    detection.setMinSensitivity(bare::intOf(element, "MinSensitivity", 0));
    detection.setDefualSensitivity(bare::intOf(element, "DefualSensitivity", 0));
    detection.setDefualWidthCellNumber(bare::intOf(element, "DefualWidthCellNumber", 0));
    detection.setDefualHighCellNumber(bare::intOf(element, "DefualHighCellNumber", 0));
    detection.setMaxWidthCellNumber(bare::intOf(element, "MaxWidthCellNumber", 0));
    detection.setMinWidthCellNumber(bare::intOf(element, "MinWidthCellNumber", 0));
    detection.setMaxHighCellNumber(bare::intOf(element, "MaxHighCellNumber", 0));
    detection.setMinHighCellNumber(bare::intOf(element, "MinHighCellNumber", 0));
}

void readFloorCamera(const TiXmlElement& element, CameraExAbility& camera)
{
    const TiXmlElement* child = element.FirstChildElement("VideoResolution");
    if (child != nullptr) readFloorResolution(*child, camera.getMaxVideoResolution());

    child = element.FirstChildElement("BlindAbility");
    if (child != nullptr)
    {
        camera.getBlindAbility().setMaxBlindAreaNum(bare::intOf(*child, "maxBlindAreaNum", 0));
        camera.getBlindAbility().setBlindArea(bare::intOf(*child, "blindArea", 0));
        camera.getBlindAbility().setBlindType(bare::intOf(*child, "type", 0));
    }

    readFloorResolutions(element, "SourceResolutionList", camera.getSourceResolutionList());
    readFloorResolutions(element, "VideoResolutionList", camera.getVideoResolutionList());

    const TiXmlElement* item = bare::firstItem(element, "AVStreamAbilityList", "AVStreamAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AVStreamAbility stream;
        readFloorStream(*item, stream);
        camera.getAVStreamAbilityList().push_back(std::move(stream));
    }

    child = element.FirstChildElement("MotionDetectionExAbility");
    if (child != nullptr) readFloorDetection(*child, camera.getMotionDetectionExAbility());

    camera.setCameraId(floorIntOf(element, "CameraId"));
}

void readFloorResolutionAbility(const TiXmlElement& element, VideoResolutionAbility& ability)
{
    ability.setMaxFrameRate(bare::intOf(element, "MaxFrameRate", 0));
    ability.setMinFrameRate(bare::intOf(element, "MinFrameRate", 0));
    ability.setMaxBitRate(bare::intOf(element, "MaxBitRate", 0));
    ability.setMinBitRate(bare::intOf(element, "MinBitRate", 0));
    ability.setMaxQuality(bare::intOf(element, "MaxQuality", 0));
    ability.setMinQuality(bare::intOf(element, "MinQuality", 0));
    ability.setMaxIFrameInterval(bare::intOf(element, "MaxIFrameInterval", 0));
    ability.setMinIFrameInterval(bare::intOf(element, "MinIFrameInterval", 0));
    ability.setIFrameIntervalUnit(bare::intOf(element, "IFrameIntervalUnit", 1));
    readFloorInts(element, "BitRateTypeList", "BitRateType", ability.getBitRateTypeList());

    const TiXmlElement* child = element.FirstChildElement("VideoResolution");
    if (child != nullptr) readFloorResolution(*child, ability.getVideoResolution());
}

void readFloorEncoder(const TiXmlElement& element, VideoEncoderAbility& encoder)
{
    encoder.setEncoderType(bare::intOf(element, "VideoEncoderType", 0));
    encoder.setEncoderName(bare::textOf(element, "VideoEncoderName"));
    encoder.setVideoEncodeTotleAbility(bare::intOf(element, "VideoEncodeTotleAbility", 0));

    const TiXmlElement* item = bare::firstItem(element, "VideoResolutionAbilityList", "VideoResolutionAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoResolutionAbility ability;
        readFloorResolutionAbility(*item, ability);
        encoder.getVideoResolutionAbilityList().push_back(std::move(ability));
    }
}

void readFloorSystem(const TiXmlElement& element, VideoSystem& system)
{
    system.setVideoSystemId(bare::intOf(element, "VideoSystemId", 0));
    system.setVideoSystemName(bare::textOf(element, "VideoSystemName"));
}

void readFloorSource(const TiXmlElement& element, SourceResolutionAbility& source)
{
    const TiXmlElement* system = element.FirstChildElement("VideoSystem");
    if (system != nullptr) readFloorSystem(*system, source.getVideoSystem());
    readFloorResolutions(element, "VideoResolutionList", source.getSourceResolutionList());
}

void readFloorVideo(const TiXmlElement& element, VideoExAbility& ability)
{
    ability.setVideoSystemConfigurableFlag(bare::flagOf(element, "VideoSystemConfigurableFlag"));

    const TiXmlElement* item = bare::firstItem(element, "CameraExAbilityList", "CameraExAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraExAbility camera;
        readFloorCamera(*item, camera);
        ability.getCameraExAbilityList().push_back(std::move(camera));
    }

    item = bare::firstItem(element, "VideoEncoderAbilityList", "VideoEncoderAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoEncoderAbility encoder;
        readFloorEncoder(*item, encoder);
        ability.getVideoEncoderAbilityList().push_back(std::move(encoder));
    }

    item = bare::firstItem(element, "VideoSystemList", "VideoSystem");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoSystem system;
        readFloorSystem(*item, system);
        ability.getVideoSystemList().push_back(std::move(system));
    }

    item = bare::firstItem(element, "SourceResolutionAbilityList", "SourceResolutionAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SourceResolutionAbility source;
        readFloorSource(*item, source);
        ability.getSourceResolutionAbilityList().push_back(std::move(source));
    }

    const TiXmlElement* output = element.FirstChildElement("VideoOutAbility");
    if (output == nullptr) return;
    ability.getVideoOutAbility().setVideoOutConfigurable(bare::flagOf(*output, "userConfigurable"));
    ability.getVideoOutAbility().setIsSupportVideoOut(bare::flagOf(*output, "IsSupportVideoOut"));
}

void readFloorAudio(const TiXmlElement& element, AudioExAbility& ability)
{
    ability.setInterPhoneFlag(floorFlagOf(element, "InterPhoneFlag"));
    ability.setAudioInFlag(floorFlagOf(element, "AudioInFlag"));
    ability.setAudioOutFlag(floorFlagOf(element, "AudioOutFlag"));

    const TiXmlElement* item = bare::firstItem(element, "AudioInTypeList", "AudioInType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioInType type;
        type.setAudioInTypeId(bare::intOf(*item, "AudioInTypeId", 0));
        type.setAudioInTypeName(bare::textOf(*item, "AudioInTypeName"));
        ability.getAudioInTypeList().push_back(std::move(type));
    }

    item = bare::firstItem(element, "AudioOutTypeList", "AudioOutType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioOutType type;
        type.setAudioOutTypeId(bare::intOf(*item, "AudioOutTypeId", 0));
        type.setAudioOutTypeName(bare::textOf(*item, "AudioOutTypeName"));
        ability.getAudioOutTypeList().push_back(std::move(type));
    }

    item = bare::firstItem(element, "AudioEncodeTypeList", "AudioEncodeType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioEncodeType type;
        type.setAudioEncodeTypeId(bare::intOf(*item, "AudioEncodeTypeId", 0));
        type.setAudioEncodeTypeName(bare::textOf(*item, "AudioEncodeTypeName"));
        ability.getAudioEncodeTypeList().push_back(std::move(type));
    }

    item = bare::firstItem(element, "AudioDecodeTypeList", "AudioDecodeType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioDecodeType type;
        type.setAudioDecodeTypeId(bare::intOf(*item, "AudioDecodeTypeId", 0));
        type.setAudioDecodeTypeName(bare::textOf(*item, "AudioDecodeTypeName"));
        ability.getAudioDecodeTypeList().push_back(std::move(type));
    }
}

void readFloorFileSystems(const TiXmlElement& element, FileSystemAbility& ability)
{
    ability.setDiskType(bare::intOf(element, "DiskType", 0));

    const TiXmlElement* child = element.FirstChildElement("FileSystem");
    for (; child != nullptr; child = child->NextSiblingElement("FileSystem"))
    {
        FileSystem system;
        system.setFileSystemType(bare::intOf(*child, "FileSystemType", 0));
        system.setFileSystemName(bare::textOf(*child, "FileSystemName"));
        ability.getFileSystemList().push_back(std::move(system));
    }

    child = element.FirstChildElement("DiskAttribute");
    for (; child != nullptr; child = child->NextSiblingElement("DiskAttribute"))
    {
        DiskAttributeEx attribute;
        attribute.setDiskAttribute(bare::intOf(*child, "DiskAttributeType", 0));
        attribute.setAttributeName(bare::textOf(*child, "DiskAttributeName"));
        ability.getDiskAttributeList().push_back(std::move(attribute));
    }
}

void readFloorModes(const TiXmlElement& element, std::vector<WorkingMode>& modes)
{
    const TiXmlElement* list = element.FirstChildElement("WorkingModeList");
    if (list == nullptr)
    {
        WorkingMode mode;
        mode.setModeID(1);
        mode.setModeName("VedioMode");
        modes.push_back(std::move(mode));
        return;
    }

    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        WorkingMode mode;
        mode.setModeID(bare::intOf(*item, "ModeID", 0));
        mode.setModeName(bare::textOf(*item, "ModeName"));
        modes.push_back(std::move(mode));
    }
}

void readFloorLanguages(const TiXmlElement& element, std::vector<LanguageType>& languages)
{
    const TiXmlElement* list = element.FirstChildElement("LanguageTypeList");
    if (list == nullptr)
    {
        LanguageType language;
        language.setLanguageID(1);
        language.setLanguageName("English");
        languages.push_back(std::move(language));
        return;
    }

    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LanguageType language;
        language.setLanguageID(bare::intOf(*item, "LanguageID", 0));
        language.setLanguageName(bare::textOf(*item, "LanguageName"));
        languages.push_back(std::move(language));
    }
}

bool readFloorCards(const TiXmlElement& element, std::vector<IPCNetworkCardAbility>& cards)
{
    const TiXmlElement* list = element.FirstChildElement("NetworkAbilityList");
    if (list == nullptr) return false;

    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        IPCNetworkCardAbility card;
        card.setNetWorkCardId(bare::intOf(*item, "NetWorkCardId", 0));
        card.setNetWorkCardName(bare::textOf(*item, "NetWorkCardName"));
        card.setDescription(bare::textOf(*item, "Description"));
        card.setSupportAlarm(bare::flagOf(*item, "SupportAlarm"));
        cards.push_back(std::move(card));
    }
    return true;
}

bool readFloorInfrared(const TiXmlElement& element, PIRAlarmAbility& infrared)
{
    const TiXmlElement* item = element.FirstChildElement("PIRAlarmAbilityItem");
    if (item == nullptr) return false;
    infrared.setPIRAlarmSupportFlag(bare::flagOf(*item, "PIRAlarmAbilitySupportFlag"));
    return true;
}

bool readFloorWifi(const TiXmlElement& element, WifiAbilityParam& wifi)
{
    const TiXmlElement* item = element.FirstChildElement("WifiAbilityParamItem");
    if (item == nullptr) return false;
    wifi.setSupportFlag(bare::flagOf(*item, "SupportFlag"));
    wifi.setWifiDeviceName(bare::textOf(*item, "DeviceName"));
    return true;
}

std::string writeFloor(const DeviceExAbility& ability)
{
    TiXmlDocument document;
    TiXmlElement& element = bare::appendElement(document, "DeviceExAbility");
    writeFloorPTZ(element, ability.getPTZAbility());
    writeFloorVideo(element, ability.getVideoExAbility());
    writeFloorAudio(element, ability.getAudioExAbility());
    writeFloorFileSystems(element, ability.getFileSystemAbilityList());
    writeFloorOthers(element, ability);
    return bare::print(document);
}

bool readFloor(const std::string& text, DeviceExAbility& ability)
{
    TiXmlDocument document;
    const TiXmlElement* element = bare::parse(document, text, "DeviceExAbility");
    if (element == nullptr) return false;

    const TiXmlElement* child = element->FirstChildElement("PTZAbility");
    if (child != nullptr) readFloorPTZ(*child, ability.getPTZAbility());

    child = element->FirstChildElement("VideoExAbility");
    if (child != nullptr) readFloorVideo(*child, ability.getVideoExAbility());

    child = element->FirstChildElement("AudioExAbility");
    if (child != nullptr) readFloorAudio(*child, ability.getAudioExAbility());

    const TiXmlElement* item = bare::firstItem(*element, "FileSystemAbilityList", "FileSystemAbility");
    for (; item != nullptr; item = item->NextSiblingElement("FileSystemAbility"))
    {
        FileSystemAbility systems;
        readFloorFileSystems(*item, systems);
        ability.getFileSystemAbilityList().push_back(std::move(systems));
    }

    child = element->FirstChildElement("WorkingModeAbility");
    if (child != nullptr) readFloorModes(*child, ability.getWorkingModeAbility());

    child = element->FirstChildElement("LanguageAbility");
    if (child != nullptr) readFloorLanguages(*child, ability.getLanguageAbility());

    child = element->FirstChildElement("NetworkAbility");
    if (child != nullptr && !readFloorCards(*child, ability.getNetworkAbility())) return false;

    child = element->FirstChildElement("PIRAlarmAbility");
    if (child != nullptr && !readFloorInfrared(*child, ability.getPIRAlarmAbility())) return false;

    child = element->FirstChildElement("WifiAbilityParam");
    return child == nullptr || readFloorWifi(*child, ability.getWifiAbilityParam());
}

std::string writeDocument(const DeviceExAbility& ability)
{
    DeviceExAbilityXml codec;
    codec.setDeviceExAbility(ability);
    codec.createXmlString();
    return std::move(codec.getXmlString());
}

bool readDocument(const std::string& text, DeviceExAbility& ability)
{
    DeviceExAbilityXml codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;
    ability = std::move(codec.getDeviceExAbility());
    return true;
}

} // namespace

void addDeviceExAbility()
{
    const char* emptyText = "<DeviceExAbility>"
                            "<PTZAbility><PTZProtocolList><PTZProtocol /></PTZProtocolList></PTZAbility>"
                            "<VideoExAbility>"
                            "<CameraExAbilityList><CameraExAbility>"
                            "<VideoResolution /><BlindAbility />"
                            "<SourceResolutionList><VideoResolution /></SourceResolutionList>"
                            "<AVStreamAbilityList><AVStreamAbility>"
                            "<StreamEncodeAbilityList><StreamEncodeAbility /></StreamEncodeAbilityList>"
                            "<SupportROI /><ROIAbility />"
                            "</AVStreamAbility></AVStreamAbilityList>"
                            "<MotionDetectionExAbility /><CameraId />"
                            "</CameraExAbility></CameraExAbilityList>"
                            "<VideoEncoderAbilityList><VideoEncoderAbility>"
                            "<VideoResolutionAbilityList><VideoResolutionAbility>"
                            "<BitRateTypeList><BitRateType /></BitRateTypeList>"
                            "</VideoResolutionAbility></VideoResolutionAbilityList>"
                            "</VideoEncoderAbility></VideoEncoderAbilityList>"
                            "<VideoSystemList><VideoSystem /></VideoSystemList>"
                            "<SourceResolutionAbilityList><SourceResolutionAbility /></SourceResolutionAbilityList>"
                            "<VideoOutAbility />"
                            "</VideoExAbility>"
                            "<AudioExAbility>"
                            "<AudioInFlag /><AudioInTypeList><AudioInType /></AudioInTypeList>"
                            "<AudioOutTypeList><AudioOutType /></AudioOutTypeList>"
                            "<AudioEncodeTypeList><AudioEncodeType /></AudioEncodeTypeList>"
                            "<AudioDecodeTypeList><AudioDecodeType /></AudioDecodeTypeList>"
                            "</AudioExAbility>"
                            "<FileSystemAbilityList>"
                            "<FileSystemAbility><FileSystem /><DiskAttribute /></FileSystemAbility>"
                            "</FileSystemAbilityList>"
                            "<WorkingModeAbility /><LanguageAbility />"
                            "<NetworkAbility><NetworkAbilityList><NetworkCardAbility /></NetworkAbilityList>"
                            "</NetworkAbility>"
                            "<PIRAlarmAbility><PIRAlarmAbilityItem /></PIRAlarmAbility>"
                            "<WifiAbilityParam><WifiAbilityParamItem /></WifiAbilityParam>"
                            "</DeviceExAbility>";
    compare<DeviceExAbility>("DeviceExAbility.document", makeAbility(8), emptyText, {writeFloor, readFloor},
                             {writeDocument, readDocument});
}
