#include "network/IpRangeInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

IpRangeInfo range(const std::string& begin, const std::string& end)
{
    IpRangeInfo range;
    range.setBeginIpAddr(begin);
    range.setEndIpAddr(end);
    return range;
}

IpRangeInfo sample()
{
    return range("192.0.2.1", "192.0.2.99");
}

void expectRange(const std::string& begin, const std::string& end, const IpRangeInfo& range)
{
    std::string address;
    range.getBeginIpAddr(address);
    EXPECT_EQ(begin, address);
    range.getEndIpAddr(address);
    EXPECT_EQ(end, address);
}

constexpr char lines[] = "IpRangeInfoXml::parseDomainXmlNode get BeginIpAddr failed \n"
                         "IpRangeInfoXml::parseDomainXmlNode get EndIpAddr failed \n";

} // namespace

TEST(IpRangeInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(IpRangeInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/IpRangeInfoXml.node.xml"));
}

TEST(IpRangeInfoXml, ReadsNodes)
{
    CapturedOutput output;
    IpRangeInfo read;
    ASSERT_TRUE(IpRangeInfoXml().parseXmlString(golden("network/IpRangeInfoXml.node.xml"), read));
    expectRange("192.0.2.1", "192.0.2.99", read);
    EXPECT_EQ("", output.text());
}

TEST(IpRangeInfoXml, PrintsALineForEachMissingPropertyAndResetsIt)
{
    CapturedOutput output;
    IpRangeInfo read = sample();
    ASSERT_TRUE(IpRangeInfoXml().parseXmlString("<IpRangeInfo />", read));
    expectRange("", "", read);
    EXPECT_EQ(lines, output.text());
}

TEST(IpRangeInfoXml, GoesOnBehindAMissingProperty)
{
    CapturedOutput output;
    IpRangeInfo read = sample();
    ASSERT_TRUE(IpRangeInfoXml().parseXmlString("<IpRangeInfo EndIpAddr='192.0.2.7' />", read));
    expectRange("", "192.0.2.7", read);
    EXPECT_EQ("IpRangeInfoXml::parseDomainXmlNode get BeginIpAddr failed \n", output.text());
}

TEST(IpRangeInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(IpRangeInfoXml().createXmlString({sample(), range("2001:db8::1", "2001:db8::2")}, text));
    EXPECT_TRUE(matchesGolden(text, "network/IpRangeInfoXml.list.xml"));
}

TEST(IpRangeInfoXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(IpRangeInfoXml().createXmlString(std::vector<IpRangeInfo>(), text));
    EXPECT_EQ("<IpRangeInfoList />\n", text);
}

TEST(IpRangeInfoXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    std::vector<IpRangeInfo> list = {range("before", "after")};
    ASSERT_TRUE(IpRangeInfoXml().parseXmlString(golden("network/IpRangeInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectRange("before", "after", list[0]);
    expectRange("192.0.2.1", "192.0.2.99", list[1]);
    expectRange("2001:db8::1", "2001:db8::2", list[2]);
    EXPECT_EQ("", output.text());
}

TEST(IpRangeInfoXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<IpRangeInfo> list;
    ASSERT_TRUE(IpRangeInfoXml().parseXmlString("<IpRangeInfoList>text<!-- --><Other /></IpRangeInfoList>", list));
    ASSERT_EQ(1U, list.size());
    expectRange("", "", list[0]);
    EXPECT_EQ(lines, output.text());
}

TEST(IpRangeInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    IpRangeInfo read = sample();
    EXPECT_FALSE(IpRangeInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(IpRangeInfoXml().parseDomainXmlNode(empty, read));
    expectRange("192.0.2.1", "192.0.2.99", read);
}

TEST(IpRangeInfoXml, LeavesTheRecordOfAFailedRead)
{
    IpRangeInfo read = sample();
    std::vector<IpRangeInfo> list(1, sample());
    EXPECT_FALSE(IpRangeInfoXml().parseXmlString("<IpRangeInfo BeginIpAddr='1'", read));
    EXPECT_FALSE(IpRangeInfoXml().parseXmlString("<IpRangeInfoList BeginIpAddr='1' />", read));
    EXPECT_FALSE(IpRangeInfoXml().parseXmlString("<IpRangeInfo><IpRangeInfo /></IpRangeInfo>", list));
    expectRange("192.0.2.1", "192.0.2.99", read);
    EXPECT_EQ(1U, list.size());
}
