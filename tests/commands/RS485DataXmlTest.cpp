#include "commands/RS485DataXml.h"

#include "tests/support/Documents.h"

TEST(RS485DataXml, Writes)
{
    RS485DataXml codec;
    codec.setDataLen(1);
    codec.setType(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RS485DataXml.document.xml"));
}

TEST(RS485DataXml, Reads)
{
    RS485DataXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RS485DataXml.document.xml")));
    EXPECT_EQ(1, codec.getDataLen());
    EXPECT_EQ(2, codec.getType());
}

TEST(RS485DataXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RS485DataXml codec;
    ASSERT_TRUE(reads(codec, "<RS485DataCommand />"));
    EXPECT_EQ(0, codec.getDataLen());
    EXPECT_EQ(0, codec.getType());

    RS485DataXml used;
    used.setDataLen(11);
    used.setType(12);
    ASSERT_TRUE(reads(used, "<RS485DataCommand />"));
    EXPECT_EQ(11, used.getDataLen());
    EXPECT_EQ(12, used.getType());
}
