#include "commands/DecoderRequestXml.h"

#include "tests/support/Documents.h"

TEST(DecoderRequestXml, Writes)
{
    DecoderRequestXml codec;
    codec.setWindowId(1);
    codec.setDataChannelId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/DecoderRequestXml.document.xml"));
}

TEST(DecoderRequestXml, Reads)
{
    DecoderRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/DecoderRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getWindowId());
    EXPECT_EQ(2, codec.getDataChannelId());
}

TEST(DecoderRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    DecoderRequestXml codec;
    ASSERT_TRUE(reads(codec, "<DecoderRequestCommand />"));
    EXPECT_EQ(0, codec.getWindowId());
    EXPECT_EQ(0, codec.getDataChannelId());

    DecoderRequestXml used;
    used.setWindowId(11);
    used.setDataChannelId(12);
    ASSERT_TRUE(reads(used, "<DecoderRequestCommand />"));
    EXPECT_EQ(11, used.getWindowId());
    EXPECT_EQ(12, used.getDataChannelId());
}
