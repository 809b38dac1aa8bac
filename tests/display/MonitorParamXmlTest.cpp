#include "display/MonitorParamXml.h"

#include "tests/support/Documents.h"

namespace
{

MonitorParam sample(int first)
{
    MonitorParam monitor;
    monitor.setMonitorId(first);
    monitor.setMonitorType(first + 1);
    monitor.setMonitorResolutionID(first + 2);
    return monitor;
}

void expectMonitor(const MonitorParam& expected, const MonitorParam& monitor)
{
    EXPECT_EQ(expected.getMonitorId(), monitor.getMonitorId());
    EXPECT_EQ(expected.getMonitorType(), monitor.getMonitorType());
    EXPECT_EQ(expected.getMonitorResolutionID(), monitor.getMonitorResolutionID());
}

} // namespace

TEST(MonitorParamXml, Writes)
{
    std::string text;
    ASSERT_TRUE(MonitorParamXml().createXmlString(sample(11), text));
    EXPECT_TRUE(matchesGolden(text, "display/MonitorParamXml.node.xml"));
}

TEST(MonitorParamXml, Reads)
{
    CapturedOutput output;
    MonitorParam read;
    ASSERT_TRUE(MonitorParamXml().parseXmlString(golden("display/MonitorParamXml.node.xml"), read));
    expectMonitor(sample(11), read);
    EXPECT_EQ("", output.text());
}

TEST(MonitorParamXml, LeavesWhatIsMissing)
{
    CapturedOutput output;
    MonitorParam read = sample(11);
    ASSERT_TRUE(MonitorParamXml().parseXmlString("<MonitorParam />", read));
    expectMonitor(sample(11), read);
    ASSERT_TRUE(MonitorParamXml().parseXmlString("<MonitorParam MonitorType='9' />", read));
    MonitorParam expected = sample(11);
    expected.setMonitorType(9);
    expectMonitor(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(MonitorParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(MonitorParamXml().createXmlString({sample(11), sample(31)}, text));
    EXPECT_TRUE(matchesGolden(text, "display/MonitorParamXml.list.xml"));
    ASSERT_TRUE(MonitorParamXml().createXmlString(std::vector<MonitorParam>(), text));
    EXPECT_EQ("<MonitorParamList />\n", text);
}

TEST(MonitorParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<MonitorParam> list(1, sample(71));
    ASSERT_TRUE(MonitorParamXml().parseXmlString(golden("display/MonitorParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectMonitor(sample(71), list[0]);
    expectMonitor(sample(11), list[1]);
    expectMonitor(sample(31), list[2]);
}

TEST(MonitorParamXml, ReadsItemsOfAnyName)
{
    std::vector<MonitorParam> list;
    ASSERT_TRUE(MonitorParamXml().parseXmlString(
        "<MonitorParamList>text<!-- --><Other MonitorId='9' /></MonitorParamList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getMonitorId());
    EXPECT_EQ(0, list[0].getMonitorType());
}

TEST(MonitorParamXml, RefusesTheRootOfTheOtherKind)
{
    MonitorParam read;
    std::vector<MonitorParam> list;
    EXPECT_FALSE(MonitorParamXml().parseXmlString(golden("display/MonitorParamXml.list.xml"), read));
    EXPECT_FALSE(MonitorParamXml().parseXmlString(golden("display/MonitorParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
