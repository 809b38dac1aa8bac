#include "alarm/ScheduleWeekXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

TEST(ScheduleWeekXml, Writes)
{
    ScheduleWeekXml codec;
    codec.setScheduleWeek(sampleScheduleWeek());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/ScheduleWeekXml.document.xml"));
}

TEST(ScheduleWeekXml, Reads)
{
    ScheduleWeekXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/ScheduleWeekXml.document.xml")));
    expectScheduleWeek(sampleScheduleWeek(), codec.getScheduleWeek());
}

TEST(ScheduleWeekXml, ResetsTheDayAndLeavesTheSpansThatAreMissing)
{
    ScheduleWeekXml codec;
    codec.setScheduleWeek(sampleScheduleWeek());
    ASSERT_TRUE(reads(codec, "<ScheduleWeek />"));
    EXPECT_EQ(0, codec.getScheduleWeek().getWeekDay());
    expectScheduleTimes(sampleScheduleWeek().getScheduleTimeList(), codec.getScheduleWeek().getScheduleTimeList());
}

TEST(ScheduleWeekXml, AddsSpansBehindThoseThatAreThere)
{
    ScheduleWeekXml codec;
    codec.getScheduleWeek().getScheduleTimeList().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/ScheduleWeekXml.document.xml")));
    expectScheduleTimes({ScheduleTime(), sampleScheduleTime()}, codec.getScheduleWeek().getScheduleTimeList());
}

TEST(ScheduleWeekXml, ReadsAListWithoutItems)
{
    for (const char* list : {"<ScheduleTimeList />", "<ScheduleTimeList>text<!--ScheduleTime--></ScheduleTimeList>",
                             "<ScheduleTimeList><Other /></ScheduleTimeList>"})
    {
        ScheduleWeekXml codec;
        ASSERT_TRUE(reads(codec, std::string("<ScheduleWeek>") + list + "</ScheduleWeek>")) << list;
        EXPECT_TRUE(codec.getScheduleWeek().getScheduleTimeList().empty()) << list;
    }
}

TEST(ScheduleWeekXml, WritesAnEmptyList)
{
    ScheduleWeekXml codec;
    EXPECT_EQ("<ScheduleWeek WeekDay=\"0\">\n\t<ScheduleTimeList />\n</ScheduleWeek>\n", written(codec));
    std::string text;
    ASSERT_TRUE(ScheduleWeekXml().createXmlString(ScheduleWeek(), text));
    EXPECT_EQ(codec.getXmlString(), text);
}

TEST(ScheduleWeekXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleWeekXml().createXmlString(sampleScheduleWeek(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/ScheduleWeekXml.node.xml"));
}

TEST(ScheduleWeekXml, ReadsNodes)
{
    CapturedOutput output;
    ScheduleWeek read;
    ASSERT_TRUE(ScheduleWeekXml().parseXmlString(golden("alarm/ScheduleWeekXml.node.xml"), read));
    expectScheduleWeek(sampleScheduleWeek(), read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleWeekXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ScheduleWeek read = sampleScheduleWeek();
    ASSERT_TRUE(ScheduleWeekXml().parseXmlString("<ScheduleWeek />", read));
    expectScheduleWeek(ScheduleWeek(), read);
    EXPECT_EQ("ScheduleWeekXml::parseDomainXmlNode get WeekDay failed \n"
              "ScheduleWeekXml::parseDomainXmlNode get ScheduleTimeListNode failed \n",
              output.text());
}

TEST(ScheduleWeekXml, PutsTheSpansOfANodeInPlaceOfOthers)
{
    CapturedOutput output;
    ScheduleWeek read;
    read.getScheduleTimeList().resize(2);
    ASSERT_TRUE(ScheduleWeekXml().parseXmlString(golden("alarm/ScheduleWeekXml.node.xml"), read));
    expectScheduleWeek(sampleScheduleWeek(), read);
    ASSERT_TRUE(
        ScheduleWeekXml().parseXmlString("<ScheduleWeek WeekDay='1'><ScheduleTimeList /></ScheduleWeek>", read));
    EXPECT_TRUE(read.getScheduleTimeList().empty());
    EXPECT_EQ("", output.text());
}

TEST(ScheduleWeekXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleWeek read = sampleScheduleWeek();
    EXPECT_FALSE(ScheduleWeekXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleWeekXml().parseDomainXmlNode(empty, read));
    expectScheduleWeek(sampleScheduleWeek(), read);
}
