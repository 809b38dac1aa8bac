#include "ptz/PTZTimerTimeSegmentXml.h"

#include "tests/support/Documents.h"

namespace
{

PTZTimerTimeSegment segment(unsigned long beginTime, unsigned long endTime, const std::string& operation)
{
    PTZTimerTimeSegment segment;
    segment.setBeginTime(beginTime);
    segment.setEndTime(endTime);
    segment.setPTZOperation(operation);
    return segment;
}

PTZTimerTimeSegment sample()
{
    return segment(3600, 7200, "tour 2");
}

void expectSegment(const PTZTimerTimeSegment& expected, const PTZTimerTimeSegment& segment)
{
    EXPECT_EQ(expected.getBeginTime(), segment.getBeginTime());
    EXPECT_EQ(expected.getEndTime(), segment.getEndTime());
    EXPECT_EQ(expected.getPTZOperation(), segment.getPTZOperation());
}

} // namespace

TEST(PTZTimerTimeSegmentXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PTZTimerTimeSegmentXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZTimerTimeSegmentXml.node.xml"));
}

TEST(PTZTimerTimeSegmentXml, ReadsNodes)
{
    PTZTimerTimeSegment read;
    ASSERT_TRUE(PTZTimerTimeSegmentXml().parseXmlString(golden("ptz/PTZTimerTimeSegmentXml.node.xml"), read));
    expectSegment(sample(), read);
}

TEST(PTZTimerTimeSegmentXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    PTZTimerTimeSegment read = sample();
    ASSERT_TRUE(PTZTimerTimeSegmentXml().parseXmlString("<PTZTimerTimeSegment />", read));
    expectSegment(PTZTimerTimeSegment(), read);
    EXPECT_EQ("", output.text());
}

TEST(PTZTimerTimeSegmentXml, RemovesTheChildrenOfTheNodeThatItWrites)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<PTZTimerTimeSegment Kept='1'><Child /></PTZTimerTimeSegment>", node));
    ASSERT_TRUE(PTZTimerTimeSegmentXml().createDomainXmlNode(sample(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<PTZTimerTimeSegment Kept=\"1\" BeginTime=\"3600\" EndTime=\"7200\" PTZOperation=\"tour 2\" />\n", text);
}

TEST(PTZTimerTimeSegmentXml, WritesTimesWholeAndReadsThemAsSigned)
{
    std::string text;
    ASSERT_TRUE(PTZTimerTimeSegmentXml().createXmlString(segment(3000000000UL, 2147483647UL, ""), text));
    EXPECT_EQ("<PTZTimerTimeSegment BeginTime=\"3000000000\" EndTime=\"2147483647\" PTZOperation=\"\" />\n", text);

    PTZTimerTimeSegment read;
    ASSERT_TRUE(PTZTimerTimeSegmentXml().parseXmlString(text, read));
    expectSegment(segment(static_cast<unsigned long>(-1294967296), 2147483647UL, ""), read);

    ASSERT_TRUE(PTZTimerTimeSegmentXml().parseXmlString("<PTZTimerTimeSegment BeginTime='-1' EndTime='7x' />", read));
    expectSegment(segment(static_cast<unsigned long>(-1), 7, ""), read);
}

TEST(PTZTimerTimeSegmentXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PTZTimerTimeSegment read = sample();
    EXPECT_FALSE(PTZTimerTimeSegmentXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PTZTimerTimeSegmentXml().parseDomainXmlNode(empty, read));
    expectSegment(sample(), read);
}
