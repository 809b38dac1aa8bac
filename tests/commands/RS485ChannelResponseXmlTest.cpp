#include "commands/RS485ChannelResponseXml.h"

#include "tests/support/Documents.h"

TEST(RS485ChannelResponseXml, Writes)
{
    RS485ChannelResponseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RS485ChannelResponseXml.document.xml"));
}

TEST(RS485ChannelResponseXml, Reads)
{
    RS485ChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RS485ChannelResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(RS485ChannelResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RS485ChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<RS485ChannelResponseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    RS485ChannelResponseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<RS485ChannelResponseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(RS485ChannelResponseXml, PassesOverTheOtherSpelling)
{
    RS485ChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<RS485ChannelResponseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
