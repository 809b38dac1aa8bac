#include "media/VideoQualityXml.h"

#include "tests/support/Documents.h"

namespace
{

VideoQuality sample(int first)
{
    VideoQuality quality;
    quality.setCameraId(first);
    quality.setContrast(first + 1);
    quality.setBrightness(first + 2);
    quality.setHue(first + 3);
    quality.setSaturation(first + 4);
    quality.setSharpness(first + 5);
    return quality;
}

void expectQuality(const VideoQuality& expected, const VideoQuality& quality)
{
    EXPECT_EQ(expected.getCameraId(), quality.getCameraId());
    EXPECT_EQ(expected.getContrast(), quality.getContrast());
    EXPECT_EQ(expected.getBrightness(), quality.getBrightness());
    EXPECT_EQ(expected.getHue(), quality.getHue());
    EXPECT_EQ(expected.getSaturation(), quality.getSaturation());
    EXPECT_EQ(expected.getSharpness(), quality.getSharpness());
}

} // namespace

TEST(VideoQualityXml, Writes)
{
    VideoQualityXml codec;
    codec.setVideoQuality(sample(11));
    EXPECT_TRUE(matchesGolden(written(codec), "media/VideoQualityXml.document.xml"));
}

TEST(VideoQualityXml, Reads)
{
    VideoQualityXml codec;
    ASSERT_TRUE(reads(codec, golden("media/VideoQualityXml.document.xml")));
    expectQuality(sample(11), codec.getVideoQuality());
}

TEST(VideoQualityXml, ResetsWhatIsMissing)
{
    VideoQualityXml codec;
    codec.setVideoQuality(sample(11));
    ASSERT_TRUE(reads(codec, "<VideoQuality />"));
    expectQuality(VideoQuality(), codec.getVideoQuality());
}
