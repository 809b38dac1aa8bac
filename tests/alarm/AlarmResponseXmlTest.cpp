#include "alarm/AlarmResponseXml.h"

#include "tests/support/Documents.h"

TEST(AlarmResponseXml, Writes)
{
    AlarmResponseXml codec;
    codec.setSequenceId(17);
    codec.setIP("192.0.2.17");
    codec.setPort(65535);
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmResponseXml.document.xml"));
}

TEST(AlarmResponseXml, Reads)
{
    AlarmResponseXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmResponseXml.document.xml")));
    EXPECT_EQ(17, codec.getSequenceId());
    EXPECT_EQ("192.0.2.17", codec.getIP());
    EXPECT_EQ(65535, codec.getPort());
}

TEST(AlarmResponseXml, LeavesWhatIsMissing)
{
    AlarmResponseXml codec;
    codec.setSequenceId(17);
    codec.setIP("192.0.2.17");
    codec.setPort(65535);
    ASSERT_TRUE(reads(codec, "<AlarmResponse />"));
    EXPECT_EQ(17, codec.getSequenceId());
    EXPECT_EQ("192.0.2.17", codec.getIP());
    EXPECT_EQ(65535, codec.getPort());
}

TEST(AlarmResponseXml, WrapsAPortBeyondItsRange)
{
    AlarmResponseXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmResponse Port='65537' />"));
    EXPECT_EQ(1, codec.getPort());
}
