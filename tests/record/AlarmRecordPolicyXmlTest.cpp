#include "record/AlarmRecordPolicyXml.h"

#include "tests/record/AlarmEventSample.h"
#include "tests/record/RecordPolicySample.h"
#include "tests/support/Documents.h"

TEST(AlarmRecordPolicyXml, Writes)
{
    AlarmRecordPolicyXml codec;
    codec.setAlarmRecordPolicy(sampleAlarmRecordPolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "record/AlarmRecordPolicyXml.document.xml"));
}

TEST(AlarmRecordPolicyXml, Reads)
{
    AlarmRecordPolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("record/AlarmRecordPolicyXml.document.xml")));
    expectAlarmRecordPolicy(sampleAlarmRecordPolicy(), codec.getAlarmRecordPolicy());
}

TEST(AlarmRecordPolicyXml, ResetsNumbersAndLeavesTheRestThatIsMissing)
{
    AlarmRecordPolicyXml codec;
    codec.setAlarmRecordPolicy(sampleAlarmRecordPolicy());
    codec.getAlarmRecordPolicy().setAlarmRecordOpenState(true);
    ASSERT_TRUE(reads(codec, "<AlarmRecordPolicy />"));
    AlarmRecordPolicy expected = sampleAlarmRecordPolicy();
    expected.setAlarmRecordTime(0, 0);
    expected.setAlarmRecordOpenState(true);
    expectAlarmRecordPolicy(expected, codec.getAlarmRecordPolicy());
}

TEST(AlarmRecordPolicyXml, AddsToTheAlarmsThatAreThere)
{
    AlarmRecordPolicyXml codec;
    codec.setAlarmRecordPolicy(sampleAlarmRecordPolicy());
    ASSERT_TRUE(reads(codec, "<AlarmRecordPolicy><AlarmEventList><Other AlarmId='1' />text<AlarmEvent AlarmId='2' />"
                             "<!-- --><Other AlarmType='3' /></AlarmEventList></AlarmRecordPolicy>"));
    std::vector<AlarmEvent> expected = sampleAlarmEvents();
    expected.push_back(alarmEvent(2, 0, 0));
    expected.push_back(alarmEvent(0, 0, 3));
    expectAlarmEvents(expected, codec.getAlarmRecordPolicy().getAlarmEventList());
}

TEST(AlarmRecordPolicyXml, TakesAlarmsThatStayWithTheCaller)
{
    std::vector<AlarmEvent> events = sampleAlarmEvents();
    AlarmRecordPolicy policy;
    policy.setAlarmEventList(events);
    expectAlarmEvents(sampleAlarmEvents(), events);
    expectAlarmEvents(sampleAlarmEvents(), policy.getAlarmEventList());
}

TEST(AlarmRecordPolicyXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmRecordPolicyXml().createXmlString(sampleAlarmRecordPolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "record/AlarmRecordPolicyXml.node.xml"));
}

TEST(AlarmRecordPolicyXml, ReadsNodes)
{
    CapturedOutput output;
    AlarmRecordPolicy read;
    ASSERT_TRUE(AlarmRecordPolicyXml().parseXmlString(golden("record/AlarmRecordPolicyXml.node.xml"), read));
    expectAlarmRecordPolicy(sampleAlarmRecordPolicy(), read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmRecordPolicyXml, ResetsWhatANodeLacksButTheAlarmsAndPrintsOneLine)
{
    CapturedOutput output;
    AlarmRecordPolicy read = sampleAlarmRecordPolicy();
    read.setAlarmRecordOpenState(true);
    ASSERT_TRUE(AlarmRecordPolicyXml().parseXmlString("<AlarmRecordPolicy />", read));
    AlarmRecordPolicy expected;
    expected.getAlarmEventList() = sampleAlarmEvents();
    expectAlarmRecordPolicy(expected, read);
    EXPECT_EQ("AlarmRecordPolicyXml::parseDomainXmlNode node = nAlarmPreRecordTime failed \n", output.text());
}

TEST(AlarmRecordPolicyXml, PutsTheAlarmsOfANodeInPlaceOfOthers)
{
    CapturedOutput output;
    AlarmRecordPolicy read = sampleAlarmRecordPolicy();
    ASSERT_TRUE(AlarmRecordPolicyXml().parseXmlString(
        "<AlarmRecordPolicy AlarmPreRecordTime='many'><AlarmEventList><AlarmEvent AlarmType='x' MajorAlarmType='7y' />"
        "</AlarmEventList></AlarmRecordPolicy>",
        read));
    EXPECT_EQ(0, read.getAlarmPreRecordTime());
    expectAlarmEvents({alarmEvent(0, 7, 0)}, read.getAlarmEventList());
    EXPECT_EQ("", output.text());
}

TEST(AlarmRecordPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmRecordPolicy read = sampleAlarmRecordPolicy();
    EXPECT_FALSE(AlarmRecordPolicyXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmRecordPolicyXml().parseDomainXmlNode(empty, read));
    expectAlarmRecordPolicy(sampleAlarmRecordPolicy(), read);
}
