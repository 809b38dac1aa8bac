#include "commands/DataChannelRequestXml.h"

#include "tests/support/Documents.h"

TEST(DataChannelRequestXml, Writes)
{
    DataChannelRequestXml codec;
    codec.setTransferProtocol(1);
    codec.setChannelType(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/DataChannelRequestXml.document.xml"));
}

TEST(DataChannelRequestXml, Reads)
{
    DataChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/DataChannelRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getTransferProtocol());
    EXPECT_EQ(2, codec.getChannelType());
}

TEST(DataChannelRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    DataChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, "<DataChannelRequestCommand />"));
    EXPECT_EQ(0, codec.getTransferProtocol());
    EXPECT_EQ(0, codec.getChannelType());

    DataChannelRequestXml used;
    used.setTransferProtocol(11);
    used.setChannelType(12);
    ASSERT_TRUE(reads(used, "<DataChannelRequestCommand />"));
    EXPECT_EQ(11, used.getTransferProtocol());
    EXPECT_EQ(12, used.getChannelType());
}
