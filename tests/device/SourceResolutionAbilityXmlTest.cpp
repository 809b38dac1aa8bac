#include "device/SourceResolutionAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(SourceResolutionAbilityXml, Writes)
{
    SourceResolutionAbilityXml codec;
    codec.setSourceResolutionAbility(sampleSourceResolutionAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/SourceResolutionAbilityXml.document.xml"));
}

TEST(SourceResolutionAbilityXml, Reads)
{
    SourceResolutionAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/SourceResolutionAbilityXml.document.xml")));
    expectSourceResolutionAbility(sampleSourceResolutionAbility(), codec.getSourceResolutionAbility());
}

TEST(SourceResolutionAbilityXml, LeavesWhatIsMissing)
{
    SourceResolutionAbilityXml codec;
    codec.setSourceResolutionAbility(sampleSourceResolutionAbility());
    ASSERT_TRUE(reads(codec, "<SourceResolutionAbility />"));
    expectSourceResolutionAbility(sampleSourceResolutionAbility(), codec.getSourceResolutionAbility());
}

TEST(SourceResolutionAbilityXml, AddsToItsListAndReplacesTheSystem)
{
    SourceResolutionAbilityXml codec;
    codec.setSourceResolutionAbility(sampleSourceResolutionAbility());
    ASSERT_TRUE(reads(codec, "<SourceResolutionAbility><VideoSystem VideoSystemId='9' /><VideoResolutionList>"
                             "<VideoResolution VideoHeight='1' /></VideoResolutionList><SourceResolutionList>"
                             "<VideoResolution /></SourceResolutionList></SourceResolutionAbility>"));
    SourceResolutionAbility expected = sampleSourceResolutionAbility();
    expected.setVideoSystem(VideoSystem());
    expected.getVideoSystem().setVideoSystemId(9);
    expected.getSourceResolutionList().push_back(resolution(1, 0, ""));
    expectSourceResolutionAbility(expected, codec.getSourceResolutionAbility());
}
