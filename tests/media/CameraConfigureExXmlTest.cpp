#include "media/CameraConfigureExXml.h"

#include "device/BlindAbilityConfigureXml.h"
#include "device/MotionDetectionAbilityConfigureXml.h"
#include "display/VideoDisplayConfigureXml.h"
#include "media/OriginalYUVConfigureXml.h"
#include "media/ROIConfigureXml.h"
#include "media/SVCStreamConfigureXml.h"
#include "media/StreamConfigureXml.h"
#include "media/VideoCaptureConfigureXml.h"
#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

namespace
{

OriginalYUVConfigure sampleRawPicture()
{
    OriginalYUVConfigure output;
    output.setSupportFlag(true);
    output.setYUVResolutionId(7);
    output.setVideoWidth(8);
    output.setVideoHeight(9);
    output.setYUVFrameRate(10);
    output.setYUVVideoType(11);
    return output;
}

VideoDisplayConfigure sampleDisplay()
{
    VideoDisplayDeviceInfo device;
    device.setDeviceName("fb0");
    device.setDescription("first");

    VideoDisplayConfigure display;
    display.setSupportFlag(true);
    display.setShowIpFlag(false);
    display.setCaptureId(12);
    display.setInputMode(13);
    display.setInterPolation(14);
    display.setDisplayVideoSystem(15);
    display.setVideoOutSwitchFlag(true);
    display.setVideoDisplayDeviceInfoList({device});
    return display;
}

BlindAbilityConfigure sampleBlindAbility()
{
    BlindAbilityConfigure ability;
    ability.setMaxBlindAreaNum(16);
    ability.setBlindWidth(17);
    ability.setBlindHeight(18);
    ability.setBlindType(19);
    return ability;
}

MotionDetectionAbilityConfigure sampleMotionAbility()
{
    MotionDetectionAbilityConfigure ability;
    ability.setMinSensitivity(20);
    ability.setMaxSensitivity(21);
    ability.setMaxWidthCellNumber(22);
    ability.setMaxHeightCellNumber(23);
    ability.setDefaultSensitivity(24);
    ability.setDefaultWidthCellNumber(25);
    ability.setDefaultHeightCellNumber(26);
    return ability;
}

VideoCaptureConfigure sampleCapture()
{
    VideoCaptureConfigure capture;
    capture.setResolutionId(31);
    capture.setMode(32);
    capture.setCaptureId(33);
    capture.setVIPId(34);
    capture.setVideoWidth(35);
    capture.setVideoHeight(36);
    capture.setUserVideoHeight(37);
    capture.setUserVideoWidth(38);
    capture.setInterlace(39);
    capture.setDeviceName("input 40");
    capture.setBufferNumber(41);
    capture.setReserve("reserve 42");
    capture.setCaptureNum(43);
    return capture;
}

StreamConfigure sampleStream(int first)
{
    StreamConfigure stream;
    stream.setStreamId(first);
    stream.setStreamName("stream " + std::to_string(first + 1));
    stream.setVideoWidth(first + 2);
    stream.setVideoHeight(first + 3);
    stream.setFrameRate(first + 4.5);
    stream.setBitRateType(first + 5);
    stream.setBitRate(first + 6);
    stream.setQuality(first + 7);
    stream.setIFrameInterval(first + 8);
    stream.setIFrameIntervalUnit(first + 9);
    stream.setVideoEncoderType(first + 10);
    stream.setAudioEncoderType(first + 11);
    stream.setResolutionId(first + 12);
    return stream;
}

ROIConfigure sampleRegions()
{
    ROIConfigure regions;
    regions.setStreamID(91);
    regions.setROIInfoParamList({sampleRegion()});
    return regions;
}

SVCStreamConfigure sampleSubStream()
{
    SVCStreamConfigure stream;
    stream.setSVCStreamId(101);
    stream.setSVCStreamName("layer 102");
    stream.setSVCStreamSourceStream(103);
    stream.setSVCStreamDivisor(104);
    return stream;
}

CameraConfigureEx sample()
{
    CameraConfigureEx configure;
    configure.setCameraId(1);
    configure.setVideoSystem(2);
    configure.setAudioChannelId(3);
    configure.setVersion(4);
    configure.setDetectionEnvironment(5);
    configure.getSnapShotConfig().setSnapShotStreamId(6);
    configure.setOriginalYUVConfigure(sampleRawPicture());
    configure.setVideoDisplayConfigure(sampleDisplay());
    configure.setBlindAbilityConfigure(sampleBlindAbility());
    configure.setMotionDetectionAbilityConfigure(sampleMotionAbility());
    configure.setVideoCaptureConfigureList({sampleCapture()});
    configure.setStreamConfigureList({sampleStream(51), sampleStream(71)});
    configure.setROIConfigureList({sampleRegions()});
    configure.setSVCStreamConfigureList({sampleSubStream()});
    return configure;
}

template <class Codec, class Record>
std::string textOf(const Record& record)
{
    std::string text;
    EXPECT_TRUE(Codec().createXmlString(record, text));
    return text;
}

/// Children are compared by what their own codecs write.
void expectConfigure(const CameraConfigureEx& expected, const CameraConfigureEx& configure)
{
    EXPECT_EQ(expected.getCameraId(), configure.getCameraId());
    EXPECT_EQ(expected.getVideoSystem(), configure.getVideoSystem());
    EXPECT_EQ(expected.getAudioChannelId(), configure.getAudioChannelId());
    EXPECT_EQ(expected.getVersion(), configure.getVersion());
    EXPECT_EQ(expected.getDetectionEnvironment(), configure.getDetectionEnvironment());
    EXPECT_EQ(expected.getSnapShotConfig().getSnapShotStreamId(), configure.getSnapShotConfig().getSnapShotStreamId());
    EXPECT_EQ(textOf<OriginalYUVConfigureXml>(expected.getOriginalYUVConfigure()),
              textOf<OriginalYUVConfigureXml>(configure.getOriginalYUVConfigure()));
    EXPECT_EQ(textOf<VideoDisplayConfigureXml>(expected.getVideoDisplayConfigure()),
              textOf<VideoDisplayConfigureXml>(configure.getVideoDisplayConfigure()));
    EXPECT_EQ(textOf<BlindAbilityConfigureXml>(expected.getBlindAbilityConfigure()),
              textOf<BlindAbilityConfigureXml>(configure.getBlindAbilityConfigure()));
    EXPECT_EQ(textOf<MotionDetectionAbilityConfigureXml>(expected.getMotionDetectionAbilityConfigure()),
              textOf<MotionDetectionAbilityConfigureXml>(configure.getMotionDetectionAbilityConfigure()));
    EXPECT_EQ(textOf<VideoCaptureConfigureXml>(expected.getVideoCaptureConfigureList()),
              textOf<VideoCaptureConfigureXml>(configure.getVideoCaptureConfigureList()));
    EXPECT_EQ(textOf<StreamConfigureXml>(expected.getStreamConfigureList()),
              textOf<StreamConfigureXml>(configure.getStreamConfigureList()));
    EXPECT_EQ(textOf<ROIConfigureXml>(expected.getROIConfigureList()),
              textOf<ROIConfigureXml>(configure.getROIConfigureList()));
    EXPECT_EQ(textOf<SVCStreamConfigureXml>(expected.getSVCStreamConfigureList()),
              textOf<SVCStreamConfigureXml>(configure.getSVCStreamConfigureList()));
}

} // namespace

