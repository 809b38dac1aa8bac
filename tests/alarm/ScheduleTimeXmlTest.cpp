#include "alarm/ScheduleTimeXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

TEST(ScheduleTimeXml, Writes)
{
    ScheduleTimeXml codec;
    codec.setScheduleTime(sampleScheduleTime());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/ScheduleTimeXml.document.xml"));
}

TEST(ScheduleTimeXml, Reads)
{
    ScheduleTimeXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/ScheduleTimeXml.document.xml")));
    expectScheduleTime(sampleScheduleTime(), codec.getScheduleTime());
}

TEST(ScheduleTimeXml, ResetsWhatIsMissing)
{
    ScheduleTimeXml codec;
    codec.setScheduleTime(sampleScheduleTime());
    ASSERT_TRUE(reads(codec, "<ScheduleTime />"));
    expectScheduleTime(ScheduleTime(), codec.getScheduleTime());
}

TEST(ScheduleTimeXml, CarriesLongsInADocumentAndIntsInANode)
{
    if (sizeof(long) == sizeof(int)) GTEST_SKIP() << "a long is an int here";

    ScheduleTime time;
    time.setStartTime(static_cast<long>(4294967301));
    time.setEndTime(-1);
    ScheduleTimeXml codec;
    codec.setScheduleTime(time);
    EXPECT_EQ("<ScheduleTime StartTime=\"4294967301\" EndTime=\"-1\" />\n", written(codec));
    ScheduleTimeXml reader;
    ASSERT_TRUE(reads(reader, codec.getXmlString()));
    expectScheduleTime(time, reader.getScheduleTime());

    std::string text;
    ASSERT_TRUE(ScheduleTimeXml().createXmlString(time, text));
    EXPECT_EQ("<ScheduleTime StartTime=\"5\" EndTime=\"-1\" />\n", text);
}

TEST(ScheduleTimeXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleTimeXml().createXmlString(sampleScheduleTime(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/ScheduleTimeXml.node.xml"));
}

TEST(ScheduleTimeXml, ReadsNodes)
{
    CapturedOutput output;
    ScheduleTime read;
    ASSERT_TRUE(ScheduleTimeXml().parseXmlString(golden("alarm/ScheduleTimeXml.node.xml"), read));
    expectScheduleTime(sampleScheduleTime(), read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleTimeXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ScheduleTime read = sampleScheduleTime();
    ASSERT_TRUE(ScheduleTimeXml().parseXmlString("<ScheduleTime />", read));
    expectScheduleTime(ScheduleTime(), read);
    EXPECT_EQ("ScheduleTimeXml::parseDomainXmlNode get StartTime failed \n"
              "ScheduleTimeXml::parseDomainXmlNode get EndTime failed \n",
              output.text());
}

TEST(ScheduleTimeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleTime read = sampleScheduleTime();
    EXPECT_FALSE(ScheduleTimeXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleTimeXml().parseDomainXmlNode(empty, read));
    expectScheduleTime(sampleScheduleTime(), read);
}
