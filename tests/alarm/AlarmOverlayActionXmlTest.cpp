#include "alarm/AlarmOverlayActionXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

TEST(AlarmOverlayActionXml, Writes)
{
    AlarmOverlayActionXml codec;
    codec.setAlarmOverlayAction(sampleAlarmOverlayAction());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmOverlayActionXml.document.xml"));
}

TEST(AlarmOverlayActionXml, Reads)
{
    AlarmOverlayActionXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmOverlayActionXml.document.xml")));
    expectAlarmOverlayAction(sampleAlarmOverlayAction(), codec.getAlarmOverlayAction());
}

TEST(AlarmOverlayActionXml, ResetsAttributesAndLeavesTheTextThatAreMissing)
{
    AlarmOverlayActionXml codec;
    codec.setAlarmOverlayAction(sampleAlarmOverlayAction());
    ASSERT_TRUE(reads(codec, "<AlarmOverlayAction />"));
    AlarmOverlayAction expected;
    expected.setOSDInfo(sampleOSDInfo());
    expectAlarmOverlayAction(expected, codec.getAlarmOverlayAction());
}

TEST(AlarmOverlayActionXml, ReplacesTheTextByTheOneThatIsThere)
{
    AlarmOverlayActionXml codec;
    codec.setAlarmOverlayAction(sampleAlarmOverlayAction());
    ASSERT_TRUE(reads(codec, "<AlarmOverlayAction><OSDInfo TopX='1' /></AlarmOverlayAction>"));
    OSDInfo expected;
    expected.setTopX(1);
    expectOSDInfo(expected, codec.getAlarmOverlayAction().getOSDInfo());
}

TEST(AlarmOverlayActionXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmOverlayActionXml().createXmlString(sampleAlarmOverlayAction(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmOverlayActionXml.node.xml"));
}

TEST(AlarmOverlayActionXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmOverlayAction read;
    ASSERT_TRUE(AlarmOverlayActionXml().parseXmlString(golden("alarm/AlarmOverlayActionXml.node.xml"), read));
    expectAlarmOverlayAction(sampleAlarmOverlayAction(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmOverlayActionXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    AlarmOverlayAction read = sampleAlarmOverlayAction();
    ASSERT_TRUE(AlarmOverlayActionXml().parseXmlString("<AlarmOverlayAction />", read));
    expectAlarmOverlayAction(AlarmOverlayAction(), read);
    EXPECT_EQ("AlarmOverlayActionXml::parseDomainXmlNode get CameraId failed\n"
              "AlarmOverlayActionXml::parseDomainXmlNode get DeviceId failed\n"
              "AlarmOverlayActionXml::parseDomainXmlNode get EventTypeId failed\n"
              "AlarmOverlayActionXml::parseDomainXmlNode get OSDInfoNode failed\n"
              "AlarmOverlayActionXml::parseDomainXmlNode parse OSDInfoNode failed\n",
              output.text());
}

TEST(AlarmOverlayActionXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmOverlayAction read = sampleAlarmOverlayAction();
    EXPECT_FALSE(AlarmOverlayActionXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmOverlayActionXml().parseDomainXmlNode(empty, read));
    expectAlarmOverlayAction(sampleAlarmOverlayAction(), read);
}
