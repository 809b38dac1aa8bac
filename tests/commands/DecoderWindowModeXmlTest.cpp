#include "commands/DecoderWindowModeXml.h"

#include "tests/support/Documents.h"

TEST(DecoderWindowModeXml, Writes)
{
    DecoderWindowModeXml codec;
    codec.setWindowMode(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/DecoderWindowModeXml.document.xml"));
}

TEST(DecoderWindowModeXml, Reads)
{
    DecoderWindowModeXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/DecoderWindowModeXml.document.xml")));
    EXPECT_EQ(1, codec.getWindowMode());
}

TEST(DecoderWindowModeXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    DecoderWindowModeXml codec;
    ASSERT_TRUE(reads(codec, "<DecoderWindowModeCommand />"));
    EXPECT_EQ(0, codec.getWindowMode());

    DecoderWindowModeXml used;
    used.setWindowMode(11);
    ASSERT_TRUE(reads(used, "<DecoderWindowModeCommand />"));
    EXPECT_EQ(11, used.getWindowMode());
}
