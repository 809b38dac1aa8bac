#include "commands/PTZChannelCloseXml.h"

#include "tests/support/Documents.h"

TEST(PTZChannelCloseXml, Writes)
{
    PTZChannelCloseXml codec;
    codec.setCameraId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/PTZChannelCloseXml.document.xml"));
}

TEST(PTZChannelCloseXml, Reads)
{
    PTZChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/PTZChannelCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(PTZChannelCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    PTZChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, "<PTZChannelCloseCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getConsumerId());

    PTZChannelCloseXml used;
    used.setCameraId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<PTZChannelCloseCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getConsumerId());
}

TEST(PTZChannelCloseXml, PassesOverTheOtherSpelling)
{
    PTZChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, "<PTZChannelCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
