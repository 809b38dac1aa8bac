#include "commands/RS485ChannelCloseXml.h"

#include "tests/support/Documents.h"

TEST(RS485ChannelCloseXml, Writes)
{
    RS485ChannelCloseXml codec;
    codec.setComId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RS485ChannelCloseXml.document.xml"));
}

TEST(RS485ChannelCloseXml, Reads)
{
    RS485ChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RS485ChannelCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getComId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(RS485ChannelCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RS485ChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, "<RS485ChannelCloseCommand />"));
    EXPECT_EQ(0, codec.getComId());
    EXPECT_EQ(0, codec.getConsumerId());

    RS485ChannelCloseXml used;
    used.setComId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<RS485ChannelCloseCommand />"));
    EXPECT_EQ(11, used.getComId());
    EXPECT_EQ(12, used.getConsumerId());
}

TEST(RS485ChannelCloseXml, PassesOverTheOtherSpelling)
{
    RS485ChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, "<RS485ChannelCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
