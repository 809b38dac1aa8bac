#include "commands/ChangeAVStreamXml.h"

#include "tests/support/Documents.h"

TEST(ChangeAVStreamXml, Writes)
{
    ChangeAVStreamXml codec;
    codec.setCameraId(1);
    codec.setStreamId(2);
    codec.setConsumerId(3);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/ChangeAVStreamXml.document.xml"));
}

TEST(ChangeAVStreamXml, Reads)
{
    ChangeAVStreamXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/ChangeAVStreamXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getStreamId());
    EXPECT_EQ(3, codec.getConsumerId());
}

TEST(ChangeAVStreamXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    ChangeAVStreamXml codec;
    ASSERT_TRUE(reads(codec, "<ChangeAVStreamCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getStreamId());
    EXPECT_EQ(0, codec.getConsumerId());

    ChangeAVStreamXml used;
    used.setCameraId(11);
    used.setStreamId(12);
    used.setConsumerId(13);
    ASSERT_TRUE(reads(used, "<ChangeAVStreamCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getStreamId());
    EXPECT_EQ(13, used.getConsumerId());
}

TEST(ChangeAVStreamXml, PassesOverTheRightSpelling)
{
    ChangeAVStreamXml codec;
    ASSERT_TRUE(reads(codec, "<ChangeAVStreamCommand ConsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
