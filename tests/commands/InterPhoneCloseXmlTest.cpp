#include "commands/InterPhoneCloseXml.h"

#include "tests/support/Documents.h"

TEST(InterPhoneCloseXml, Writes)
{
    InterPhoneCloseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/InterPhoneCloseXml.document.xml"));
}

TEST(InterPhoneCloseXml, Reads)
{
    InterPhoneCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/InterPhoneCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(InterPhoneCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    InterPhoneCloseXml codec;
    ASSERT_TRUE(reads(codec, "<InterPhoneCloseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    InterPhoneCloseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<InterPhoneCloseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(InterPhoneCloseXml, PassesOverTheOtherSpelling)
{
    InterPhoneCloseXml codec;
    ASSERT_TRUE(reads(codec, "<InterPhoneCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
