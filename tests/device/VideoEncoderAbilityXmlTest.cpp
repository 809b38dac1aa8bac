#include "device/VideoEncoderAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(VideoEncoderAbilityXml, Writes)
{
    VideoEncoderAbilityXml codec;
    codec.setVideoEncoderAbility(sampleVideoEncoderAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoEncoderAbilityXml.document.xml"));
}

TEST(VideoEncoderAbilityXml, Reads)
{
    VideoEncoderAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/VideoEncoderAbilityXml.document.xml")));
    expectVideoEncoderAbility(sampleVideoEncoderAbility(), codec.getVideoEncoderAbility());
}

TEST(VideoEncoderAbilityXml, LeavesWhatIsMissing)
{
    VideoEncoderAbilityXml codec;
    codec.setVideoEncoderAbility(sampleVideoEncoderAbility());
    ASSERT_TRUE(reads(codec, "<VideoEncoderAbility />"));
    expectVideoEncoderAbility(sampleVideoEncoderAbility(), codec.getVideoEncoderAbility());
}

TEST(VideoEncoderAbilityXml, AddsToItsList)
{
    VideoEncoderAbilityXml codec;
    codec.setVideoEncoderAbility(sampleVideoEncoderAbility());
    ASSERT_TRUE(reads(codec, golden("device/VideoEncoderAbilityXml.document.xml")));
    VideoEncoderAbility expected = sampleVideoEncoderAbility();
    expected.getVideoResolutionAbilityList().push_back(sampleVideoResolutionAbility());
    expectVideoEncoderAbility(expected, codec.getVideoEncoderAbility());
}
