#include "commands/AlarmChannelCloseXml.h"

#include "tests/support/Documents.h"

TEST(AlarmChannelCloseXml, Writes)
{
    AlarmChannelCloseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AlarmChannelCloseXml.document.xml"));
}

TEST(AlarmChannelCloseXml, Reads)
{
    AlarmChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AlarmChannelCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(AlarmChannelCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    AlarmChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmChannelCloseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    AlarmChannelCloseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<AlarmChannelCloseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(AlarmChannelCloseXml, PassesOverTheOtherSpelling)
{
    AlarmChannelCloseXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmChannelCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
