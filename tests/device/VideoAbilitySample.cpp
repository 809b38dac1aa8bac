#include "tests/device/VideoAbilitySample.h"

#include "tests/device/AbilitySample.h"

namespace
{

VideoOutAbility sampleVideoOutAbility()
{
    VideoOutAbility sample;
    sample.setVideoOutConfigurable(true);
    sample.setIsSupportVideoOut(false);
    return sample;
}

void expectVideoOutAbility(const VideoOutAbility& expected, const VideoOutAbility& read)
{
    EXPECT_EQ(expected.getVideoOutConfigurable(), read.getVideoOutConfigurable());
    EXPECT_EQ(expected.getIsSupportVideoOut(), read.getIsSupportVideoOut());
}

} // namespace

VideoResolution resolution(int height, int width, const std::string& name)
{
    VideoResolution resolution;
    resolution.setVideoHeight(height);
    resolution.setVideoWidth(width);
    resolution.setResolutionName(name);
    return resolution;
}

EncoderAbility sampleEncoderAbility()
{
    EncoderAbility sample;
    sample.setImageFormatId(3);
    sample.setMaxFrameRate(30);
    sample.setMinFrameRate(2);
    sample.setMaxBitRate(8192);
    sample.setMinBitRate(64);
    sample.setMaxQuality(9);
    sample.setMinQuality(4);
    sample.setHeight(576);
    sample.setWidth(704);
    sample.setEncoderType(5);
    sample.setVideoSystem(6);
    sample.setBitRateTypeList({7, 8});
    return sample;
}

void expectEncoderAbility(const EncoderAbility& expected, const EncoderAbility& read)
{
    EXPECT_EQ(expected.getImageFormatId(), read.getImageFormatId());
    EXPECT_EQ(expected.getMaxFrameRate(), read.getMaxFrameRate());
    EXPECT_EQ(expected.getMinFrameRate(), read.getMinFrameRate());
    EXPECT_EQ(expected.getMaxBitRate(), read.getMaxBitRate());
    EXPECT_EQ(expected.getMinBitRate(), read.getMinBitRate());
    EXPECT_EQ(expected.getMaxQuality(), read.getMaxQuality());
    EXPECT_EQ(expected.getMinQuality(), read.getMinQuality());
    EXPECT_EQ(expected.getHeight(), read.getHeight());
    EXPECT_EQ(expected.getWidth(), read.getWidth());
    EXPECT_EQ(expected.getEncoderType(), read.getEncoderType());
    EXPECT_EQ(expected.getVideoSystem(), read.getVideoSystem());
    EXPECT_EQ(expected.getBitRateTypeList(), read.getBitRateTypeList());
}

CameraAbility sampleCameraAbility()
{
    CameraAbility sample;
    sample.getEncoderAbilityList().push_back(sampleEncoderAbility());
    sample.getMotionDetectionAbilityList().push_back(sampleMotionDetectionAbility());
    sample.setCameraId(11);
    sample.setUserConfigurable(true);
    sample.setMotionDetectionSupportFlag(false);
    return sample;
}

void expectCameraAbility(const CameraAbility& expected, const CameraAbility& read)
{
    expectList(expected.getEncoderAbilityList(), read.getEncoderAbilityList(), expectEncoderAbility);
    expectList(expected.getMotionDetectionAbilityList(), read.getMotionDetectionAbilityList(),
               expectMotionDetectionAbility);
    EXPECT_EQ(expected.getCameraId(), read.getCameraId());
    EXPECT_EQ(expected.getUserConfigurable(), read.getUserConfigurable());
    EXPECT_EQ(expected.getMotionDetectionSupportFlag(), read.getMotionDetectionSupportFlag());
}

VideoAbility sampleVideoAbility()
{
    VideoAbility sample;
    sample.setCameraNum(4);
    sample.getCameraAbilityList().push_back(sampleCameraAbility());
    return sample;
}

void expectVideoAbility(const VideoAbility& expected, const VideoAbility& read)
{
    EXPECT_EQ(expected.getCameraNum(), read.getCameraNum());
    expectList(expected.getCameraAbilityList(), read.getCameraAbilityList(), expectCameraAbility);
}

VideoResolution sampleVideoResolution()
{
    return resolution(1080, 1920, "Full");
}

void expectVideoResolution(const VideoResolution& expected, const VideoResolution& read)
{
    EXPECT_EQ(expected.getVideoHeight(), read.getVideoHeight());
    EXPECT_EQ(expected.getVideoWidth(), read.getVideoWidth());
    EXPECT_EQ(expected.getResolutionName(), read.getResolutionName());
}

