#include "ptz/PTZTimerXml.h"

#include "tests/support/Documents.h"

namespace
{

using Timers = std::vector<PTZTimer>;

PTZTimerTimeSegment segment(unsigned long beginTime, unsigned long endTime, const std::string& operation)
{
    PTZTimerTimeSegment segment;
    segment.setBeginTime(beginTime);
    segment.setEndTime(endTime);
    segment.setPTZOperation(operation);
    return segment;
}

PTZTimer sample()
{
    TimeStruct date;
    date.setTimeZone(8);
    date.setYear(2016);
    date.setMonth(5);
    date.setDay(27);
    date.setDayOfWeek(6);
    PTZTimer timer;
    timer.setCameraId(4);
    timer.setTimerMode(2);
    timer.setEnableFlag(true);
    timer.setTimerDate(date);
    timer.setTimeSegmentList({segment(3600, 7200, "tour 2"), segment(9000, 9600, "preset 1")});
    return timer;
}

PTZTimer timerOfAnEmptyNode()
{
    PTZTimer timer;
    timer.setCameraId(1);
    return timer;
}

void expectTimer(const PTZTimer& expected, const PTZTimer& timer)
{
    EXPECT_EQ(expected.getCameraId(), timer.getCameraId());
    EXPECT_EQ(expected.getTimerMode(), timer.getTimerMode());
    EXPECT_EQ(expected.getEnableFlag(), timer.getEnableFlag());
    EXPECT_EQ(expected.getTimerDate().getTimeZone(), timer.getTimerDate().getTimeZone());
    EXPECT_EQ(expected.getTimerDate().getYear(), timer.getTimerDate().getYear());
    EXPECT_EQ(expected.getTimerDate().getMonth(), timer.getTimerDate().getMonth());
    EXPECT_EQ(expected.getTimerDate().getDay(), timer.getTimerDate().getDay());
    EXPECT_EQ(expected.getTimerDate().getDayOfWeek(), timer.getTimerDate().getDayOfWeek());
    ASSERT_EQ(expected.getTimeSegmentList().size(), timer.getTimeSegmentList().size());
    for (std::size_t number = 0; number < timer.getTimeSegmentList().size(); ++number)
    {
        const PTZTimerTimeSegment& wanted = expected.getTimeSegmentList()[number];
        const PTZTimerTimeSegment& segment = timer.getTimeSegmentList()[number];
        EXPECT_EQ(wanted.getBeginTime(), segment.getBeginTime());
        EXPECT_EQ(wanted.getEndTime(), segment.getEndTime());
        EXPECT_EQ(wanted.getPTZOperation(), segment.getPTZOperation());
    }
}

} // namespace

TEST(PTZTimerXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(PTZTimerXml().createXmlString(Timers{sample(), PTZTimer()}, text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZTimerXml.list.xml"));
    ASSERT_TRUE(PTZTimerXml().createXmlString(Timers(), text));
    EXPECT_EQ("<PTZTimer />\n", text);
}

TEST(PTZTimerXml, ReadsListsBehindWhatTheyHold)
{
    Timers list(1, timerOfAnEmptyNode());
    ASSERT_TRUE(PTZTimerXml().parseXmlString(golden("ptz/PTZTimerXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectTimer(timerOfAnEmptyNode(), list[0]);
    expectTimer(sample(), list[1]);
    expectTimer(PTZTimer(), list[2]);
}

TEST(PTZTimerXml, PrintsALineForAMissingDayAndGivesTheDefaultsOfWhatANodeLacks)
{
    CapturedOutput output;
    Timers list;
    ASSERT_TRUE(PTZTimerXml().parseXmlString("<PTZTimer>text<!-- --><Other /></PTZTimer>", list));
    ASSERT_EQ(1U, list.size());
    expectTimer(timerOfAnEmptyNode(), list[0]);
    EXPECT_EQ("PTZTimerXml::parseDomainXmlNode node = NODENAME_TIME_STRUCT failed \n", output.text());
}

TEST(PTZTimerXml, ReadsSegmentsOfTheirNameOnlyInTheItemItself)
{
    CapturedOutput output;
    Timers list;
    ASSERT_TRUE(PTZTimerXml().parseXmlString(
        "<PTZTimer><PTZTimerParam><TimeStruct /><!--PTZTimerTimeSegment--><PTZTimerTimeSegment BeginTime='1' />"
        "<Other BeginTime='2' /><List><PTZTimerTimeSegment BeginTime='3' /></List>"
        "<PTZTimerTimeSegment EndTime='4' /></PTZTimerParam></PTZTimer>",
        list));
    PTZTimer expected = timerOfAnEmptyNode();
    expected.setTimeSegmentList({segment(1, 0, ""), segment(0, 4, "")});
    ASSERT_EQ(1U, list.size());
    expectTimer(expected, list[0]);
    EXPECT_EQ("", output.text());
}

TEST(PTZTimerXml, RemovesTheChildrenOfTheNodeThatItWrites)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<PTZTimer Kept='1'><Child /></PTZTimer>", node));
    ASSERT_TRUE(PTZTimerXml().createDomainXmlNode(Timers(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<PTZTimer Kept=\"1\" />\n", text);
}

TEST(PTZTimerXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    Timers list(1, sample());
    EXPECT_FALSE(PTZTimerXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PTZTimerXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
