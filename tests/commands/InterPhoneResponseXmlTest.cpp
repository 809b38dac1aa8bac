#include "commands/InterPhoneResponseXml.h"

#include "tests/support/Documents.h"

TEST(InterPhoneResponseXml, Writes)
{
    InterPhoneResponseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/InterPhoneResponseXml.document.xml"));
}

TEST(InterPhoneResponseXml, Reads)
{
    InterPhoneResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/InterPhoneResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(InterPhoneResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    InterPhoneResponseXml codec;
    ASSERT_TRUE(reads(codec, "<InterPhoneResponseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    InterPhoneResponseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<InterPhoneResponseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(InterPhoneResponseXml, PassesOverTheOtherSpelling)
{
    InterPhoneResponseXml codec;
    ASSERT_TRUE(reads(codec, "<InterPhoneResponseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
