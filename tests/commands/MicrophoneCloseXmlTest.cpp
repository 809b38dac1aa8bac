#include "commands/MicrophoneCloseXml.h"

#include "tests/support/Documents.h"

TEST(MicrophoneCloseXml, Writes)
{
    MicrophoneCloseXml codec;
    codec.setCameraId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/MicrophoneCloseXml.document.xml"));
}

TEST(MicrophoneCloseXml, Reads)
{
    MicrophoneCloseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/MicrophoneCloseXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(MicrophoneCloseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    MicrophoneCloseXml codec;
    ASSERT_TRUE(reads(codec, "<MicrophoneCloseCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getConsumerId());

    MicrophoneCloseXml used;
    used.setCameraId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<MicrophoneCloseCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getConsumerId());
}

TEST(MicrophoneCloseXml, PassesOverTheOtherSpelling)
{
    MicrophoneCloseXml codec;
    ASSERT_TRUE(reads(codec, "<MicrophoneCloseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
