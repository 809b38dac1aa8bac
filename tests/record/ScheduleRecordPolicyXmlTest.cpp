#include "record/ScheduleRecordPolicyXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/record/RecordPolicySample.h"
#include "tests/support/Documents.h"

TEST(ScheduleRecordPolicyXml, Writes)
{
    ScheduleRecordPolicyXml codec;
    codec.setScheduleRecordPolicy(sampleScheduleRecordPolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "record/ScheduleRecordPolicyXml.document.xml"));
}

TEST(ScheduleRecordPolicyXml, Reads)
{
    ScheduleRecordPolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("record/ScheduleRecordPolicyXml.document.xml")));
    expectScheduleRecordPolicy(sampleScheduleRecordPolicy(), codec.getScheduleRecordPolicy());
}

TEST(ScheduleRecordPolicyXml, ResetsTheTypeAndLeavesTheRestThatIsMissing)
{
    ScheduleRecordPolicyXml codec;
    codec.setScheduleRecordPolicy(sampleScheduleRecordPolicy());
    ASSERT_TRUE(reads(codec, "<ScheduleRecordPolicy />"));
    ScheduleRecordPolicy expected = sampleScheduleRecordPolicy();
    expected.setScheduleRecordType(0);
    expectScheduleRecordPolicy(expected, codec.getScheduleRecordPolicy());
}

TEST(ScheduleRecordPolicyXml, ReplacesTheScheduleByTheOneThatIsThere)
{
    ScheduleRecordPolicyXml codec;
    codec.setScheduleRecordPolicy(sampleScheduleRecordPolicy());
    ASSERT_TRUE(reads(codec, "<ScheduleRecordPolicy><ScheduleRecordTimeParam CameraId='7' /></ScheduleRecordPolicy>"));
    ScheduleTimeParam expected;
    expected.setCameraId(7);
    expectScheduleTimeParam(expected, codec.getScheduleRecordPolicy().getScheduleTimeParam());
}

TEST(ScheduleRecordPolicyXml, DoesNotReadATypeThatIsSpeltRight)
{
    CapturedOutput output;
    ScheduleRecordPolicyXml codec;
    ASSERT_TRUE(reads(codec, "<ScheduleRecordPolicy ScheduleRecordType='4' />"));
    EXPECT_EQ(0, codec.getScheduleRecordPolicy().getScheduleRecordType());

    ScheduleRecordPolicy read;
    ASSERT_TRUE(codec.parseXmlString("<ScheduleRecordPolicy ScheduleRecordType='4' />", read));
    EXPECT_EQ(0, read.getScheduleRecordType());
}

TEST(ScheduleRecordPolicyXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleRecordPolicyXml().createXmlString(sampleScheduleRecordPolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "record/ScheduleRecordPolicyXml.node.xml"));
}

TEST(ScheduleRecordPolicyXml, ReadsNodes)
{
    CapturedOutput output;
    ScheduleRecordPolicy read;
    ASSERT_TRUE(ScheduleRecordPolicyXml().parseXmlString(golden("record/ScheduleRecordPolicyXml.node.xml"), read));
    expectScheduleRecordPolicy(sampleScheduleRecordPolicy(), read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleRecordPolicyXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ScheduleRecordPolicy read = sampleScheduleRecordPolicy();
    ASSERT_TRUE(ScheduleRecordPolicyXml().parseXmlString("<ScheduleRecordPolicy />", read));
    expectScheduleRecordPolicy(ScheduleRecordPolicy(), read);
    EXPECT_EQ("ScheduleRecordPolicyXml::parseDomainXmlNode  node = NODE_SCHEDULE_RECORD_TYPE  failed\n"
              "ScheduleRecordPolicyXml::parseDomainXmlNode  node = NODE_SCHEDULE_RECORD_OPEN_FLAG failed\n"
              "ScheduleRecordPolicyXml::parseDomainXmlNode  node = NODE_SHCEDULE_TIME_PARAM failed\n"
              "ScheduleRecordPolicyXml::parseDomainXmlNode  node = ScheduleTimeParam failed\n",
              output.text());
}

TEST(ScheduleRecordPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleRecordPolicy read = sampleScheduleRecordPolicy();
    EXPECT_FALSE(ScheduleRecordPolicyXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleRecordPolicyXml().parseDomainXmlNode(empty, read));
    expectScheduleRecordPolicy(sampleScheduleRecordPolicy(), read);
}
