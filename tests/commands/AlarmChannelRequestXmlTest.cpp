#include "commands/AlarmChannelRequestXml.h"

#include "tests/support/Documents.h"

TEST(AlarmChannelRequestXml, Writes)
{
    AlarmChannelRequestXml codec;
    codec.setDataChannelId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AlarmChannelRequestXml.document.xml"));
}

TEST(AlarmChannelRequestXml, Reads)
{
    AlarmChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AlarmChannelRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getDataChannelId());
}

TEST(AlarmChannelRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    AlarmChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmChannelRequestCommand />"));
    EXPECT_EQ(0, codec.getDataChannelId());

    AlarmChannelRequestXml used;
    used.setDataChannelId(11);
    ASSERT_TRUE(reads(used, "<AlarmChannelRequestCommand />"));
    EXPECT_EQ(11, used.getDataChannelId());
}
