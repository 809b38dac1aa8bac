#include "commands/RecordStreamCloseXml.h"

#include "tests/support/Documents.h"

TEST(RecordStreamCloseXml, Writes)
{
    RecordStreamCloseXml codec;
    codec.setManagerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RecordStreamCloseXml.document.xml"));
}

TEST(RecordStreamCloseXml, Reads)
{
    RecordStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RecordStreamCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getManagerId());
}

TEST(RecordStreamCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RecordStreamCloseXml codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamCloseCommand />"));
    EXPECT_EQ(0, codec.getManagerId());

    RecordStreamCloseXml used;
    used.setManagerId(11);
    ASSERT_TRUE(reads(used, "<RecordStreamCloseCommand />"));
    EXPECT_EQ(11, used.getManagerId());
}

TEST(RecordStreamCloseXml, RefusesOtherTextsInSilence)
{
    CapturedOutput output;
    RecordStreamCloseXml malformed;
    EXPECT_FALSE(reads(malformed, "<RecordStreamCloseCommand"));
    RecordStreamCloseXml other;
    EXPECT_FALSE(reads(other, "<RecordStreamOpenCommand ManagerId='1' />"));
    EXPECT_EQ(0, other.getManagerId());
    EXPECT_EQ("", output.text());
}
