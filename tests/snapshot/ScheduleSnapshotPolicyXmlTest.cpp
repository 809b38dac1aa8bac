#include "snapshot/ScheduleSnapshotPolicyXml.h"

#include "tests/snapshot/SnapshotPolicySample.h"
#include "tests/support/Documents.h"

TEST(ScheduleSnapshotPolicyXml, Writes)
{
    ScheduleSnapshotPolicyXml codec;
    codec.setScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/ScheduleSnapshotPolicyXml.document.xml"));
}

TEST(ScheduleSnapshotPolicyXml, Reads)
{
    ScheduleSnapshotPolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/ScheduleSnapshotPolicyXml.document.xml")));
    expectScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy(), codec.getScheduleSnapshotPolicy());
}

TEST(ScheduleSnapshotPolicyXml, ResetsTheTypeAndLeavesTheRestThatIsMissing)
{
    ScheduleSnapshotPolicyXml codec;
    codec.setScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy());
    ASSERT_TRUE(reads(codec, "<ScheduleSnapshotPolicy />"));
    ScheduleSnapshotPolicy expected = sampleScheduleSnapshotPolicy();
    expected.setScheduleType(0);
    expectScheduleSnapshotPolicy(expected, codec.getScheduleSnapshotPolicy());
}

TEST(ScheduleSnapshotPolicyXml, ReplacesChildrenByThoseThatAreThere)
{
    ScheduleSnapshotPolicyXml codec;
    codec.setScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy());
    ASSERT_TRUE(reads(codec, "<ScheduleSnapshotPolicy OpenFlag='false'><SnapshotParameter interval='9' />"
                             "<ScheduleRecordTimeParam CameraId='7' /></ScheduleSnapshotPolicy>"));
    ScheduleSnapshotPolicy expected;
    expected.getSnapshotParameter().setInterval(9);
    expected.getScheduleTimeParam().setCameraId(7);
    expectScheduleSnapshotPolicy(expected, codec.getScheduleSnapshotPolicy());
}

TEST(ScheduleSnapshotPolicyXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleSnapshotPolicyXml().createXmlString(sampleScheduleSnapshotPolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/ScheduleSnapshotPolicyXml.node.xml"));
}

TEST(ScheduleSnapshotPolicyXml, ReadsNodes)
{
    ScheduleSnapshotPolicy read;
    ASSERT_TRUE(
        ScheduleSnapshotPolicyXml().parseXmlString(golden("snapshot/ScheduleSnapshotPolicyXml.node.xml"), read));
    expectScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy(), read);
}

TEST(ScheduleSnapshotPolicyXml, ResetsWhatANodeLacksInSilenceAndTheTypeToOne)
{
    CapturedOutput output;
    ScheduleSnapshotPolicy read = sampleScheduleSnapshotPolicy();
    ASSERT_TRUE(ScheduleSnapshotPolicyXml().parseXmlString("<ScheduleSnapshotPolicy />", read));
    ScheduleSnapshotPolicy expected;
    expected.setScheduleType(1);
    expectScheduleSnapshotPolicy(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleSnapshotPolicyXml, PrintsTheLinesOfAChildThatIsThere)
{
    CapturedOutput output;
    ScheduleSnapshotPolicy read;
    ASSERT_TRUE(ScheduleSnapshotPolicyXml().parseXmlString(
        "<ScheduleSnapshotPolicy><ScheduleRecordTimeParam DeviceId='D'><ScheduleWeekList /><ScheduleTimeSegmentList />"
        "</ScheduleRecordTimeParam></ScheduleSnapshotPolicy>",
        read));
    EXPECT_EQ(1, read.getScheduleTimeParam().getCameraId());
    EXPECT_EQ("ScheduleRecordTimeParamXml::parseDomainXmlNode  node = ATTR_CAMERA_ID failed\n", output.text());
}

TEST(ScheduleSnapshotPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleSnapshotPolicy read = sampleScheduleSnapshotPolicy();
    EXPECT_FALSE(ScheduleSnapshotPolicyXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleSnapshotPolicyXml().parseDomainXmlNode(empty, read));
    expectScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy(), read);
}
