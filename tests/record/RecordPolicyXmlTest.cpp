#include "record/RecordPolicyXml.h"

#include "tests/record/RecordPolicySample.h"
#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

RecordPolicy samplePolicy()
{
    RecordPolicy policy;
    policy.setDeviceId("D-1");
    policy.setCameraId(2);
    policy.setSaveDays(30);
    policy.enableRecordAudio(true);
    policy.setCycleWriteFlag(false);
    policy.setIsRedundancy(true);
    policy.setDiskGroupId(6);
    policy.setStreamId(7);
    policy.setAlarmRecordPolicy(sampleAlarmRecordPolicy());
    policy.setScheduleRecordPolicy(sampleScheduleRecordPolicy());
    return policy;
}

std::vector<RecordPolicy> sample()
{
    RecordPolicy second;
    second.setDeviceId("D-2");
    second.setCameraId(8);
    second.setSaveDays(9);
    second.enableRecordAudio(true);
    second.setCycleWriteFlag(true);
    second.setDiskGroupId(10);
    second.setStreamId(11);
    return {samplePolicy(), second};
}

void expectPolicy(const RecordPolicy& expected, const RecordPolicy& policy)
{
    EXPECT_EQ(expected.getDeviceId(), policy.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), policy.getCameraId());
    EXPECT_EQ(expected.getSaveDays(), policy.getSaveDays());
    EXPECT_EQ(expected.isRecordAudioOpened(), policy.isRecordAudioOpened());
    EXPECT_EQ(expected.getCycleWriteFlag(), policy.getCycleWriteFlag());
    EXPECT_EQ(expected.getIsRedundancy(), policy.getIsRedundancy());
    EXPECT_EQ(expected.getDiskGroupId(), policy.getDiskGroupId());
    EXPECT_EQ(expected.getStreamId(), policy.getStreamId());
    expectAlarmRecordPolicy(expected.getAlarmRecordPolicy(), policy.getAlarmRecordPolicy());
    expectScheduleRecordPolicy(expected.getScheduleRecordPolicy(), policy.getScheduleRecordPolicy());
}

void expectPolicies(const std::vector<RecordPolicy>& expected, const std::vector<RecordPolicy>& policies)
{
    ASSERT_EQ(expected.size(), policies.size());
    for (std::size_t number = 0; number < policies.size(); ++number)
        expectPolicy(expected[number], policies[number]);
}

/// What a policy without attributes gives in the node form.
RecordPolicy nodeDefaults()
{
    RecordPolicy policy;
    policy.setCameraId(1);
    policy.setStreamId(1);
    return policy;
}

const std::string attributeLines = []
{
    std::string lines;
    for (int attribute = 0; attribute < 8; ++attribute)
        lines += "RecordPolicyXml::parseDomainXmlNode node = nAlarmPreRecordTime failed \n";
    return lines;
}();

} // namespace

TEST(RecordPolicyXml, Writes)
{
    RecordPolicyXml codec;
    codec.setRecordPolicyList(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordPolicyXml.document.xml"));
}

TEST(RecordPolicyXml, ReadsBehindWhatItHolds)
{
    RecordPolicyXml codec;
    codec.setRecordPolicyList({RecordPolicy()});
    ASSERT_TRUE(reads(codec, golden("record/RecordPolicyXml.document.xml")));
    expectPolicies({RecordPolicy(), sample()[0], sample()[1]}, codec.getRecordPolicyList());
}

TEST(RecordPolicyXml, TakesWhatIsMissingForZeroInSilence)
{
    CapturedOutput output;
    RecordPolicyXml codec;
    ASSERT_TRUE(reads(codec, "<RecordPolicyList><RecordPolicy /></RecordPolicyList>"));
    expectPolicies({RecordPolicy()}, codec.getRecordPolicyList());
    EXPECT_EQ("", output.text());
}

TEST(RecordPolicyXml, WalksOnFromTheFirstItemOverElementsOfAnyName)
{
    RecordPolicyXml codec;
    ASSERT_TRUE(reads(codec, "<RecordPolicyList>text<Other CameraId='1' /><RecordPolicy CameraId='2' /><!-- -->"
                             "<Other CameraId='3' /></RecordPolicyList>"));
    ASSERT_EQ(2U, codec.getRecordPolicyList().size());
    EXPECT_EQ(2, codec.getRecordPolicyList()[0].getCameraId());
    EXPECT_EQ(3, codec.getRecordPolicyList()[1].getCameraId());
}

TEST(RecordPolicyXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(RecordPolicyXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "record/RecordPolicyXml.list.xml"));
    ASSERT_TRUE(RecordPolicyXml().createXmlString(std::vector<RecordPolicy>(), text));
    EXPECT_EQ("<RecordPolicyList />\n", text);
}

