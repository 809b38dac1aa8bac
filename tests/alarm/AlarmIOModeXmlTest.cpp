#include "alarm/AlarmIOModeXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmIOMode sample()
{
    AlarmIOMode mode;
    mode.setAlarmIOModeID(3);
    return mode;
}

} // namespace

TEST(AlarmIOModeXml, Writes)
{
    AlarmIOModeXml codec;
    codec.setAlarmIOMode(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmIOModeXml.document.xml"));
}

TEST(AlarmIOModeXml, RefusesWhatItWrites)
{
    AlarmIOModeXml codec;
    codec.setAlarmIOMode(sample());
    EXPECT_FALSE(reads(codec, "<AlarmIOMode AlarmIOModeType='5' />"));
    EXPECT_EQ(3, codec.getAlarmIOMode().getAlarmIOModeID());
}

TEST(AlarmIOModeXml, ReadsTheOtherRoot)
{
    AlarmIOModeXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmIOModeType AlarmIOModeType='5' />"));
    EXPECT_EQ(5, codec.getAlarmIOMode().getAlarmIOModeID());
}

TEST(AlarmIOModeXml, Takes1ForADocumentWithoutMode)
{
    CapturedOutput output;
    AlarmIOModeXml codec;
    codec.setAlarmIOMode(sample());
    ASSERT_TRUE(reads(codec, "<AlarmIOModeType />"));
    EXPECT_EQ(1, codec.getAlarmIOMode().getAlarmIOModeID());
    EXPECT_EQ("", output.text());
}

TEST(AlarmIOModeXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmIOModeXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmIOModeXml.node.xml"));
}

TEST(AlarmIOModeXml, ReadsNodes)
{
    AlarmIOMode read;
    ASSERT_TRUE(AlarmIOModeXml().parseXmlString(golden("alarm/AlarmIOModeXml.node.xml"), read));
    EXPECT_EQ(3, read.getAlarmIOModeID());
    EXPECT_FALSE(AlarmIOModeXml().parseXmlString(golden("alarm/AlarmIOModeXml.document.xml"), read));
}

TEST(AlarmIOModeXml, PrintsALineAndTakesMinus1ForANodeWithoutMode)
{
    CapturedOutput output;
    AlarmIOMode read = sample();
    ASSERT_TRUE(AlarmIOModeXml().parseXmlString("<AlarmIOModeType />", read));
    EXPECT_EQ(-1, read.getAlarmIOModeID());
    EXPECT_EQ("AlarmIOModeXml::parseDomainXmlNode get AlarmIOModeType failed \n", output.text());
}

TEST(AlarmIOModeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmIOMode read = sample();
    EXPECT_FALSE(AlarmIOModeXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmIOModeXml().parseDomainXmlNode(empty, read));
    EXPECT_EQ(3, read.getAlarmIOModeID());
}
