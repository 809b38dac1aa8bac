#include "device/CameraExAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(CameraExAbilityXml, Writes)
{
    CameraExAbilityXml codec;
    codec.setCameraExAbility(sampleCameraExAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/CameraExAbilityXml.document.xml"));
}

TEST(CameraExAbilityXml, Reads)
{
    CameraExAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/CameraExAbilityXml.document.xml")));
    expectCameraExAbility(sampleCameraExAbility(), codec.getCameraExAbility());
}

TEST(CameraExAbilityXml, LeavesWhatIsMissing)
{
    CameraExAbilityXml codec;
    codec.setCameraExAbility(sampleCameraExAbility());
    ASSERT_TRUE(reads(codec, "<CameraExAbility />"));
    expectCameraExAbility(sampleCameraExAbility(), codec.getCameraExAbility());
}

TEST(CameraExAbilityXml, AddsToItsLists)
{
    CameraExAbilityXml codec;
    codec.setCameraExAbility(sampleCameraExAbility());
    ASSERT_TRUE(reads(codec, golden("device/CameraExAbilityXml.document.xml")));
    CameraExAbility expected = sampleCameraExAbility();
    expected.getSourceResolutionList().push_back(expected.getSourceResolutionList()[0]);
    expected.getVideoResolutionList().push_back(expected.getVideoResolutionList()[0]);
    expected.getAVStreamAbilityList().push_back(sampleAVStreamAbility());
    expectCameraExAbility(expected, codec.getCameraExAbility());
}

TEST(CameraExAbilityXml, ReplacesItsRecordsByThoseThatAreThere)
{
    CameraExAbilityXml codec;
    codec.setCameraExAbility(sampleCameraExAbility());
    ASSERT_TRUE(reads(codec, "<CameraExAbility><VideoResolution VideoHeight='1' /><BlindAbility blindArea='2' />"
                             "<MotionDetectionExAbility MaxSensitivity='3' /><CameraId /></CameraExAbility>"));
    CameraExAbility expected = sampleCameraExAbility();
    expected.setMaxVideoResolution(resolution(1, 0, ""));
    expected.setBlindAbility(BlindAbility());
    expected.getBlindAbility().setBlindArea(2);
    expected.setMotionDetectionExAbility(MotionDetectionExAbility());
    expected.getMotionDetectionExAbility().setMaxSensitivity(3);
    expectCameraExAbility(expected, codec.getCameraExAbility());
}
