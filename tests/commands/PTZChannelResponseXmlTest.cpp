#include "commands/PTZChannelResponseXml.h"

#include "tests/support/Documents.h"

TEST(PTZChannelResponseXml, Writes)
{
    PTZChannelResponseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/PTZChannelResponseXml.document.xml"));
}

TEST(PTZChannelResponseXml, Reads)
{
    PTZChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/PTZChannelResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(PTZChannelResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    PTZChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<PTZChannelResponseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    PTZChannelResponseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<PTZChannelResponseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(PTZChannelResponseXml, PassesOverTheOtherSpelling)
{
    PTZChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<PTZChannelResponseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
