#include "security/NetworkPrivilegeInfoXml.h"

#include "tests/support/Documents.h"

#include <utility>

namespace
{

using Range = std::pair<std::string, std::string>;

NetworkPrivilegeInfo info(int ipConfigType, const std::vector<Range>& ends)
{
    std::vector<IpRangeInfo> ranges;
    for (const Range& range : ends)
    {
        ranges.emplace_back();
        ranges.back().setBeginIpAddr(range.first);
        ranges.back().setEndIpAddr(range.second);
    }
    NetworkPrivilegeInfo info;
    info.setIpConfigType(ipConfigType);
    info.setIpRangeInfo(ranges);
    return info;
}

NetworkPrivilegeInfo sample()
{
    return info(2, {{"192.0.2.1", "192.0.2.9"}, {"198.51.100.1", "198.51.100.7"}});
}

std::vector<Range> rangesOf(const NetworkPrivilegeInfo& info)
{
    std::vector<IpRangeInfo> ranges;
    info.getIpRangeInfo(ranges);
    std::vector<Range> ends;
    for (const IpRangeInfo& range : ranges)
    {
        ends.emplace_back();
        range.getBeginIpAddr(ends.back().first);
        range.getEndIpAddr(ends.back().second);
    }
    return ends;
}

void expectInfo(const NetworkPrivilegeInfo& expected, const NetworkPrivilegeInfo& info)
{
    EXPECT_EQ(expected.getIpConfigType(), info.getIpConfigType());
    EXPECT_EQ(rangesOf(expected), rangesOf(info));
}

} // namespace

TEST(NetworkPrivilegeInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(NetworkPrivilegeInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/NetworkPrivilegeInfoXml.node.xml"));
}

TEST(NetworkPrivilegeInfoXml, ReadsNodesInPlaceOfWhatTheListHolds)
{
    NetworkPrivilegeInfo read = info(9, {{"before", "before"}});
    ASSERT_TRUE(NetworkPrivilegeInfoXml().parseXmlString(golden("security/NetworkPrivilegeInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(NetworkPrivilegeInfoXml, RefusesANodeWithoutItsListAndLeavesTheRecord)
{
    CapturedOutput output;
    NetworkPrivilegeInfo read = sample();
    EXPECT_FALSE(NetworkPrivilegeInfoXml().parseXmlString("<NetworkPrivilegeInfo IpConfigType='9' />", read));
    expectInfo(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(NetworkPrivilegeInfoXml, PrintsALineForAMissingTypeAndLeavesIt)
{
    CapturedOutput output;
    NetworkPrivilegeInfo read = sample();
    ASSERT_TRUE(NetworkPrivilegeInfoXml().parseXmlString(
        "<NetworkPrivilegeInfo><IpRangeInfoList /></NetworkPrivilegeInfo>", read));
    expectInfo(info(2, {}), read);
    EXPECT_EQ("NetworkPrivilegeInfoXml::parseDomainXmlNode get IpConfigType failed \n", output.text());
}

TEST(NetworkPrivilegeInfoXml, PassesOverRangesOfOtherNames)
{
    CapturedOutput output;
    NetworkPrivilegeInfo read;
    ASSERT_TRUE(NetworkPrivilegeInfoXml().parseXmlString(
        "<NetworkPrivilegeInfo IpConfigType='3'><IpRangeInfoList>text<Other /><!-- -->"
        "<IpRangeInfo BeginIpAddr='a' EndIpAddr='b' /><Other /></IpRangeInfoList></NetworkPrivilegeInfo>",
        read));
    expectInfo(info(3, {{"a", "b"}}), read);
    EXPECT_EQ("", output.text());
}

TEST(NetworkPrivilegeInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(NetworkPrivilegeInfoXml().createXmlString({sample(), NetworkPrivilegeInfo()}, text));
    EXPECT_TRUE(matchesGolden(text, "security/NetworkPrivilegeInfoXml.list.xml"));
    ASSERT_TRUE(NetworkPrivilegeInfoXml().createXmlString(std::vector<NetworkPrivilegeInfo>(), text));
    EXPECT_EQ("<NetworkPrivilegeInfoList />\n", text);
}

TEST(NetworkPrivilegeInfoXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<NetworkPrivilegeInfo> list(1, info(9, {}));
    ASSERT_TRUE(NetworkPrivilegeInfoXml().parseXmlString(golden("security/NetworkPrivilegeInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectInfo(info(9, {}), list[0]);
    expectInfo(sample(), list[1]);
    expectInfo(NetworkPrivilegeInfo(), list[2]);
}

TEST(NetworkPrivilegeInfoXml, EndsAListAtAnItemWithoutItsRanges)
{
    std::vector<NetworkPrivilegeInfo> list;
    EXPECT_FALSE(NetworkPrivilegeInfoXml().parseXmlString(
        "<NetworkPrivilegeInfoList><Other IpConfigType='1'><IpRangeInfoList /></Other>"
        "<NetworkPrivilegeInfo IpConfigType='2' /></NetworkPrivilegeInfoList>",
        list));
    ASSERT_EQ(1U, list.size());
    expectInfo(info(1, {}), list[0]);
}

TEST(NetworkPrivilegeInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    NetworkPrivilegeInfo read = sample();
    std::vector<NetworkPrivilegeInfo> list(1, sample());
    EXPECT_FALSE(NetworkPrivilegeInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(NetworkPrivilegeInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(NetworkPrivilegeInfoXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(NetworkPrivilegeInfoXml().parseDomainXmlNode(empty, list));
    expectInfo(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(NetworkPrivilegeInfoXml, RefusesTheRootOfTheOtherKind)
{
    NetworkPrivilegeInfo read;
    std::vector<NetworkPrivilegeInfo> list;
    EXPECT_FALSE(NetworkPrivilegeInfoXml().parseXmlString(golden("security/NetworkPrivilegeInfoXml.list.xml"), read));
    EXPECT_FALSE(NetworkPrivilegeInfoXml().parseXmlString(golden("security/NetworkPrivilegeInfoXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
