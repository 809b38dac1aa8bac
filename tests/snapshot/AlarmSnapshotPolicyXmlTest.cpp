#include "snapshot/AlarmSnapshotPolicyXml.h"

#include "tests/record/AlarmEventSample.h"
#include "tests/snapshot/SnapshotPolicySample.h"
#include "tests/support/Documents.h"

TEST(AlarmSnapshotPolicyXml, Writes)
{
    AlarmSnapshotPolicyXml codec;
    codec.setAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/AlarmSnapshotPolicyXml.document.xml"));
}

TEST(AlarmSnapshotPolicyXml, Reads)
{
    AlarmSnapshotPolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/AlarmSnapshotPolicyXml.document.xml")));
    expectAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy(), codec.getAlarmSnapshotPolicy());
}

TEST(AlarmSnapshotPolicyXml, ResetsNumbersAndLeavesTheRestThatIsMissing)
{
    AlarmSnapshotPolicyXml codec;
    codec.setAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy());
    codec.getAlarmSnapshotPolicy().setAlarmSnapshotOpenState(true);
    ASSERT_TRUE(reads(codec, "<AlarmSnapshotPolicy />"));
    AlarmSnapshotPolicy expected = sampleAlarmSnapshotPolicy();
    expected.setAlarmSnapshotTime(0, 0);
    expected.setAlarmSnapshotOpenState(true);
    expectAlarmSnapshotPolicy(expected, codec.getAlarmSnapshotPolicy());
}

TEST(AlarmSnapshotPolicyXml, ReplacesTheParameterAndAddsToTheAlarmsThatAreThere)
{
    AlarmSnapshotPolicyXml codec;
    codec.setAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy());
    ASSERT_TRUE(reads(codec, "<AlarmSnapshotPolicy><SnapshotParameter interval='9' /><AlarmEventList><Other />text"
                             "<AlarmEvent AlarmId='2' /><!-- --><Other AlarmType='3' /></AlarmEventList>"
                             "</AlarmSnapshotPolicy>"));
    SnapshotParameter parameter;
    parameter.setInterval(9);
    expectSnapshotParameter(parameter, codec.getAlarmSnapshotPolicy().getSnapshotParameter());
    std::vector<AlarmEvent> events = sampleAlarmEvents();
    events.push_back(alarmEvent(2, 0, 0));
    events.push_back(alarmEvent(0, 0, 3));
    expectAlarmEvents(events, codec.getAlarmSnapshotPolicy().getAlarmEventList());
}

TEST(AlarmSnapshotPolicyXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AlarmSnapshotPolicyXml().createXmlString(sampleAlarmSnapshotPolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/AlarmSnapshotPolicyXml.node.xml"));
}

TEST(AlarmSnapshotPolicyXml, ReadsNodes)
{
    AlarmSnapshotPolicy read;
    ASSERT_TRUE(AlarmSnapshotPolicyXml().parseXmlString(golden("snapshot/AlarmSnapshotPolicyXml.node.xml"), read));
    expectAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy(), read);
}

TEST(AlarmSnapshotPolicyXml, ResetsWhatANodeLacksButTheAlarmsInSilence)
{
    CapturedOutput output;
    AlarmSnapshotPolicy read = sampleAlarmSnapshotPolicy();
    read.setAlarmSnapshotOpenState(true);
    ASSERT_TRUE(AlarmSnapshotPolicyXml().parseXmlString("<AlarmSnapshotPolicy />", read));
    AlarmSnapshotPolicy expected;
    expected.setAlarmEventList(sampleAlarmEvents());
    expectAlarmSnapshotPolicy(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(AlarmSnapshotPolicyXml, PutsTheAlarmsOfANodeInPlaceOfOthers)
{
    AlarmSnapshotPolicy read = sampleAlarmSnapshotPolicy();
    ASSERT_TRUE(
        AlarmSnapshotPolicyXml().parseXmlString("<AlarmSnapshotPolicy><AlarmEventList><AlarmEvent AlarmId='7' />"
                                                "</AlarmEventList></AlarmSnapshotPolicy>",
                                                read));
    expectAlarmEvents({alarmEvent(7, 0, 0)}, read.getAlarmEventList());
}

TEST(AlarmSnapshotPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AlarmSnapshotPolicy read = sampleAlarmSnapshotPolicy();
    EXPECT_FALSE(AlarmSnapshotPolicyXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AlarmSnapshotPolicyXml().parseDomainXmlNode(empty, read));
    expectAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy(), read);
}
