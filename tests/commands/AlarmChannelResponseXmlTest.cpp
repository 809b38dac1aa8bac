#include "commands/AlarmChannelResponseXml.h"

#include "tests/support/Documents.h"

TEST(AlarmChannelResponseXml, Writes)
{
    AlarmChannelResponseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AlarmChannelResponseXml.document.xml"));
}

TEST(AlarmChannelResponseXml, Reads)
{
    AlarmChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AlarmChannelResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(AlarmChannelResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    AlarmChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmChannelResponseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    AlarmChannelResponseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<AlarmChannelResponseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(AlarmChannelResponseXml, PassesOverTheOtherSpelling)
{
    AlarmChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmChannelResponseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
