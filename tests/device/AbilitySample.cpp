#include "tests/device/AbilitySample.h"

namespace
{

FileSystem sampleFileSystem()
{
    FileSystem sample;
    sample.setFileSystemType(7);
    sample.setFileSystemName("ext3");
    return sample;
}

DiskAttributeEx sampleDiskAttributeEx()
{
    DiskAttributeEx sample;
    sample.setDiskAttribute(8);
    sample.setAttributeName("Backup");
    return sample;
}

PTZProtocol samplePTZProtocol()
{
    PTZProtocol sample;
    sample.setProtocolId(7);
    sample.setProtocolName("Dome");
    return sample;
}

void expectFileSystem(const FileSystem& expected, const FileSystem& read)
{
    EXPECT_EQ(expected.getFileSystemType(), read.getFileSystemType());
    EXPECT_EQ(expected.getFileSystemName(), read.getFileSystemName());
}

void expectDiskAttributeEx(const DiskAttributeEx& expected, const DiskAttributeEx& read)
{
    EXPECT_EQ(expected.getDiskAttribute(), read.getDiskAttribute());
    EXPECT_EQ(expected.getAttributeName(), read.getAttributeName());
}

void expectPTZProtocol(const PTZProtocol& expected, const PTZProtocol& read)
{
    EXPECT_EQ(expected.getProtocolId(), read.getProtocolId());
    EXPECT_EQ(expected.getProtocolName(), read.getProtocolName());
}

} // namespace

AudioAbility sampleAudioAbility()
{
    AudioAbility sample;
    sample.setInterPhoneFlag(true);
    sample.setAudioEncodeTypeList({1, 2});
    sample.setAudioDecodeTypeList({3});
    sample.setAudioInTypeList({4, 5});
    return sample;
}

void expectAudioAbility(const AudioAbility& expected, const AudioAbility& read)
{
    EXPECT_EQ(expected.getInterPhoneFlag(), read.getInterPhoneFlag());
    EXPECT_EQ(expected.getAudioEncodeTypeList(), read.getAudioEncodeTypeList());
    EXPECT_EQ(expected.getAudioDecodeTypeList(), read.getAudioDecodeTypeList());
    EXPECT_EQ(expected.getAudioInTypeList(), read.getAudioInTypeList());
}

AudioDecodeType sampleAudioDecodeType()
{
    AudioDecodeType sample;
    sample.setAudioDecodeTypeId(31);
    sample.setAudioDecodeTypeName("G711");
    return sample;
}

void expectAudioDecodeType(const AudioDecodeType& expected, const AudioDecodeType& read)
{
    EXPECT_EQ(expected.getAudioDecodeTypeId(), read.getAudioDecodeTypeId());
    EXPECT_EQ(expected.getAudioDecodeTypeName(), read.getAudioDecodeTypeName());
}

AudioEncodeType sampleAudioEncodeType()
{
    AudioEncodeType sample;
    sample.setAudioEncodeTypeId(21);
    sample.setAudioEncodeTypeName("AAC");
    return sample;
}

void expectAudioEncodeType(const AudioEncodeType& expected, const AudioEncodeType& read)
{
    EXPECT_EQ(expected.getAudioEncodeTypeId(), read.getAudioEncodeTypeId());
    EXPECT_EQ(expected.getAudioEncodeTypeName(), read.getAudioEncodeTypeName());
}

AudioInType sampleAudioInType()
{
    AudioInType sample;
    sample.setAudioInTypeId(41);
    sample.setAudioInTypeName("Line");
    return sample;
}

void expectAudioInType(const AudioInType& expected, const AudioInType& read)
{
    EXPECT_EQ(expected.getAudioInTypeId(), read.getAudioInTypeId());
    EXPECT_EQ(expected.getAudioInTypeName(), read.getAudioInTypeName());
}

AudioOutType sampleAudioOutType()
{
    AudioOutType sample;
    sample.setAudioOutTypeId(51);
    sample.setAudioOutTypeName("Speaker");
    return sample;
}

void expectAudioOutType(const AudioOutType& expected, const AudioOutType& read)
{
    EXPECT_EQ(expected.getAudioOutTypeId(), read.getAudioOutTypeId());
    EXPECT_EQ(expected.getAudioOutTypeName(), read.getAudioOutTypeName());
}

