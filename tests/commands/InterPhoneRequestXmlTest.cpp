#include "commands/InterPhoneRequestXml.h"

#include "tests/support/Documents.h"

TEST(InterPhoneRequestXml, Writes)
{
    InterPhoneRequestXml codec;
    codec.setDecodeType(1);
    codec.setDataChannelId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/InterPhoneRequestXml.document.xml"));
}

TEST(InterPhoneRequestXml, Reads)
{
    InterPhoneRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/InterPhoneRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getDecodeType());
    EXPECT_EQ(2, codec.getDataChannelId());
}

TEST(InterPhoneRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    InterPhoneRequestXml codec;
    ASSERT_TRUE(reads(codec, "<InterPhoneRequestCommand />"));
    EXPECT_EQ(0, codec.getDecodeType());
    EXPECT_EQ(0, codec.getDataChannelId());

    InterPhoneRequestXml used;
    used.setDecodeType(11);
    used.setDataChannelId(12);
    ASSERT_TRUE(reads(used, "<InterPhoneRequestCommand />"));
    EXPECT_EQ(11, used.getDecodeType());
    EXPECT_EQ(12, used.getDataChannelId());
}
