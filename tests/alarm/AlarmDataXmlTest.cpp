#include "alarm/AlarmDataXml.h"

#include "tests/alarm/AlarmRecordSample.h"
#include "tests/support/Documents.h"

TEST(AlarmDataXml, Writes)
{
    AlarmDataXml codec;
    codec.setAlarmData(sampleAlarmData());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmDataXml.document.xml"));
}

TEST(AlarmDataXml, Reads)
{
    AlarmDataXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmDataXml.document.xml")));
    expectAlarmData(sampleAlarmData(), codec.getAlarmData());
}

TEST(AlarmDataXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AlarmDataXml codec;
    codec.setAlarmData(sampleAlarmData());
    ASSERT_TRUE(reads(codec, "<AlarmData />"));
    expectAlarmData(AlarmData(), codec.getAlarmData());
    EXPECT_EQ("", output.text());
}

TEST(AlarmDataXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmDataXml().createXmlString(sampleAlarmData(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmDataXml.node.xml"));
}

TEST(AlarmDataXml, ReadsNodes)
{
    AlarmData read;
    ASSERT_TRUE(AlarmDataXml().parseXmlString(golden("alarm/AlarmDataXml.node.xml"), read));
    expectAlarmData(sampleAlarmData(), read);
}

TEST(AlarmDataXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    AlarmData read = sampleAlarmData();
    ASSERT_TRUE(AlarmDataXml().parseXmlString("<AlarmData />", read));
    expectAlarmData(AlarmData(), read);
    EXPECT_EQ("AlarmDataXml::parseDomainXmlNode get AlarmCode failed \n"
              "AlarmDataXml::parseDomainXmlNode get AlarmFlag failed \n"
              "AlarmDataXml::parseDomainXmlNode get AlarmSourceId failed \n"
              "AlarmDataXml::parseDomainXmlNode get AlarmSourceName failed \n"
              "AlarmDataXml::parseDomainXmlNode get AlarmTime failed \n"
              "AlarmDataXml::parseDomainXmlNode get AlarmType failed \n"
              "AlarmDataXml::parseDomainXmlNode get EventType failed \n",
              output.text());
}

TEST(AlarmDataXml, ReadsItsOwnTimeBefore0)
{
    AlarmDataXml codec;
    codec.getAlarmData().setAlarmTime(-5);
    const std::string document = written(codec);
    EXPECT_NE(std::string::npos, document.find(" AlarmTime=\"-5\""));
    AlarmDataXml reader;
    ASSERT_TRUE(reads(reader, document));
    EXPECT_EQ(-5, reader.getAlarmData().getAlarmTime());

    std::string node;
    ASSERT_TRUE(AlarmDataXml().createXmlString(codec.getAlarmData(), node));
    EXPECT_NE(std::string::npos, node.find(" AlarmTime=\"18446744073709551611\""));
    AlarmData read;
    ASSERT_TRUE(AlarmDataXml().parseXmlString(node, read));
    EXPECT_EQ(-5, read.getAlarmTime());
}

TEST(AlarmDataXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmData read = sampleAlarmData();
    EXPECT_FALSE(AlarmDataXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmDataXml().parseDomainXmlNode(empty, read));
    expectAlarmData(sampleAlarmData(), read);
}
