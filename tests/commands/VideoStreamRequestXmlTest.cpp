#include "commands/VideoStreamRequestXml.h"

#include "tests/support/Documents.h"

TEST(VideoStreamRequestXml, Writes)
{
    VideoStreamRequestXml codec;
    codec.setCameraId(1);
    codec.setStreamId(2);
    codec.setMode(3);
    codec.setDataChannelId(4);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/VideoStreamRequestXml.document.xml"));
}

TEST(VideoStreamRequestXml, Reads)
{
    VideoStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/VideoStreamRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getStreamId());
    EXPECT_EQ(3, codec.getMode());
    EXPECT_EQ(4, codec.getDataChannelId());
}

TEST(VideoStreamRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    VideoStreamRequestXml codec;
    ASSERT_TRUE(reads(codec, "<VideoStreamRequestCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getStreamId());
    EXPECT_EQ(0, codec.getMode());
    EXPECT_EQ(0, codec.getDataChannelId());

    VideoStreamRequestXml used;
    used.setCameraId(11);
    used.setStreamId(12);
    used.setMode(13);
    used.setDataChannelId(14);
    ASSERT_TRUE(reads(used, "<VideoStreamRequestCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getStreamId());
    EXPECT_EQ(13, used.getMode());
    EXPECT_EQ(14, used.getDataChannelId());
}
