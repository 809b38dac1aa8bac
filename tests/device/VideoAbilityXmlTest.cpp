#include "device/VideoAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(VideoAbilityXml, Writes)
{
    VideoAbilityXml codec;
    codec.setVideoAbility(sampleVideoAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoAbilityXml.document.xml"));
}

TEST(VideoAbilityXml, LeavesWhatIsMissing)
{
    VideoAbilityXml codec;
    codec.setVideoAbility(sampleVideoAbility());
    ASSERT_TRUE(reads(codec, "<VideoAbility />"));
    expectVideoAbility(sampleVideoAbility(), codec.getVideoAbility());
}

TEST(VideoAbilityXml, ReadsAllButTheNumberOfCameras)
{
    VideoAbilityXml codec;
    codec.getVideoAbility().setCameraNum(9);
    ASSERT_TRUE(reads(codec, golden("device/VideoAbilityXml.document.xml")));
    VideoAbility expected = sampleVideoAbility();
    expected.setCameraNum(9);
    expectVideoAbility(expected, codec.getVideoAbility());
}

TEST(VideoAbilityXml, AddsCamerasBehindThoseThatAreThere)
{
    VideoAbilityXml codec;
    codec.setVideoAbility(sampleVideoAbility());
    ASSERT_TRUE(reads(codec, "<VideoAbility><CameraAbilityList><Other /><CameraAbility><CameraId value='1' />"
                             "</CameraAbility><!-- -->text<Other><CameraId value='2' /></Other></CameraAbilityList>"
                             "</VideoAbility>"));
    VideoAbility expected = sampleVideoAbility();
    CameraAbility camera;
    camera.setCameraId(1);
    expected.addCameraAbility(camera);
    camera.setCameraId(2);
    expected.addCameraAbility(camera);
    expectVideoAbility(expected, codec.getVideoAbility());
}
