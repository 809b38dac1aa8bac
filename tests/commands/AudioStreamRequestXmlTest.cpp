#include "commands/AudioStreamRequestXml.h"

#include "tests/support/Documents.h"

TEST(AudioStreamRequestXml, Writes)
{
    AudioStreamRequestXml codec;
    codec.setCameraId(1);
    codec.setStreamId(2);
    codec.setConsumerId(3);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AudioStreamRequestXml.document.xml"));
}

TEST(AudioStreamRequestXml, Reads)
{
    AudioStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AudioStreamRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getStreamId());
    EXPECT_EQ(3, codec.getConsumerId());
}

TEST(AudioStreamRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    AudioStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, "<AudioStreamRequestCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getStreamId());
    EXPECT_EQ(0, codec.getConsumerId());

    AudioStreamRequestXml used;
    used.setCameraId(11);
    used.setStreamId(12);
    used.setConsumerId(13);
    ASSERT_TRUE(reads(used, "<AudioStreamRequestCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getStreamId());
    EXPECT_EQ(13, used.getConsumerId());
}

TEST(AudioStreamRequestXml, PassesOverTheRightSpelling)
{
    AudioStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, "<AudioStreamRequestCommand ConsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