AudioExAbility sampleAudioExAbility()
{
    AudioExAbility sample;
    sample.setInterPhoneFlag(true);
    sample.setAudioInFlag(false);
    sample.getAudioInTypeList().push_back(sampleAudioInType());
    sample.setAudioOutFlag(true);
    sample.getAudioOutTypeList().push_back(sampleAudioOutType());
    sample.getAudioEncodeTypeList().push_back(sampleAudioEncodeType());
    sample.getAudioDecodeTypeList().push_back(sampleAudioDecodeType());
    return sample;
}

void expectAudioExAbility(const AudioExAbility& expected, const AudioExAbility& read)
{
    EXPECT_EQ(expected.getInterPhoneFlag(), read.getInterPhoneFlag());
    EXPECT_EQ(expected.getAudioInFlag(), read.getAudioInFlag());
    expectList(expected.getAudioInTypeList(), read.getAudioInTypeList(), expectAudioInType);
    EXPECT_EQ(expected.getAudioOutFlag(), read.getAudioOutFlag());
    expectList(expected.getAudioOutTypeList(), read.getAudioOutTypeList(), expectAudioOutType);
    expectList(expected.getAudioEncodeTypeList(), read.getAudioEncodeTypeList(), expectAudioEncodeType);
    expectList(expected.getAudioDecodeTypeList(), read.getAudioDecodeTypeList(), expectAudioDecodeType);
}

BlindAbility sampleBlindAbility()
{
    BlindAbility sample;
    sample.setMaxBlindAreaNum(4);
    sample.setBlindArea(60);
    sample.setBlindType(2);
    return sample;
}

void expectBlindAbility(const BlindAbility& expected, const BlindAbility& read)
{
    EXPECT_EQ(expected.getMaxBlindAreaNum(), read.getMaxBlindAreaNum());
    EXPECT_EQ(expected.getBlindArea(), read.getBlindArea());
    EXPECT_EQ(expected.getBlindType(), read.getBlindType());
}

FileSystemAbility sampleFileSystemAbility()
{
    FileSystemAbility sample;
    sample.setDiskType(6);
    sample.getFileSystemList().push_back(sampleFileSystem());
    sample.getDiskAttributeList().push_back(sampleDiskAttributeEx());
    return sample;
}

void expectFileSystemAbility(const FileSystemAbility& expected, const FileSystemAbility& read)
{
    EXPECT_EQ(expected.getDiskType(), read.getDiskType());
    expectList(expected.getFileSystemList(), read.getFileSystemList(), expectFileSystem);
    expectList(expected.getDiskAttributeList(), read.getDiskAttributeList(), expectDiskAttributeEx);
}

MotionDetectionAbility sampleMotionDetectionAbility()
{
    MotionDetectionAbility sample;
    sample.setImageFormatId(3);
    sample.setMaxSensitivity(9);
    sample.setMinFrameInterval(2);
    return sample;
}

void expectMotionDetectionAbility(const MotionDetectionAbility& expected, const MotionDetectionAbility& read)
{
    EXPECT_EQ(expected.getImageFormatId(), read.getImageFormatId());
    EXPECT_EQ(expected.getMaxSensitivity(), read.getMaxSensitivity());
    EXPECT_EQ(expected.getMinFrameInterval(), read.getMinFrameInterval());
}

MotionDetectionExAbility sampleMotionDetectionExAbility()
{
    MotionDetectionExAbility sample;
    sample.setMaxSensitivity(9);
    sample.setMinSensitivity(1);
    sample.setDefualSensitivity(5);
    sample.setDefualWidthCellNumber(22);
    sample.setDefualHighCellNumber(18);
    sample.setMaxWidthCellNumber(44);
    sample.setMinWidthCellNumber(11);
    sample.setMaxHighCellNumber(36);
    sample.setMinHighCellNumber(8);
    return sample;
}

void expectMotionDetectionExAbility(const MotionDetectionExAbility& expected, const MotionDetectionExAbility& read)
{
    EXPECT_EQ(expected.getMaxSensitivity(), read.getMaxSensitivity());
    EXPECT_EQ(expected.getMinSensitivity(), read.getMinSensitivity());
    EXPECT_EQ(expected.getDefualSensitivity(), read.getDefualSensitivity());
    EXPECT_EQ(expected.getDefualWidthCellNumber(), read.getDefualWidthCellNumber());
    EXPECT_EQ(expected.getDefualHighCellNumber(), read.getDefualHighCellNumber());
    EXPECT_EQ(expected.getMaxWidthCellNumber(), read.getMaxWidthCellNumber());
    EXPECT_EQ(expected.getMinWidthCellNumber(), read.getMinWidthCellNumber());
    EXPECT_EQ(expected.getMaxHighCellNumber(), read.getMaxHighCellNumber());
    EXPECT_EQ(expected.getMinHighCellNumber(), read.getMinHighCellNumber());
}

