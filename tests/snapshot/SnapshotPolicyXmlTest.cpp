#include "snapshot/SnapshotPolicyXml.h"

#include "tests/snapshot/SnapshotPolicySample.h"
#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

std::vector<SnapshotPolicy> sample()
{
    UploadPolicy upload;
    upload.setUploadEnableFlag(true);
    upload.setUploadServerIP("192.0.2.7");
    upload.setUploadServerPort(8021);
    upload.setIPProtoVer(2);

    std::vector<SnapshotPolicy> policies(2);
    policies[0].setDeviceId("D-1");
    policies[0].setCameraId(2);
    policies[0].setSaveDays(30);
    policies[0].setCycleWriteFlag(true);
    policies[0].setAlarmSnapshotPolicy(sampleAlarmSnapshotPolicy());
    policies[0].setScheduleSnapshotPolicy(sampleScheduleSnapshotPolicy());
    policies[0].setUploadPolicy(upload);
    policies[1].setDeviceId("D-2");
    policies[1].setCameraId(8);
    policies[1].setSaveDays(9);
    policies[1].setIsRedundancy(true);
    return policies;
}

/// What the document form carries of them.
std::vector<SnapshotPolicy> sampleWithoutDevices()
{
    std::vector<SnapshotPolicy> policies = sample();
    for (SnapshotPolicy& policy : policies)
        policy.setDeviceId("");
    return policies;
}

void expectPolicy(const SnapshotPolicy& expected, const SnapshotPolicy& policy)
{
    EXPECT_EQ(expected.getDeviceId(), policy.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), policy.getCameraId());
    EXPECT_EQ(expected.getSaveDays(), policy.getSaveDays());
    EXPECT_EQ(expected.getCycleWriteFlag(), policy.getCycleWriteFlag());
    EXPECT_EQ(expected.getIsRedundancy(), policy.getIsRedundancy());
    expectAlarmSnapshotPolicy(expected.getAlarmSnapshotPolicy(), policy.getAlarmSnapshotPolicy());
    expectScheduleSnapshotPolicy(expected.getScheduleSnapshotPolicy(), policy.getScheduleSnapshotPolicy());
    EXPECT_EQ(expected.getUploadPolicy().getUploadEnableFlag(), policy.getUploadPolicy().getUploadEnableFlag());
    EXPECT_EQ(expected.getUploadPolicy().getUploadServerIP(), policy.getUploadPolicy().getUploadServerIP());
    EXPECT_EQ(expected.getUploadPolicy().getUploadServerPort(), policy.getUploadPolicy().getUploadServerPort());
    EXPECT_EQ(expected.getUploadPolicy().getIPProtoVer(), policy.getUploadPolicy().getIPProtoVer());
}

void expectPolicies(const std::vector<SnapshotPolicy>& expected, const std::vector<SnapshotPolicy>& policies)
{
    ASSERT_EQ(expected.size(), policies.size());
    for (std::size_t number = 0; number < policies.size(); ++number)
        expectPolicy(expected[number], policies[number]);
}

} // namespace

TEST(SnapshotPolicyXml, Writes)
{
    SnapshotPolicyXml codec;
    codec.setSnapshotPolicyList(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotPolicyXml.document.xml"));
}

TEST(SnapshotPolicyXml, ReadsBehindWhatItHolds)
{
    SnapshotPolicyXml codec;
    codec.setSnapshotPolicyList({SnapshotPolicy()});
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotPolicyXml.document.xml")));
    std::vector<SnapshotPolicy> expected = sampleWithoutDevices();
    expected.insert(expected.begin(), SnapshotPolicy());
    expectPolicies(expected, codec.getSnapshotPolicyList());
}

TEST(SnapshotPolicyXml, DoesNotReadTheDeviceInTheDocumentForm)
{
    SnapshotPolicyXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotPolicyList><SnapshotPolicy DeviceId='D' CameraId='2' /></SnapshotPolicyList>"));
    SnapshotPolicy expected;
    expected.setCameraId(2);
    expectPolicies({expected}, codec.getSnapshotPolicyList());
}

TEST(SnapshotPolicyXml, PassesOverItemsOfOtherNamesInTheDocumentForm)
{
    SnapshotPolicyXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotPolicyList><Other CameraId='1' /><SnapshotPolicy CameraId='2' /><!-- -->"
                             "<Other CameraId='3' />text<SnapshotPolicy CameraId='4' /></SnapshotPolicyList>"));
    ASSERT_EQ(2U, codec.getSnapshotPolicyList().size());
    EXPECT_EQ(2, codec.getSnapshotPolicyList()[0].getCameraId());
    EXPECT_EQ(4, codec.getSnapshotPolicyList()[1].getCameraId());
}

TEST(SnapshotPolicyXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(SnapshotPolicyXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "snapshot/SnapshotPolicyXml.list.xml"));
    ASSERT_TRUE(SnapshotPolicyXml().createXmlString(std::vector<SnapshotPolicy>(), text));
    EXPECT_EQ("<SnapshotPolicyList />\n", text);
}

TEST(SnapshotPolicyXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    std::vector<SnapshotPolicy> list(1, SnapshotPolicy());
    ASSERT_TRUE(SnapshotPolicyXml().parseXmlString(golden("snapshot/SnapshotPolicyXml.list.xml"), list));
    expectPolicies({SnapshotPolicy(), sample()[0], sample()[1]}, list);
    EXPECT_EQ("", output.text());
}

TEST(SnapshotPolicyXml, TakesTheDeviceOfADocumentFromAnotherPeerForEmpty)
{
    CapturedOutput output;
    SnapshotPolicyXml codec;
    codec.setSnapshotPolicyList(sample());
    std::vector<SnapshotPolicy> list;
    ASSERT_TRUE(SnapshotPolicyXml().parseXmlString(written(codec), list));
    expectPolicies(sampleWithoutDevices(), list);
}

TEST(SnapshotPolicyXml, TakesWhatANodeLacksForANewRecordInSilence)
{
    CapturedOutput output;
    std::vector<SnapshotPolicy> list;
    ASSERT_TRUE(
        SnapshotPolicyXml().parseXmlString("<SnapshotPolicyList>text<Other /><!-- --></SnapshotPolicyList>", list));
    expectPolicies({SnapshotPolicy()}, list);
    EXPECT_EQ("", output.text());
}

TEST(SnapshotPolicyXml, ReadsTheChildrenOfANodeWithTheDefaultsOfTheirCodecs)
{
    std::vector<SnapshotPolicy> list;
    ASSERT_TRUE(SnapshotPolicyXml().parseXmlString(
        "<SnapshotPolicyList><SnapshotPolicy><ScheduleSnapshotPolicy /><UploadPolicy /></SnapshotPolicy>"
        "</SnapshotPolicyList>",
        list));
    SnapshotPolicy expected;
    expected.getScheduleSnapshotPolicy().setScheduleType(1);
    expected.getUploadPolicy().setIPProtoVer(1);
    expectPolicies({expected}, list);
}

TEST(SnapshotPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<SnapshotPolicy> list = sample();
    EXPECT_FALSE(SnapshotPolicyXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(SnapshotPolicyXml().parseDomainXmlNode(empty, list));
    expectPolicies(sample(), list);
}
