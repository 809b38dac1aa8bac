#include "device/CameraAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(CameraAbilityXml, Writes)
{
    CameraAbilityXml codec;
    codec.setCameraAbility(sampleCameraAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/CameraAbilityXml.document.xml"));
}

TEST(CameraAbilityXml, Reads)
{
    CameraAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/CameraAbilityXml.document.xml")));
    expectCameraAbility(sampleCameraAbility(), codec.getCameraAbility());
}

TEST(CameraAbilityXml, ResetsValuesAndLeavesListsThatAreMissing)
{
    CameraAbility expected;
    expected.setEncoderAbilityList(sampleCameraAbility().getEncoderAbilityList());
    expected.setMotionDetectionAbilityList(sampleCameraAbility().getMotionDetectionAbilityList());
    CameraAbility before = sampleCameraAbility();
    before.setMotionDetectionSupportFlag(true);
    for (const char* content : {"", "<CameraId /><UserConfigurable /><MotionDetectionSupportFlag />"})
    {
        CameraAbilityXml codec;
        codec.setCameraAbility(before);
        ASSERT_TRUE(reads(codec, std::string("<CameraAbility>") + content + "</CameraAbility>"));
        expectCameraAbility(expected, codec.getCameraAbility());
    }
}

TEST(CameraAbilityXml, KeepsItsFlagsApart)
{
    CameraAbilityXml codec;
    ASSERT_TRUE(reads(codec, "<CameraAbility><MotionDetectionSupportFlag value='true' /></CameraAbility>"));
    EXPECT_FALSE(codec.getCameraAbility().getUserConfigurable());
    EXPECT_TRUE(codec.getCameraAbility().getMotionDetectionSupportFlag());
}

TEST(CameraAbilityXml, AddsToItsLists)
{
    CameraAbilityXml codec;
    codec.setCameraAbility(sampleCameraAbility());
    ASSERT_TRUE(reads(codec, golden("device/CameraAbilityXml.document.xml")));
    CameraAbility expected = sampleCameraAbility();
    expected.addEncoderAbility(sampleEncoderAbility());
    expected.addMotionDetectionAbility(sampleMotionDetectionAbility());
    expectCameraAbility(expected, codec.getCameraAbility());
}

TEST(CameraAbilityXml, KnowsTheListOfEncodersByThePeersSpelling)
{
    CameraAbilityXml codec;
    ASSERT_TRUE(reads(codec,
                      "<CameraAbility><EncoderAbilityList><EncoderAbility /></EncoderAbilityList>"
                      "<EncoderAbilitylist>text<EncoderAbility Quality='1' /><!-- --><Other /></EncoderAbilitylist>"
                      "</CameraAbility>"));
    EXPECT_EQ(2U, codec.getCameraAbility().getEncoderAbilityList().size());
}
