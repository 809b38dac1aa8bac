#include "alarm/ScheduleTimeSegmentXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

TEST(ScheduleTimeSegmentXml, Writes)
{
    ScheduleTimeSegmentXml codec;
    codec.setScheduleTimeSegment(sampleScheduleTimeSegment());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/ScheduleTimeSegmentXml.document.xml"));
}

TEST(ScheduleTimeSegmentXml, Reads)
{
    ScheduleTimeSegmentXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/ScheduleTimeSegmentXml.document.xml")));
    expectScheduleTimeSegment(sampleScheduleTimeSegment(), codec.getScheduleTimeSegment());
}

TEST(ScheduleTimeSegmentXml, ResetsWhatIsMissing)
{
    ScheduleTimeSegmentXml codec;
    codec.setScheduleTimeSegment(sampleScheduleTimeSegment());
    ASSERT_TRUE(reads(codec, "<ScheduleTimeSegment />"));
    expectScheduleTimeSegment(ScheduleTimeSegment(), codec.getScheduleTimeSegment());
}

TEST(ScheduleTimeSegmentXml, ReadsADocumentsTimeIntoASignedNumberOf32Bits)
{
    ScheduleTimeSegment segment;
    segment.setBeginTime(2147483648UL);
    segment.setEndTime(4294967295UL);
    ScheduleTimeSegmentXml codec;
    codec.setScheduleTimeSegment(segment);
    EXPECT_EQ("<ScheduleTimeSegment BeginTime=\"2147483648\" EndTime=\"4294967295\" />\n", written(codec));

    ScheduleTimeSegmentXml reader;
    ASSERT_TRUE(reads(reader, codec.getXmlString()));
    EXPECT_EQ(2147483647UL, reader.getScheduleTimeSegment().getBeginTime());
    EXPECT_EQ(2147483647UL, reader.getScheduleTimeSegment().getEndTime());

    ScheduleTimeSegmentXml other;
    ASSERT_TRUE(reads(other, "<ScheduleTimeSegment BeginTime='2147483647' EndTime='-1' />"));
    EXPECT_EQ(2147483647UL, other.getScheduleTimeSegment().getBeginTime());
    EXPECT_EQ(static_cast<unsigned long>(-1), other.getScheduleTimeSegment().getEndTime());
}

TEST(ScheduleTimeSegmentXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ScheduleTimeSegmentXml().createXmlString(sampleScheduleTimeSegment(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/ScheduleTimeSegmentXml.node.xml"));
}

TEST(ScheduleTimeSegmentXml, ReadsNodes)
{
    CapturedOutput output;
    ScheduleTimeSegment read;
    ASSERT_TRUE(ScheduleTimeSegmentXml().parseXmlString(golden("alarm/ScheduleTimeSegmentXml.node.xml"), read));
    expectScheduleTimeSegment(sampleScheduleTimeSegment(), read);
    EXPECT_EQ("", output.text());
}

TEST(ScheduleTimeSegmentXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    ScheduleTimeSegment read = sampleScheduleTimeSegment();
    ASSERT_TRUE(ScheduleTimeSegmentXml().parseXmlString("<ScheduleTimeSegment />", read));
    expectScheduleTimeSegment(ScheduleTimeSegment(), read);
    EXPECT_EQ("ScheduleTimeSegmentXml::parseDomainXmlNode get BeginTime failed \n"
              "ScheduleTimeSegmentXml::parseDomainXmlNode get EndTime failed \n",
              output.text());
}

TEST(ScheduleTimeSegmentXml, CarriesTheFullTimeInANode)
{
    ScheduleTimeSegment segment;
    segment.setBeginTime(2147483648UL);
    segment.setEndTime(4294967295UL);
    std::string text;
    ASSERT_TRUE(ScheduleTimeSegmentXml().createXmlString(segment, text));
    EXPECT_EQ("<ScheduleTimeSegment BeginTime=\"2147483648\" EndTime=\"4294967295\" />\n", text);
    ScheduleTimeSegment read;
    ASSERT_TRUE(ScheduleTimeSegmentXml().parseXmlString(text, read));
    expectScheduleTimeSegment(segment, read);
}

TEST(ScheduleTimeSegmentXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScheduleTimeSegment read = sampleScheduleTimeSegment();
    EXPECT_FALSE(ScheduleTimeSegmentXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScheduleTimeSegmentXml().parseDomainXmlNode(empty, read));
    expectScheduleTimeSegment(sampleScheduleTimeSegment(), read);
}
