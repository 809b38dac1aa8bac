#include "commands/RecordStreamRemoveXML.h"

#include "tests/support/Documents.h"

TEST(RecordStreamRemoveXML, Writes)
{
    RecordStreamRemoveXML codec;
    codec.setManagerId(1);
    codec.setConsumerId(2);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RecordStreamRemoveXML.document.xml"));
}

TEST(RecordStreamRemoveXML, Reads)
{
    RecordStreamRemoveXML codec;
    ASSERT_TRUE(reads(codec, golden("commands/RecordStreamRemoveXML.document.xml")));
    EXPECT_EQ(1, codec.getManagerId());
    EXPECT_EQ(2, codec.getConsumerId());
}

TEST(RecordStreamRemoveXML, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RecordStreamRemoveXML codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamRemoveCommand />"));
    EXPECT_EQ(0, codec.getManagerId());
    EXPECT_EQ(0, codec.getConsumerId());

    RecordStreamRemoveXML used;
    used.setManagerId(11);
    used.setConsumerId(12);
    ASSERT_TRUE(reads(used, "<RecordStreamRemoveCommand />"));
    EXPECT_EQ(11, used.getManagerId());
    EXPECT_EQ(12, used.getConsumerId());
}
