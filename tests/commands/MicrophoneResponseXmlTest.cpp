#include "commands/MicrophoneResponseXml.h"

#include "tests/support/Documents.h"

TEST(MicrophoneResponseXml, Writes)
{
    MicrophoneResponseXml codec;
    codec.setConsumerId(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/MicrophoneResponseXml.document.xml"));
}

TEST(MicrophoneResponseXml, Reads)
{
    MicrophoneResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/MicrophoneResponseXml.document.xml")));
    EXPECT_EQ(1, codec.getConsumerId());
}

TEST(MicrophoneResponseXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    MicrophoneResponseXml codec;
    ASSERT_TRUE(reads(codec, "<MicrophoneResponseCommand />"));
    EXPECT_EQ(0, codec.getConsumerId());

    MicrophoneResponseXml used;
    used.setConsumerId(11);
    ASSERT_TRUE(reads(used, "<MicrophoneResponseCommand />"));
    EXPECT_EQ(11, used.getConsumerId());
}

TEST(MicrophoneResponseXml, PassesOverTheOtherSpelling)
{
    MicrophoneResponseXml codec;
    ASSERT_TRUE(reads(codec, "<MicrophoneResponseCommand ComsumerId=\"7\" />"));
    EXPECT_EQ(0, codec.getConsumerId());
}
