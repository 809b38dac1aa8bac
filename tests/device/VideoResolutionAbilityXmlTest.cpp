#include "device/VideoResolutionAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(VideoResolutionAbilityXml, Writes)
{
    VideoResolutionAbilityXml codec;
    codec.setVideoResolutionAbility(sampleVideoResolutionAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoResolutionAbilityXml.document.xml"));
}

TEST(VideoResolutionAbilityXml, Reads)
{
    VideoResolutionAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/VideoResolutionAbilityXml.document.xml")));
    expectVideoResolutionAbility(sampleVideoResolutionAbility(), codec.getVideoResolutionAbility());
}

TEST(VideoResolutionAbilityXml, LeavesWhatIsMissingButTheUnit)
{
    VideoResolutionAbilityXml codec;
    codec.setVideoResolutionAbility(sampleVideoResolutionAbility());
    ASSERT_TRUE(reads(codec, "<VideoResolutionAbility />"));
    VideoResolutionAbility expected = sampleVideoResolutionAbility();
    expected.setIFrameIntervalUnit(1);
    expectVideoResolutionAbility(expected, codec.getVideoResolutionAbility());
}

TEST(VideoResolutionAbilityXml, AddsToItsListAndReplacesTheSize)
{
    VideoResolutionAbilityXml codec;
    codec.setVideoResolutionAbility(sampleVideoResolutionAbility());
    ASSERT_TRUE(reads(codec,
                      "<VideoResolutionAbility IFrameIntervalUnit='2'><BitRateTypeList><Other value='1' />text"
                      "<BitRateType value='9' /><!-- --><Other /></BitRateTypeList><VideoResolution VideoWidth='5' />"
                      "</VideoResolutionAbility>"));
    VideoResolutionAbility expected = sampleVideoResolutionAbility();
    expected.setIFrameIntervalUnit(2);
    expected.setBitRateTypeList({7, 8, 9, 0});
    expected.setVideoResolution(resolution(0, 5, ""));
    expectVideoResolutionAbility(expected, codec.getVideoResolutionAbility());
}
