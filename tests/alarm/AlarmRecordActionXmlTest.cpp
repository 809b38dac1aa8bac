#include "alarm/AlarmRecordActionXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

TEST(AlarmRecordActionXml, Writes)
{
    AlarmRecordActionXml codec;
    codec.setAlarmRecordAction(sampleAlarmRecordAction());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmRecordActionXml.document.xml"));
}

TEST(AlarmRecordActionXml, Reads)
{
    AlarmRecordActionXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmRecordActionXml.document.xml")));
    expectAlarmRecordAction(sampleAlarmRecordAction(), codec.getAlarmRecordAction());
}

TEST(AlarmRecordActionXml, ResetsWhatIsMissing)
{
    AlarmRecordActionXml codec;
    codec.setAlarmRecordAction(sampleAlarmRecordAction());
    ASSERT_TRUE(reads(codec, "<AlarmRecordAction />"));
    expectAlarmRecordAction(AlarmRecordAction(), codec.getAlarmRecordAction());
}

TEST(AlarmRecordActionXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmRecordActionXml().createXmlString(sampleAlarmRecordAction(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmRecordActionXml.node.xml"));
}

TEST(AlarmRecordActionXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmRecordAction read;
    ASSERT_TRUE(AlarmRecordActionXml().parseXmlString(golden("alarm/AlarmRecordActionXml.node.xml"), read));
    expectAlarmRecordAction(sampleAlarmRecordAction(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmRecordActionXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    AlarmRecordAction read = sampleAlarmRecordAction();
    ASSERT_TRUE(AlarmRecordActionXml().parseXmlString("<AlarmRecordAction />", read));
    expectAlarmRecordAction(AlarmRecordAction(), read);
    EXPECT_EQ("AlarmInDeviceXml::parseDomainXmlNode get CameraId failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get DeviceId failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get EnableRecordAdio failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get EventTypeId failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get PreRecordTime failed\n"
              "AlarmInDeviceXml::parseDomainXmlNode get RecordTime failed\n",
              output.text());
}

TEST(AlarmRecordActionXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmRecordAction read = sampleAlarmRecordAction();
    EXPECT_FALSE(AlarmRecordActionXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmRecordActionXml().parseDomainXmlNode(empty, read));
    expectAlarmRecordAction(sampleAlarmRecordAction(), read);
}
