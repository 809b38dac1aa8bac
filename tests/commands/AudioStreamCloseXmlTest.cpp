#include "commands/AudioStreamCloseXml.h"

#include "tests/support/Documents.h"

TEST(AudioStreamCloseXml, Writes)
{
    AudioStreamCloseXml codec;
    codec.setCameraId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AudioStreamCloseXml.document.xml"));
}

TEST(AudioStreamCloseXml, Reads)
{
    AudioStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AudioStreamCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(AudioStreamCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    AudioStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, "<AudioStreamCloseCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getConsumerId());

    AudioStreamCloseXml used;
    used.setCameraId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<AudioStreamCloseCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getConsumerId());
}

TEST(AudioStreamCloseXml, PassesOverTheOtherSpelling)
{
    AudioStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, "<AudioStreamCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
