#include "network/RebootTimeXml.h"

#include "tests/network/RebootTimeSample.h"
#include "tests/support/Documents.h"

TEST(RebootTimeXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(RebootTimeXml().createXmlString(sampleTimes(), text));
    EXPECT_TRUE(matchesGolden(text, "network/RebootTimeXml.list.xml"));
}

TEST(RebootTimeXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(RebootTimeXml().createXmlString(std::vector<RebootTime>(), text));
    EXPECT_EQ("<RebootTimeList />\n", text);
}

TEST(RebootTimeXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    std::vector<RebootTime> list = {rebootTime(1, 2, 3, 4)};
    ASSERT_TRUE(RebootTimeXml().parseXmlString(golden("network/RebootTimeXml.list.xml"), list));
    expectTimes({rebootTime(1, 2, 3, 4), sampleTimes()[0], sampleTimes()[1]}, list);
    EXPECT_EQ("", output.text());
}

TEST(RebootTimeXml, ReadsItemsOfAnyNameAndGivesZeroForWhatTheyLack)
{
    CapturedOutput output;
    std::vector<RebootTime> list;
    ASSERT_TRUE(RebootTimeXml().parseXmlString(
        "<RebootTimeList>text<!-- --><Other Day='2' /><RebootTime Second='4x' /></RebootTimeList>", list));
    expectTimes({rebootTime(0, 2, 0, 0), rebootTime(0, 0, 0, 4)}, list);
    EXPECT_EQ("", output.text());
}

TEST(RebootTimeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<RebootTime> list = sampleTimes();
    EXPECT_FALSE(RebootTimeXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(RebootTimeXml().parseDomainXmlNode(empty, list));
    expectTimes(sampleTimes(), list);
}

TEST(RebootTimeXml, LeavesTheListOfAFailedRead)
{
    std::vector<RebootTime> list = sampleTimes();
    EXPECT_FALSE(RebootTimeXml().parseXmlString("<RebootTimeList>", list));
    EXPECT_FALSE(RebootTimeXml().parseXmlString("<RebootTime><RebootTime /></RebootTime>", list));
    expectTimes(sampleTimes(), list);
}
