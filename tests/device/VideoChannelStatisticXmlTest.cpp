#include "device/VideoChannelStatisticXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

TEST(VideoChannelStatisticXml, Writes)
{
    VideoChannelStatisticXml codec;
    codec.setVideoChannelStatistic(sampleChannel());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoChannelStatisticXml.document.xml"));
}

TEST(VideoChannelStatisticXml, Reads)
{
    VideoChannelStatisticXml codec;
    ASSERT_TRUE(reads(codec, golden("device/VideoChannelStatisticXml.document.xml")));
    expectChannel(sampleChannel(), codec.getVideoChannelStatistic());
}

TEST(VideoChannelStatisticXml, ResetsWhatIsMissing)
{
    VideoChannelStatisticXml codec;
    codec.setVideoChannelStatistic(sampleChannel());
    ASSERT_TRUE(reads(codec, "<VideoChannelStatistic />"));
    expectChannel(VideoChannelStatistic(), codec.getVideoChannelStatistic());
}
