#include "snapshot/SnapshotTriggerParameterXml.h"

#include "tests/snapshot/TriggerSample.h"
#include "tests/support/Documents.h"

TEST(SnapshotTriggerParameterXml, WritesNodesWithoutTheValuesOfTrafficCameras)
{
    std::string text;
    ASSERT_TRUE(SnapshotTriggerParameterXml().createXmlString(sampleTrigger(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/SnapshotTriggerParameterXml.node.xml"));
}

TEST(SnapshotTriggerParameterXml, ReadsNodes)
{
    SnapshotTriggerParameter read;
    ASSERT_TRUE(
        SnapshotTriggerParameterXml().parseXmlString(golden("snapshot/SnapshotTriggerParameterXml.node.xml"), read));
    expectTrigger(samplePlainTrigger(), read);
}

TEST(SnapshotTriggerParameterXml, ResetsWhatIsMissingButTheValuesOfTrafficCameras)
{
    CapturedOutput output;
    SnapshotTriggerParameter read = sampleTrigger();
    ASSERT_TRUE(SnapshotTriggerParameterXml().parseXmlString("<SnapshotTriggerParameter />", read));
    SnapshotTriggerParameter expected;
    expected.setShutterTime(14);
    expected.setGain(15);
    expected.setSparkState(16);
    expected.setSparkDelay(17);
    expectTrigger(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(SnapshotTriggerParameterXml, DoesNotReadTheValuesOfTrafficCameras)
{
    SnapshotTriggerParameter read;
    ASSERT_TRUE(SnapshotTriggerParameterXml().parseXmlString(
        "<SnapshotTriggerParameter ShutterTime='1' Gain='2' SparkState='3' SparkDelay='4' />", read));
    expectTrigger(SnapshotTriggerParameter(), read);
}

TEST(SnapshotTriggerParameterXml, TakesInputsByTheirName)
{
    SnapshotTriggerParameter read = sampleTrigger();
    ASSERT_TRUE(SnapshotTriggerParameterXml().parseXmlString(
        "<SnapshotTriggerParameter><AlarmInId ID='5' /><Other ID='6' /><!-- -->text<AlarmInId /><AlarmInId ID='7x' />"
        "</SnapshotTriggerParameter>",
        read));
    EXPECT_EQ((std::vector<int>{5, 0, 7}), read.getAlarmInIdList());
}
