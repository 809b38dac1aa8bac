#include "commands/DecoderResponseXml.h"

#include "tests/support/Documents.h"

TEST(DecoderResponseXml, Writes)
{
    DecoderResponseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/DecoderResponseXml.document.xml"));
}

TEST(DecoderResponseXml, Reads)
{
    DecoderResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/DecoderResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(DecoderResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    DecoderResponseXml codec;
    ASSERT_TRUE(reads(codec, "<DecoderResponseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    DecoderResponseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<DecoderResponseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(DecoderResponseXml, PassesOverTheOtherSpelling)
{
    DecoderResponseXml codec;
    ASSERT_TRUE(reads(codec, "<DecoderResponseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
