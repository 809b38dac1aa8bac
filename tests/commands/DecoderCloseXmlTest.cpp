#include "commands/DecoderCloseXml.h"

#include "tests/support/Documents.h"

TEST(DecoderCloseXml, Writes)
{
    DecoderCloseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/DecoderCloseXml.document.xml"));
}

TEST(DecoderCloseXml, Reads)
{
    DecoderCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/DecoderCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(DecoderCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    DecoderCloseXml codec;
    ASSERT_TRUE(reads(codec, "<DecoderCloseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    DecoderCloseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<DecoderCloseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(DecoderCloseXml, PassesOverTheOtherSpelling)
{
    DecoderCloseXml codec;
    ASSERT_TRUE(reads(codec, "<DecoderCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
