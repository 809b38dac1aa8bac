#include "alarm/NetworkAlarmEventXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/NetworkAlarmEventSample.h"
#include "tests/support/Documents.h"

TEST(NetworkAlarmEventXml, Writes)
{
    NetworkAlarmEventXml codec;
    codec.setNetworkAlarmEvent(sampleNetworkAlarmEvent());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/NetworkAlarmEventXml.document.xml"));
}

TEST(NetworkAlarmEventXml, ReadsAndPrintsALine)
{
    CapturedOutput output;
    NetworkAlarmEventXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/NetworkAlarmEventXml.document.xml")));
    expectNetworkAlarmEvent(sampleNetworkAlarmEvent(), codec.getNetworkAlarmEvent());
    EXPECT_EQ("NetworkAlarmEventXml::parseXmlNode() NetworkCardId=52,AlarmEnableFlag=1  1111111111111111\n",
              output.text());
}

TEST(NetworkAlarmEventXml, ResetsAttributesAndLeavesListsThatAreMissing)
{
    CapturedOutput output;
    NetworkAlarmEventXml codec;
    codec.setNetworkAlarmEvent(sampleNetworkAlarmEvent());
    ASSERT_TRUE(reads(codec, "<NetworkAlarmEvent />"));
    NetworkAlarmEvent expected = sampleNetworkAlarmEvent();
    expected.setNetworkCardId(0);
    expected.setAlarmEnableFlag(false);
    expectNetworkAlarmEvent(expected, codec.getNetworkAlarmEvent());
    EXPECT_EQ("NetworkAlarmEventXml::parseXmlNode() NetworkCardId=0,AlarmEnableFlag=0  1111111111111111\n",
              output.text());
}

TEST(NetworkAlarmEventXml, AddsActionsBehindThoseThatAreThere)
{
    CapturedOutput output;
    NetworkAlarmEventXml codec;
    codec.getNetworkAlarmEvent().getAlarmOutAction().resize(1);
    codec.getNetworkAlarmEvent().getAlarmPTZAction().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/NetworkAlarmEventXml.document.xml")));
    expectAlarmOutActions({AlarmOutAction(), sampleAlarmOutAction()}, codec.getNetworkAlarmEvent().getAlarmOutAction());
    expectAlarmPTZActions({AlarmPTZAction(), sampleAlarmPTZAction()}, codec.getNetworkAlarmEvent().getAlarmPTZAction());
}
