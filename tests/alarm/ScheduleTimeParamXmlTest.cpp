#include "alarm/ScheduleTimeParamXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

TEST(ScheduleTimeParamXml, Writes)
{
    ScheduleTimeParamXml codec;
    codec.setScheduleTimeParam(sampleScheduleTimeParam());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/ScheduleTimeParamXml.document.xml"));
}

TEST(ScheduleTimeParamXml, Reads)
{
    ScheduleTimeParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/ScheduleTimeParamXml.document.xml")));
    expectScheduleTimeParam(sampleScheduleTimeParam(), codec.getScheduleTimeParam());
}

TEST(ScheduleTimeParamXml, ResetsAttributesAndLeavesListsThatAreMissing)
{
    ScheduleTimeParamXml codec;
    codec.setScheduleTimeParam(sampleScheduleTimeParam());
    ASSERT_TRUE(reads(codec, "<ScheduleTimeParam />"));
    ScheduleTimeParam expected = sampleScheduleTimeParam();
    expected.setDeviceId("");
    expected.setCameraId(0);
    expectScheduleTimeParam(expected, codec.getScheduleTimeParam());
}

TEST(ScheduleTimeParamXml, AddsToTheListsThatAreThere)
{
    ScheduleTimeParamXml codec;
    codec.getScheduleTimeParam().getScheduleWeekList().resize(1);
    codec.getScheduleTimeParam().getScheduleTimeSegmentList().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/ScheduleTimeParamXml.document.xml")));
    ScheduleTimeParam expected = sampleScheduleTimeParam();
    expected.setScheduleWeekList({ScheduleWeek(), sampleScheduleWeek()});
    expected.setScheduleTimeSegmentList({ScheduleTimeSegment(), sampleScheduleTimeSegment()});
    expectScheduleTimeParam(expected, codec.getScheduleTimeParam());
}

TEST(ScheduleTimeParamXml, WritesEmptyLists)
{
    const std::string expected = "<ScheduleTimeParam DeviceId=\"\" CameraId=\"0\">\n\t<ScheduleWeekList />\n"
                                 "\t<ScheduleTimeSegmentList />\n</ScheduleTimeParam>\n";
    ScheduleTimeParamXml codec;
    EXPECT_EQ(expected, written(codec));
    std::string text;
    ASSERT_TRUE(ScheduleTimeParamXml().createXmlString(ScheduleTimeParam(), text));
    EXPECT_EQ(expected, text);
}

TEST(ScheduleTimeParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleTimeParamXml().createXmlString(sampleScheduleTimeParam(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/ScheduleTimeParamXml.node.xml"));
}

TEST(ScheduleTimeParamXml, ReadsNodes)
{
    CapturedOutput output;
    ScheduleTimeParam read;
    ASSERT_TRUE(ScheduleTimeParamXml().parseXmlString(golden("alarm/ScheduleTimeParamXml.node.xml"), read));
    expectScheduleTimeParam(sampleScheduleTimeParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleTimeParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ScheduleTimeParam read = sampleScheduleTimeParam();
    ASSERT_TRUE(ScheduleTimeParamXml().parseXmlString("<ScheduleTimeParam />", read));
    expectScheduleTimeParam(ScheduleTimeParam(), read);
    EXPECT_EQ("ScheduleTimeParamXml::parseDomainXmlNode get CameraId falied \n"
              "ScheduleTimeParamXml::parseDomainXmlNode get DeviceId falied \n"
              "ScheduleTimeParamXml::parseDomainXmlNode get ScheduleWeekListNode falied \n"
              "ScheduleTimeParamXml::parseDomainXmlNode get ScheduleTimeSegmentListNode falied \n",
              output.text());
}

TEST(ScheduleTimeParamXml, PutsTheListsOfANodeInPlaceOfOthers)
{
    ScheduleTimeParam read = sampleScheduleTimeParam();
    ASSERT_TRUE(ScheduleTimeParamXml().parseXmlString(golden("alarm/ScheduleTimeParamXml.node.xml"), read));
    expectScheduleTimeParam(sampleScheduleTimeParam(), read);
}

TEST(ScheduleTimeParamXml, ReadsEitherListOfANodeWithoutTheOther)
{
    CapturedOutput output;
    ScheduleTimeParam read;
    ASSERT_TRUE(ScheduleTimeParamXml().parseXmlString("<ScheduleTimeParam DeviceId='D' CameraId='1'>"
                                                      "<ScheduleTimeSegmentList><ScheduleTimeSegment BeginTime='2' "
                                                      "EndTime='3' /></ScheduleTimeSegmentList></ScheduleTimeParam>",
                                                      read));
    EXPECT_TRUE(read.getScheduleWeekList().empty());
    ASSERT_EQ(1U, read.getScheduleTimeSegmentList().size());
    EXPECT_EQ(3U, read.getScheduleTimeSegmentList()[0].getEndTime());
    EXPECT_EQ("ScheduleTimeParamXml::parseDomainXmlNode get ScheduleWeekListNode falied \n", output.text());
}

TEST(ScheduleTimeParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleTimeParam read = sampleScheduleTimeParam();
    EXPECT_FALSE(ScheduleTimeParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleTimeParamXml().parseDomainXmlNode(empty, read));
    expectScheduleTimeParam(sampleScheduleTimeParam(), read);
}
