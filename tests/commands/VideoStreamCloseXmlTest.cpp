#include "commands/VideoStreamCloseXml.h"

#include "tests/support/Documents.h"

TEST(VideoStreamCloseXml, Writes)
{
    VideoStreamCloseXml codec;
    codec.setCameraId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/VideoStreamCloseXml.document.xml"));
}

TEST(VideoStreamCloseXml, Reads)
{
    VideoStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/VideoStreamCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(VideoStreamCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    VideoStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, "<VideoStreamCloseCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getConsumerId());

    VideoStreamCloseXml used;
    used.setCameraId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<VideoStreamCloseCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getConsumerId());
}

TEST(VideoStreamCloseXml, PassesOverTheOtherSpelling)
{
    VideoStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, "<VideoStreamCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