VideoSystem sampleVideoSystem()
{
    VideoSystem sample;
    sample.setVideoSystemId(2);
    sample.setVideoSystemName("NTSC");
    return sample;
}

void expectVideoSystem(const VideoSystem& expected, const VideoSystem& read)
{
    EXPECT_EQ(expected.getVideoSystemId(), read.getVideoSystemId());
    EXPECT_EQ(expected.getVideoSystemName(), read.getVideoSystemName());
}

StreamEncodeAbility sampleStreamEncodeAbility()
{
    StreamEncodeAbility sample;
    sample.setVideoResolutionList({sampleVideoResolution(), resolution(288, 352, "Small")});
    sample.setEncoderType(5);
    return sample;
}

void expectStreamEncodeAbility(const StreamEncodeAbility& expected, const StreamEncodeAbility& read)
{
    expectList(expected.getVideoResolutionList(), read.getVideoResolutionList(), expectVideoResolution);
    EXPECT_EQ(expected.getEncoderType(), read.getEncoderType());
}

AVStreamAttributeAbility sampleAVStreamAttributeAbility()
{
    AVStreamAttributeAbility sample;
    sample.setStreamMode(2);
    sample.setFrameSkipIntervalList({3, 4});
    sample.setSVCStreamIDList({5});
    return sample;
}

void expectAVStreamAttributeAbility(const AVStreamAttributeAbility& expected, const AVStreamAttributeAbility& read)
{
    EXPECT_EQ(expected.getStreamMode(), read.getStreamMode());
    EXPECT_EQ(expected.getFrameSkipIntervalList(), read.getFrameSkipIntervalList());
    EXPECT_EQ(expected.getSVCStreamIDList(), read.getSVCStreamIDList());
}

AVStreamAbility sampleAVStreamAbility()
{
    AVStreamAbility sample;
    sample.getStreamEncodeAbilityList().push_back(sampleStreamEncodeAbility());
    sample.setStreamId(12);
    sample.setAVStreamAttributeAbility(sampleAVStreamAttributeAbility());
    sample.setSupportROI(true);
    sample.setROIAbility(sampleROIAbility());
    return sample;
}

void expectAVStreamAbility(const AVStreamAbility& expected, const AVStreamAbility& read)
{
    expectList(expected.getStreamEncodeAbilityList(), read.getStreamEncodeAbilityList(), expectStreamEncodeAbility);
    EXPECT_EQ(expected.getStreamId(), read.getStreamId());
    expectAVStreamAttributeAbility(expected.getAVStreamAttributeAbility(), read.getAVStreamAttributeAbility());
    EXPECT_EQ(expected.getSupportROI(), read.getSupportROI());
    expectROIAbility(expected.getROIAbility(), read.getROIAbility());
}

CameraExAbility sampleCameraExAbility()
{
    CameraExAbility sample;
    sample.setMaxVideoResolution(sampleVideoResolution());
    sample.setBlindAbility(sampleBlindAbility());
    sample.getSourceResolutionList().push_back(resolution(576, 704, "Taken in"));
    sample.getVideoResolutionList().push_back(resolution(720, 1280, "Sent"));
    sample.getAVStreamAbilityList().push_back(sampleAVStreamAbility());
    sample.setMotionDetectionExAbility(sampleMotionDetectionExAbility());
    sample.setCameraId(13);
    return sample;
}

void expectCameraExAbility(const CameraExAbility& expected, const CameraExAbility& read)
{
    expectVideoResolution(expected.getMaxVideoResolution(), read.getMaxVideoResolution());
    expectBlindAbility(expected.getBlindAbility(), read.getBlindAbility());
    expectList(expected.getSourceResolutionList(), read.getSourceResolutionList(), expectVideoResolution);
    expectList(expected.getVideoResolutionList(), read.getVideoResolutionList(), expectVideoResolution);
    expectList(expected.getAVStreamAbilityList(), read.getAVStreamAbilityList(), expectAVStreamAbility);
    expectMotionDetectionExAbility(expected.getMotionDetectionExAbility(), read.getMotionDetectionExAbility());
    EXPECT_EQ(expected.getCameraId(), read.getCameraId());
}

