#include "commands/DataChannelResponseXml.h"

#include "tests/support/Documents.h"

TEST(DataChannelResponseXml, Writes)
{
    DataChannelResponseXml codec;
    codec.setDataChannelId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/DataChannelResponseXml.document.xml"));
}

TEST(DataChannelResponseXml, Reads)
{
    DataChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/DataChannelResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getDataChannelId());
}

TEST(DataChannelResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    DataChannelResponseXml codec;
    ASSERT_TRUE(reads(codec, "<DataChannelResponseCommand />"));
    EXPECT_EQ(0, codec.getDataChannelId());

    DataChannelResponseXml used;
    used.setDataChannelId(11);
    ASSERT_TRUE(reads(used, "<DataChannelResponseCommand />"));
    EXPECT_EQ(11, used.getDataChannelId());
}
