#include "record/ScheduleRecordTimeParamXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

TEST(ScheduleRecordTimeParamXml, Writes)
{
    ScheduleRecordTimeParamXml codec;
    codec.setScheduleTimeParam(sampleScheduleTimeParam());
    EXPECT_TRUE(matchesGolden(written(codec), "record/ScheduleRecordTimeParamXml.document.xml"));
}

TEST(ScheduleRecordTimeParamXml, Reads)
{
    ScheduleRecordTimeParamXml codec;
    ASSERT_TRUE(reads(codec, golden("record/ScheduleRecordTimeParamXml.document.xml")));
    expectScheduleTimeParam(sampleScheduleTimeParam(), codec.getScheduleTimeParam());
}

TEST(ScheduleRecordTimeParamXml, ResetsAttributesAndLeavesListsThatAreMissing)
{
    ScheduleRecordTimeParamXml codec;
    codec.setScheduleTimeParam(sampleScheduleTimeParam());
    ASSERT_TRUE(reads(codec, "<ScheduleRecordTimeParam />"));
    ScheduleTimeParam expected = sampleScheduleTimeParam();
    expected.setDeviceId("");
    expected.setCameraId(0);
    expectScheduleTimeParam(expected, codec.getScheduleTimeParam());
}

TEST(ScheduleRecordTimeParamXml, AddsToTheListsThatAreThere)
{
    ScheduleRecordTimeParamXml codec;
    codec.getScheduleTimeParam().getScheduleWeekList().resize(1);
    codec.getScheduleTimeParam().getScheduleTimeSegmentList().resize(1);
    ASSERT_TRUE(reads(codec, golden("record/ScheduleRecordTimeParamXml.document.xml")));
    ScheduleTimeParam expected = sampleScheduleTimeParam();
    expected.setScheduleWeekList({ScheduleWeek(), sampleScheduleWeek()});
    expected.setScheduleTimeSegmentList({ScheduleTimeSegment(), sampleScheduleTimeSegment()});
    expectScheduleTimeParam(expected, codec.getScheduleTimeParam());
}

TEST(ScheduleRecordTimeParamXml, RefusesTheNameThatTheRecordHasElsewhere)
{
    ScheduleRecordTimeParamXml codec;
    EXPECT_FALSE(reads(codec, "<ScheduleTimeParam CameraId='1' />"));
    ScheduleTimeParam read;
    EXPECT_FALSE(ScheduleRecordTimeParamXml().parseXmlString("<ScheduleTimeParam CameraId='1' />", read));
}

TEST(ScheduleRecordTimeParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleRecordTimeParamXml().createXmlString(sampleScheduleTimeParam(), text));
    EXPECT_TRUE(matchesGolden(text, "record/ScheduleRecordTimeParamXml.node.xml"));
}

TEST(ScheduleRecordTimeParamXml, ReadsNodes)
{
    CapturedOutput output;
    ScheduleTimeParam read;
    ASSERT_TRUE(
        ScheduleRecordTimeParamXml().parseXmlString(golden("record/ScheduleRecordTimeParamXml.node.xml"), read));
    expectScheduleTimeParam(sampleScheduleTimeParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleRecordTimeParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ScheduleTimeParam read = sampleScheduleTimeParam();
    ASSERT_TRUE(ScheduleRecordTimeParamXml().parseXmlString("<ScheduleRecordTimeParam />", read));
    ScheduleTimeParam expected;
    expected.setCameraId(1);
    expectScheduleTimeParam(expected, read);
    EXPECT_EQ("ScheduleRecordTimeParamXml::parseDomainXmlNode  node = ATTR_CAMERA_ID failed\n"
              "ScheduleRecordTimeParamXml::parseDomainXmlNode  node = ATTR_DEVICE_ID failed\n"
              "ScheduleRecordTimeParamXml::parseDomainXmlNode  node = NODE_SCHEDULE_WEEK_LIST failed\n"
              "ScheduleRecordTimeParamXml::parseDomainXmlNode  node = NODE_SCHEDULE_TIME_SEGMENT_LIST failed\n",
              output.text());
}

TEST(ScheduleRecordTimeParamXml, PutsTheListsOfANodeInPlaceOfOthers)
{
    CapturedOutput output;
    ScheduleTimeParam read = sampleScheduleTimeParam();
    ASSERT_TRUE(ScheduleRecordTimeParamXml().parseXmlString(
        "<ScheduleRecordTimeParam CameraId='2' DeviceId='D'><ScheduleWeekList />"
        "<ScheduleTimeSegmentList>text<Other BeginTime='3' EndTime='4' /></ScheduleTimeSegmentList>"
        "</ScheduleRecordTimeParam>",
        read));
    ScheduleTimeSegment segment;
    segment.setBeginTime(3);
    segment.setEndTime(4);
    ScheduleTimeParam expected;
    expected.setCameraId(2);
    expected.setDeviceId("D");
    expected.setScheduleTimeSegmentList({segment});
    expectScheduleTimeParam(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleRecordTimeParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleTimeParam read = sampleScheduleTimeParam();
    EXPECT_FALSE(ScheduleRecordTimeParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleRecordTimeParamXml().parseDomainXmlNode(empty, read));
    expectScheduleTimeParam(sampleScheduleTimeParam(), read);
}