TEST(CameraConfigureExXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CameraConfigureExXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/CameraConfigureExXml.node.xml"));
}

TEST(CameraConfigureExXml, WritesContainersWithoutItems)
{
    std::string text;
    ASSERT_TRUE(CameraConfigureExXml().createXmlString(CameraConfigureEx(), text));
    EXPECT_NE(std::string::npos,
              text.find("\t<VideoCapture />\n\t<StreamConfig />\n\t<ROIConfig />\n\t<SVCStreamConfigure />\n"));
}

TEST(CameraConfigureExXml, ReadsNodes)
{
    CapturedOutput output;
    CameraConfigureEx read;
    ASSERT_TRUE(CameraConfigureExXml().parseXmlString(golden("media/CameraConfigureExXml.node.xml"), read));
    expectConfigure(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(CameraConfigureExXml, ResetsWhatIsMissingInSilence)
{
    CapturedOutput output;
    CameraConfigureEx read = sample();
    ASSERT_TRUE(CameraConfigureExXml().parseXmlString("<cameraConfigureEx />", read));
    expectConfigure(CameraConfigureEx(), read);
    EXPECT_EQ("", output.text());
}

TEST(CameraConfigureExXml, PutsListsInPlaceOfOthers)
{
    CameraConfigureEx read = sample();
    ASSERT_TRUE(CameraConfigureExXml().parseXmlString(golden("media/CameraConfigureExXml.node.xml"), read));
    expectConfigure(sample(), read);
}

TEST(CameraConfigureExXml, PrintsTheLinesOfAChildThatIsThere)
{
    CapturedOutput output;
    CameraConfigureEx read;
    ASSERT_TRUE(CameraConfigureExXml().parseXmlString(
        "<cameraConfigureEx><VideoCapture><VideoCaptureConfigure Mode='1' CaptureId='2' VIPId='3' VideoWidth='4'"
        " VideoHeight='5' UserVideoHeight='6' UserVideoWidth='7' Interlace='8' DeviceName='' BufferNumber='9'"
        " Reserve='' CaptureNum='10' /></VideoCapture></cameraConfigureEx>",
        read));
    EXPECT_EQ("VideoCaptureConfigureXml::parseDomainXmlNode get ResolutionId failed \n", output.text());
}

TEST(CameraConfigureExXml, FindsContainersAmongItsOwnChildrenOnly)
{
    CameraConfigureEx read;
    ASSERT_TRUE(CameraConfigureExXml().parseXmlString(
        "<cameraConfigureEx><Other><StreamConfig><StreamConfig streamId='1' /></StreamConfig></Other><StreamConfig>"
        "<!-- --><StreamConfig streamId='2'><StreamConfig streamId='3' /></StreamConfig></StreamConfig>"
        "<StreamConfig><StreamConfig streamId='4' /></StreamConfig></cameraConfigureEx>",
        read));
    ASSERT_EQ(1U, read.getStreamConfigureList().size());
    EXPECT_EQ(2, read.getStreamConfigureList()[0].getStreamId());
}

TEST(CameraConfigureExXml, RefusesARootWithACapitalLetter)
{
    CameraConfigureEx read = sample();
    EXPECT_FALSE(CameraConfigureExXml().parseXmlString("<CameraConfigureEx CameraId='9' />", read));
    expectConfigure(sample(), read);
}

TEST(CameraConfigureExXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CameraConfigureEx read = sample();
    EXPECT_FALSE(CameraConfigureExXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CameraConfigureExXml().parseDomainXmlNode(empty, read));
    expectConfigure(sample(), read);
}
