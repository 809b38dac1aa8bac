#include "display/LiveVideoChannelXml.h"

#include "tests/display/LayoutSample.h"
#include "tests/support/Documents.h"

TEST(LiveVideoChannelXml, Writes)
{
    LiveVideoChannelXml codec;
    codec.setLiveVideoChannel(sampleChannel(11));
    EXPECT_TRUE(matchesGolden(written(codec), "display/LiveVideoChannelXml.document.xml"));
}

TEST(LiveVideoChannelXml, Reads)
{
    LiveVideoChannelXml codec;
    ASSERT_TRUE(reads(codec, golden("display/LiveVideoChannelXml.document.xml")));
    expectChannel(sampleChannel(11), codec.getLiveVideoChannel());
}

TEST(LiveVideoChannelXml, LeavesAMissingNumberAndResetsAMissingDevice)
{
    LiveVideoChannelXml codec;
    codec.setLiveVideoChannel(sampleChannel(11));
    ASSERT_TRUE(reads(codec, "<LiveVideoChannel />"));
    EXPECT_EQ(11, codec.getLiveVideoChannel().getChannelID());
    EXPECT_EQ("", codec.getLiveVideoChannel().getDeviceID());
}