TEST(RecordPolicyXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    std::vector<RecordPolicy> list(1, RecordPolicy());
    ASSERT_TRUE(RecordPolicyXml().parseXmlString(golden("record/RecordPolicyXml.list.xml"), list));
    expectPolicies({RecordPolicy(), sample()[0], sample()[1]}, list);
    EXPECT_EQ("", output.text());
}

TEST(RecordPolicyXml, ReadsAnEmptyListInSilence)
{
    CapturedOutput output;
    std::vector<RecordPolicy> list;
    ASSERT_TRUE(RecordPolicyXml().parseXmlString("<RecordPolicyList>text<!-- --></RecordPolicyList>", list));
    EXPECT_TRUE(list.empty());
    EXPECT_EQ("", output.text());
}

TEST(RecordPolicyXml, PassesOverItemsOfOtherNames)
{
    CapturedOutput output;
    std::vector<RecordPolicy> list;
    ASSERT_TRUE(RecordPolicyXml().parseXmlString(
        "<RecordPolicyList><Other CameraId='1' /><RecordPolicy CameraId='2' /><Other CameraId='3' />"
        "<RecordPolicy CameraId='4' /></RecordPolicyList>",
        list));
    ASSERT_EQ(2U, list.size());
    EXPECT_EQ(2, list[0].getCameraId());
    EXPECT_EQ(4, list[1].getCameraId());
}

TEST(RecordPolicyXml, PrintsALineForAListWithoutAnElement)
{
    CapturedOutput output;
    const SafePointer<DomainXmlNode> node(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    std::vector<RecordPolicy> list;
    EXPECT_FALSE(RecordPolicyXml().parseDomainXmlNode(node, list));
    EXPECT_EQ("RecordPolicyXml::parseDomainXmlNode  node = NODE_RECORD_POLICY \n", output.text());
}

TEST(RecordPolicyXml, WritesAndReadsOneItem)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("RecordPolicy"));
    ASSERT_TRUE(RecordPolicyXml().createDomainRecordPolicyXmlNode(samplePolicy(), node));

    CapturedOutput output;
    RecordPolicy read = sample()[1];
    ASSERT_TRUE(RecordPolicyXml().parseDomainRecordPolicyXmlNode(node, read));
    expectPolicy(samplePolicy(), read);
    EXPECT_EQ("", output.text());
}

TEST(RecordPolicyXml, PrintsTheSameLineForEachAttributeThatANodeLacks)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("RecordPolicy"));
    ASSERT_TRUE(RecordPolicyXml().createDomainRecordPolicyXmlNode(samplePolicy(), node));
    TiXmlElement* element = node->getXmlNode();
    while (element->FirstAttribute() != nullptr)
        element->RemoveAttribute(std::string(element->FirstAttribute()->Name()).c_str());

    CapturedOutput output;
    RecordPolicy read = sample()[1];
    ASSERT_TRUE(RecordPolicyXml().parseDomainRecordPolicyXmlNode(node, read));
    RecordPolicy expected = nodeDefaults();
    expected.setAlarmRecordPolicy(sampleAlarmRecordPolicy());
    expected.setScheduleRecordPolicy(sampleScheduleRecordPolicy());
    expectPolicy(expected, read);
    EXPECT_EQ(attributeLines, output.text());
}

TEST(RecordPolicyXml, PrintsTheLinesOfChildrenThatANodeLacksAroundThoseOfAttributes)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("RecordPolicy"));
    CapturedOutput output;
    RecordPolicy read = samplePolicy();
    ASSERT_TRUE(RecordPolicyXml().parseDomainRecordPolicyXmlNode(node, read));
    expectPolicy(nodeDefaults(), read);
    EXPECT_EQ("AlarmRecordPolicyXml::parseDomainXmlNode node = NODE_RECORD_POLICY_ALARM_RECORD_POLICY failed \n"
              "AlarmRecordPolicyXml::parseDomainXmlNode node = NODE_RECORD_POLICY_SHEDULE_RECORD_POLICY failed \n" +
                  attributeLines +
                  "AlarmRecordPolicyXml::parseDomainXmlNode node = AlarmRecordPolicy failed \n"
                  "AlarmRecordPolicyXml::parseDomainXmlNode node = ScheduleRecordPolicy failed \n",
              output.text());
}

TEST(RecordPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    RecordPolicy read = samplePolicy();
    std::vector<RecordPolicy> list = sample();
    EXPECT_FALSE(RecordPolicyXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(RecordPolicyXml().parseDomainXmlNode(empty, list));
    EXPECT_FALSE(RecordPolicyXml().createDomainRecordPolicyXmlNode(read, empty));
    EXPECT_FALSE(RecordPolicyXml().parseDomainRecordPolicyXmlNode(empty, read));
    expectPolicies(sample(), list);
    expectPolicy(samplePolicy(), read);
}
