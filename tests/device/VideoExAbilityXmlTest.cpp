#include "device/VideoExAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(VideoExAbilityXml, Writes)
{
    VideoExAbilityXml codec;
    codec.setVideoExAbility(sampleVideoExAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoExAbilityXml.document.xml"));
}

TEST(VideoExAbilityXml, Reads)
{
    VideoExAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/VideoExAbilityXml.document.xml")));
    expectVideoExAbility(sampleVideoExAbility(), codec.getVideoExAbility());
}

TEST(VideoExAbilityXml, LeavesWhatIsMissing)
{
    VideoExAbilityXml codec;
    codec.setVideoExAbility(sampleVideoExAbility());
    ASSERT_TRUE(reads(codec, "<VideoExAbility />"));
    expectVideoExAbility(sampleVideoExAbility(), codec.getVideoExAbility());
}

TEST(VideoExAbilityXml, AddsToItsLists)
{
    VideoExAbilityXml codec;
    codec.setVideoExAbility(sampleVideoExAbility());
    ASSERT_TRUE(reads(codec, golden("device/VideoExAbilityXml.document.xml")));
    VideoExAbility expected = sampleVideoExAbility();
    expected.getCameraExAbilityList().push_back(sampleCameraExAbility());
    expected.getVideoEncoderAbilityList().push_back(sampleVideoEncoderAbility());
    expected.getVideoSystemList().push_back(sampleVideoSystem());
    expected.getSourceResolutionAbilityList().push_back(sampleSourceResolutionAbility());
    expectVideoExAbility(expected, codec.getVideoExAbility());
}

TEST(VideoExAbilityXml, LeavesWhatTheOutputLacks)
{
    VideoExAbilityXml codec;
    codec.setVideoExAbility(sampleVideoExAbility());
    ASSERT_TRUE(reads(codec, "<VideoExAbility><VideoOutAbility IsSupportVideoOut='true' /></VideoExAbility>"));
    EXPECT_TRUE(codec.getVideoExAbility().getVideoOutAbility().getVideoOutConfigurable());
    EXPECT_TRUE(codec.getVideoExAbility().getVideoOutAbility().getIsSupportVideoOut());
}

TEST(VideoExAbilityXml, WalksOverWhatIsNoElement)
{
    VideoExAbilityXml codec;
    ASSERT_TRUE(reads(codec, "<VideoExAbility><CameraExAbilityList>text<!--CameraExAbility--></CameraExAbilityList>"
                             "<VideoSystemList><VideoSystem VideoSystemId='1' />text<!-- --><Other VideoSystemId='2' />"
                             "</VideoSystemList></VideoExAbility>"));
    EXPECT_TRUE(codec.getVideoExAbility().getCameraExAbilityList().empty());
    const std::vector<VideoSystem>& systems = codec.getVideoExAbility().getVideoSystemList();
    ASSERT_EQ(2U, systems.size());
    EXPECT_EQ(1, systems[0].getVideoSystemId());
    EXPECT_EQ(2, systems[1].getVideoSystemId());
}