PTZAbility samplePTZAbility()
{
    PTZAbility sample;
    sample.setInternalPTZFlag(true);
    sample.setThreeDimensionalPositioningFlag(false);
    sample.setMaxPresetCount(255);
    sample.setMaxScanCount(5);
    sample.setMaxAutoStudyCount(6);
    sample.setMaxTourCount(8);
    sample.setBrushFlag(true);
    sample.setLightFlag(false);
    sample.setInfraredFlag(true);
    sample.getPTZProtocolList().push_back(samplePTZProtocol());
    return sample;
}

void expectPTZAbility(const PTZAbility& expected, const PTZAbility& read)
{
    EXPECT_EQ(expected.getInternalPTZFlag(), read.getInternalPTZFlag());
    EXPECT_EQ(expected.getThreeDimensionalPositioningFlag(), read.getThreeDimensionalPositioningFlag());
    EXPECT_EQ(expected.getMaxPresetCount(), read.getMaxPresetCount());
    EXPECT_EQ(expected.getMaxScanCount(), read.getMaxScanCount());
    EXPECT_EQ(expected.getMaxAutoStudyCount(), read.getMaxAutoStudyCount());
    EXPECT_EQ(expected.getMaxTourCount(), read.getMaxTourCount());
    EXPECT_EQ(expected.getBrushFlag(), read.getBrushFlag());
    EXPECT_EQ(expected.getLightFlag(), read.getLightFlag());
    EXPECT_EQ(expected.getInfraredFlag(), read.getInfraredFlag());
    expectList(expected.getPTZProtocolList(), read.getPTZProtocolList(), expectPTZProtocol);
}

ROIAbility sampleROIAbility()
{
    ROIAbility sample;
    sample.setROIMaxNum(8);
    sample.setROIMaxScale(50);
    sample.setROIMaxLevel(6);
    sample.setLevelQPMap({{1, -5}, {2, 10}});
    return sample;
}

void expectROIAbility(const ROIAbility& expected, const ROIAbility& read)
{
    EXPECT_EQ(expected.getROIMaxNum(), read.getROIMaxNum());
    EXPECT_EQ(expected.getROIMaxScale(), read.getROIMaxScale());
    EXPECT_EQ(expected.getROIMaxLevel(), read.getROIMaxLevel());
    EXPECT_EQ(expected.getLevelQPMap(), read.getLevelQPMap());
}

WifiAbilityParam sampleWifiAbilityParam()
{
    WifiAbilityParam sample;
    sample.setSupportFlag(true);
    sample.setWifiDeviceName("wlan0");
    return sample;
}

void expectWifiAbilityParam(const WifiAbilityParam& expected, const WifiAbilityParam& read)
{
    EXPECT_EQ(expected.getSupportFlag(), read.getSupportFlag());
    EXPECT_EQ(expected.getWifiDeviceName(), read.getWifiDeviceName());
}

IPCNetworkCardAbility sampleIPCNetworkCardAbility()
{
    IPCNetworkCardAbility sample;
    sample.setNetWorkCardId(1);
    sample.setNetWorkCardName("eth0");
    sample.setDescription("Port on the back");
    sample.setSupportAlarm(true);
    return sample;
}

void expectIPCNetworkCardAbility(const IPCNetworkCardAbility& expected, const IPCNetworkCardAbility& read)
{
    EXPECT_EQ(expected.getNetWorkCardId(), read.getNetWorkCardId());
    EXPECT_EQ(expected.getNetWorkCardName(), read.getNetWorkCardName());
    EXPECT_EQ(expected.getDescription(), read.getDescription());
    EXPECT_EQ(expected.getSupportAlarm(), read.getSupportAlarm());
}

WorkingMode sampleWorkingMode()
{
    WorkingMode sample;
    sample.setModeID(3);
    sample.setModeName("Corridor");
    return sample;
}

void expectWorkingMode(const WorkingMode& expected, const WorkingMode& read)
{
    EXPECT_EQ(expected.getModeID(), read.getModeID());
    EXPECT_EQ(expected.getModeName(), read.getModeName());
}

LanguageType sampleLanguageType()
{
    LanguageType sample;
    sample.setLanguageID(2);
    sample.setLanguageName("French");
    return sample;
}

void expectLanguageType(const LanguageType& expected, const LanguageType& read)
{
    EXPECT_EQ(expected.getLanguageID(), read.getLanguageID());
    EXPECT_EQ(expected.getLanguageName(), read.getLanguageName());
}
