#include "commands/MicrophoneRequestXml.h"

#include "tests/support/Documents.h"

TEST(MicrophoneRequestXml, Writes)
{
    MicrophoneRequestXml codec;
    codec.setCameraId(1);
    codec.setEncodeType(2);
    codec.setStreamFormat(3);
    codec.setDataChannelId(4);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/MicrophoneRequestXml.document.xml"));
}

TEST(MicrophoneRequestXml, Reads)
{
    MicrophoneRequestXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/MicrophoneRequestXml.document.xml")));
    EXPECT_EQ(1, codec.getCameraId());
    EXPECT_EQ(2, codec.getEncodeType());
    EXPECT_EQ(3, codec.getStreamFormat());
    EXPECT_EQ(4, codec.getDataChannelId());
}

TEST(MicrophoneRequestXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    MicrophoneRequestXml codec;
    ASSERT_TRUE(reads(codec, "<MicrophoneRequestCommand />"));
    EXPECT_EQ(0, codec.getCameraId());
    EXPECT_EQ(0, codec.getEncodeType());
    EXPECT_EQ(0, codec.getStreamFormat());
    EXPECT_EQ(0, codec.getDataChannelId());

    MicrophoneRequestXml used;
    used.setCameraId(11);
    used.setEncodeType(12);
    used.setStreamFormat(13);
    used.setDataChannelId(14);
    ASSERT_TRUE(reads(used, "<MicrophoneRequestCommand />"));
    EXPECT_EQ(11, used.getCameraId());
    EXPECT_EQ(12, used.getEncodeType());
    EXPECT_EQ(13, used.getStreamFormat());
    EXPECT_EQ(14, used.getDataChannelId());
}
