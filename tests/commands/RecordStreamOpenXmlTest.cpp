#include "commands/RecordStreamOpenXml.h"

#include "tests/support/Documents.h"

TEST(RecordStreamOpenXml, Writes)
{
    RecordStreamOpenXml codec;
    codec.setStreamType(1);
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RecordStreamOpenXml.document.xml"));
}

TEST(RecordStreamOpenXml, Reads)
{
    CapturedOutput output;
    RecordStreamOpenXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/RecordStreamOpenXml.document.xml")));
    EXPECT_EQ(1, codec.getStreamType());
    EXPECT_EQ("", output.text());
}

TEST(RecordStreamOpenXml, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RecordStreamOpenXml codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamOpenCommand />"));
    EXPECT_EQ(0, codec.getStreamType());

    RecordStreamOpenXml used;
    used.setStreamType(11);
    ASSERT_TRUE(reads(used, "<RecordStreamOpenCommand />"));
    EXPECT_EQ(11, used.getStreamType());
}

TEST(RecordStreamOpenXml, PrintsALineForAMalformedText)
{
    for (const char* text : {"<RecordStreamOpenCommand", "", "text"})
    {
        CapturedOutput output;
        RecordStreamOpenXml codec;
        EXPECT_FALSE(reads(codec, text));
        EXPECT_EQ("m_objRecordStreamOpenDoc.Error() 11111 \n", output.text()) << text;
    }
}

TEST(RecordStreamOpenXml, PrintsALineForAnotherRoot)
{
    CapturedOutput output;
    RecordStreamOpenXml codec;
    EXPECT_FALSE(reads(codec, "<RecordStreamCloseCommand StreamType='1' />"));
    EXPECT_EQ("pobjRecordStreamOpenNode == NULL 2222222\n", output.text());
    EXPECT_EQ(0, codec.getStreamType());
}

TEST(RecordStreamOpenXml, RefusesToReadWithoutAnElement)
{
    CapturedOutput output;
    RecordStreamOpenXml codec;
    EXPECT_FALSE(codec.parseXmlNode());
    codec.setXmlNode(codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    EXPECT_EQ("", output.text());
}
