#include "alarm/AlarmEventXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmEvent sample()
{
    AlarmEvent event;
    event.setAlarmId(59);
    event.setMajorAlarmType(60);
    event.setAlarmType(61);
    return event;
}

void expectEvent(const AlarmEvent& expected, const AlarmEvent& event)
{
    EXPECT_EQ(expected.getAlarmId(), event.getAlarmId());
    EXPECT_EQ(expected.getMajorAlarmType(), event.getMajorAlarmType());
    EXPECT_EQ(expected.getAlarmType(), event.getAlarmType());
}

} // namespace

TEST(AlarmEventXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(AlarmEventXml().createXmlString(std::vector<AlarmEvent>{sample(), AlarmEvent()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/AlarmEventXml.list.xml"));
    ASSERT_TRUE(AlarmEventXml().createXmlString(std::vector<AlarmEvent>(), text));
    EXPECT_EQ("<AlarmEventList />\n", text);
}

TEST(AlarmEventXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<AlarmEvent> list(1, AlarmEvent());
    ASSERT_TRUE(AlarmEventXml().parseXmlString(golden("alarm/AlarmEventXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectEvent(AlarmEvent(), list[0]);
    expectEvent(sample(), list[1]);
    expectEvent(AlarmEvent(), list[2]);
}

TEST(AlarmEventXml, ResetsWhatAnItemLacksInSilence)
{
    CapturedOutput output;
    std::vector<AlarmEvent> list;
    ASSERT_TRUE(
        AlarmEventXml().parseXmlString("<AlarmEventList>text<!-- --><Other AlarmType='1' /></AlarmEventList>", list));
    AlarmEvent expected;
    expected.setAlarmType(1);
    ASSERT_EQ(1U, list.size());
    expectEvent(expected, list[0]);
    EXPECT_EQ("", output.text());
}

TEST(AlarmEventXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<AlarmEvent> list(1, sample());
    EXPECT_FALSE(AlarmEventXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(AlarmEventXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
