#include "alarm/AlarmOutActionXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

TEST(AlarmOutActionXml, Writes)
{
    AlarmOutActionXml codec;
    codec.setAlarmOutAction(sampleAlarmOutAction());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmOutActionXml.document.xml"));
}

TEST(AlarmOutActionXml, Reads)
{
    AlarmOutActionXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmOutActionXml.document.xml")));
    expectAlarmOutAction(sampleAlarmOutAction(), codec.getAlarmOutAction());
}

TEST(AlarmOutActionXml, ResetsWhatIsMissing)
{
    AlarmOutActionXml codec;
    codec.setAlarmOutAction(sampleAlarmOutAction());
    ASSERT_TRUE(reads(codec, "<AlarmOutAction />"));
    expectAlarmOutAction(AlarmOutAction(), codec.getAlarmOutAction());
}

TEST(AlarmOutActionXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmOutActionXml().createXmlString(sampleAlarmOutAction(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmOutActionXml.node.xml"));
}

TEST(AlarmOutActionXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmOutAction read;
    ASSERT_TRUE(AlarmOutActionXml().parseXmlString(golden("alarm/AlarmOutActionXml.node.xml"), read));
    expectAlarmOutAction(sampleAlarmOutAction(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmOutActionXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    AlarmOutAction read = sampleAlarmOutAction();
    ASSERT_TRUE(AlarmOutActionXml().parseXmlString("<AlarmOutAction />", read));
    expectAlarmOutAction(AlarmOutAction(), read);
    EXPECT_EQ("AlarmInDeviceXml::parseDomainXmlNode get DeviceId failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get AlarmOutId failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get AlarmFlag failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get EventTypeId failed\n",
              output.text());
}

TEST(AlarmOutActionXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmOutAction read = sampleAlarmOutAction();
    EXPECT_FALSE(AlarmOutActionXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmOutActionXml().parseDomainXmlNode(empty, read));
    expectAlarmOutAction(sampleAlarmOutAction(), read);
}
