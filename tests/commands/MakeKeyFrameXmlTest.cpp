#include "commands/MakeKeyFrameXml.h"

#include "tests/support/Documents.h"

TEST(MakeKeyFrameXml, Writes)
{
    MakeKeyFrameXml codec;
    codec.setCameraId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/MakeKeyFrameXml.document.xml"));
}

TEST(MakeKeyFrameXml, Reads)
{
    MakeKeyFrameXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/MakeKeyFrameXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(MakeKeyFrameXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    MakeKeyFrameXml codec;
    ASSERT_TRUE(reads(codec, "<MakeKeyFrameCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getConsumerId());

    MakeKeyFrameXml used;
    used.setCameraId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<MakeKeyFrameCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getConsumerId());
}

TEST(MakeKeyFrameXml, PassesOverTheRightSpelling)
{
    MakeKeyFrameXml codec;
    ASSERT_TRUE(reads(codec, "<MakeKeyFrameCommand ConsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