VideoResolutionAbility sampleVideoResolutionAbility()
{
    VideoResolutionAbility sample;
    sample.setMaxFrameRate(30);
    sample.setMinFrameRate(2);
    sample.setMaxBitRate(8192);
    sample.setMinBitRate(64);
    sample.setMaxQuality(9);
    sample.setMinQuality(4);
    sample.setMaxIFrameInterval(100);
    sample.setMinIFrameInterval(10);
    sample.setIFrameIntervalUnit(3);
    sample.setBitRateTypeList({7, 8});
    sample.setVideoResolution(sampleVideoResolution());
    return sample;
}

void expectVideoResolutionAbility(const VideoResolutionAbility& expected, const VideoResolutionAbility& read)
{
    EXPECT_EQ(expected.getMaxFrameRate(), read.getMaxFrameRate());
    EXPECT_EQ(expected.getMinFrameRate(), read.getMinFrameRate());
    EXPECT_EQ(expected.getMaxBitRate(), read.getMaxBitRate());
    EXPECT_EQ(expected.getMinBitRate(), read.getMinBitRate());
    EXPECT_EQ(expected.getMaxQuality(), read.getMaxQuality());
    EXPECT_EQ(expected.getMinQuality(), read.getMinQuality());
    EXPECT_EQ(expected.getMaxIFrameInterval(), read.getMaxIFrameInterval());
    EXPECT_EQ(expected.getMinIFrameInterval(), read.getMinIFrameInterval());
    EXPECT_EQ(expected.getIFrameIntervalUnit(), read.getIFrameIntervalUnit());
    EXPECT_EQ(expected.getBitRateTypeList(), read.getBitRateTypeList());
    expectVideoResolution(expected.getVideoResolution(), read.getVideoResolution());
}

VideoEncoderAbility sampleVideoEncoderAbility()
{
    VideoEncoderAbility sample;
    sample.setEncoderType(5);
    sample.setEncoderName("H.264");
    sample.setVideoEncodeTotleAbility(16);
    sample.getVideoResolutionAbilityList().push_back(sampleVideoResolutionAbility());
    return sample;
}

void expectVideoEncoderAbility(const VideoEncoderAbility& expected, const VideoEncoderAbility& read)
{
    EXPECT_EQ(expected.getEncoderType(), read.getEncoderType());
    EXPECT_EQ(expected.getEncoderName(), read.getEncoderName());
    EXPECT_EQ(expected.getVideoEncodeTotleAbility(), read.getVideoEncodeTotleAbility());
    expectList(expected.getVideoResolutionAbilityList(), read.getVideoResolutionAbilityList(),
               expectVideoResolutionAbility);
}

SourceResolutionAbility sampleSourceResolutionAbility()
{
    SourceResolutionAbility sample;
    sample.setVideoSystem(sampleVideoSystem());
    sample.getSourceResolutionList().push_back(resolution(480, 640, "Of the system"));
    return sample;
}

void expectSourceResolutionAbility(const SourceResolutionAbility& expected, const SourceResolutionAbility& read)
{
    expectVideoSystem(expected.getVideoSystem(), read.getVideoSystem());
    expectList(expected.getSourceResolutionList(), read.getSourceResolutionList(), expectVideoResolution);
}

VideoExAbility sampleVideoExAbility()
{
    VideoExAbility sample;
    sample.setVideoSystemConfigurableFlag(true);
    sample.getCameraExAbilityList().push_back(sampleCameraExAbility());
    sample.getVideoEncoderAbilityList().push_back(sampleVideoEncoderAbility());
    sample.getVideoSystemList().push_back(sampleVideoSystem());
    sample.getSourceResolutionAbilityList().push_back(sampleSourceResolutionAbility());
    sample.setVideoOutAbility(sampleVideoOutAbility());
    return sample;
}

void expectVideoExAbility(const VideoExAbility& expected, const VideoExAbility& read)
{
    EXPECT_EQ(expected.getVideoSystemConfigurableFlag(), read.getVideoSystemConfigurableFlag());
    expectList(expected.getCameraExAbilityList(), read.getCameraExAbilityList(), expectCameraExAbility);
    expectList(expected.getVideoEncoderAbilityList(), read.getVideoEncoderAbilityList(), expectVideoEncoderAbility);
    expectList(expected.getVideoSystemList(), read.getVideoSystemList(), expectVideoSystem);
    expectList(expected.getSourceResolutionAbilityList(), read.getSourceResolutionAbilityList(),
               expectSourceResolutionAbility);
    expectVideoOutAbility(expected.getVideoOutAbility(), read.getVideoOutAbility());
}
