#include "commands/PTZChannelRequestXml.h"

#include "tests/support/Documents.h"

TEST(PTZChannelRequestXml, Writes)
{
    PTZChannelRequestXml codec;
    codec.setCameraId(1);
    codec.setDataChannelId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/PTZChannelRequestXml.document.xml"));
}

TEST(PTZChannelRequestXml, Reads)
{
    PTZChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/PTZChannelRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getDataChannelId());
}

TEST(PTZChannelRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    PTZChannelRequestXml codec;
    ASSERT_TRUE(reads(codec, "<PTZChannelRequestCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getDataChannelId());

    PTZChannelRequestXml used;
    used.setCameraId(11);
    used.setDataChannelId(12);
    ASSERT_TRUE(reads(used, "<PTZChannelRequestCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getDataChannelId());
}
