#include "commands/VideoStreamCtrlXml.h"

#include "tests/support/Documents.h"

TEST(VideoStreamCtrlXml, Writes)
{
    VideoStreamCtrlXml codec;
    codec.setCtrlType(1);
    codec.setCameraId(2);
    codec.setStreamId(3);
    codec.setConsumerId(4);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/VideoStreamCtrlXml.document.xml"));
}

TEST(VideoStreamCtrlXml, Reads)
{
    VideoStreamCtrlXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/VideoStreamCtrlXml.document.xml")));
    EXPECT_EQ(1, codec.getCtrlType());
    EXPECT_EQ(2, codec.getCameraId());
    EXPECT_EQ(3, codec.getStreamId());
    EXPECT_EQ(4, codec.getConsumerId());
}

TEST(VideoStreamCtrlXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    VideoStreamCtrlXml codec;
    ASSERT_TRUE(reads(codec, "<VideoStreamCtrlCommand />"));
    EXPECT_EQ(0, codec.getCtrlType());
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getStreamId());
    EXPECT_EQ(0, codec.getConsumerId());

    VideoStreamCtrlXml used;
    used.setCtrlType(11);
    used.setCameraId(12);
    used.setStreamId(13);
    used.setConsumerId(14);
    ASSERT_TRUE(reads(used, "<VideoStreamCtrlCommand />"));
    EXPECT_EQ(11, used.getCtrlType());
    EXPECT_EQ(12, used.getCameraId());
    EXPECT_EQ(13, used.getStreamId());
    EXPECT_EQ(14, used.getConsumerId());
}

TEST(VideoStreamCtrlXml, PassesOverTheOtherSpelling)
{
    VideoStreamCtrlXml codec;
    ASSERT_TRUE(reads(codec, "<VideoStreamCtrlCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
