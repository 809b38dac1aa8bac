#include "network/DDNSInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

DDNSInfo sample()
{
    DDNSInfo info;
    info.setDDNSProviderId(3);
    info.setDDNSHostName("update.example.org");
    info.setDDNSCommand("/update?name=gate");
    return info;
}

void expectInfo(const DDNSInfo& expected, const DDNSInfo& info)
{
    EXPECT_EQ(expected.getDDNSProviderId(), info.getDDNSProviderId());
    EXPECT_EQ(expected.getDDNSHostName(), info.getDDNSHostName());
    EXPECT_EQ(expected.getDDNSCommand(), info.getDDNSCommand());
}

} // namespace

TEST(DDNSInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DDNSInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSInfoXml.node.xml"));
}

TEST(DDNSInfoXml, ReadsNodes)
{
    DDNSInfo read;
    ASSERT_TRUE(DDNSInfoXml().parseXmlString(golden("network/DDNSInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(DDNSInfoXml, PrintsALineForTheFirstMissingPropertyAndEndsThere)
{
    CapturedOutput output;
    DDNSInfo read;
    EXPECT_FALSE(DDNSInfoXml().parseXmlString("<DDNSInfo DDNSHostName='h' DDNSCommand='c' />", read));
    expectInfo(DDNSInfo(), read);
    EXPECT_FALSE(DDNSInfoXml().parseXmlString("<DDNSInfo DDNSProviderId='9' DDNSCommand='c' />", read));
    EXPECT_EQ(9, read.getDDNSProviderId());
    EXPECT_EQ("", read.getDDNSCommand());
    EXPECT_FALSE(DDNSInfoXml().parseXmlString("<DDNSInfo DDNSProviderId='8' DDNSHostName='h' />", read));
    EXPECT_EQ(8, read.getDDNSProviderId());
    EXPECT_EQ("h", read.getDDNSHostName());
    EXPECT_EQ("", read.getDDNSCommand());
    EXPECT_EQ("DDNSInfoXml::parseDomainXmlNode get DDNSProviderId failed \n"
              "DDNSInfoXml::parseDomainXmlNode get DDNSHostName failed \n"
              "DDNSInfoXml::parseDomainXmlNode get DDNSCommand failed \n",
              output.text());
}

TEST(DDNSInfoXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DDNSInfoXml().createXmlString({sample(), DDNSInfo()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSInfoXml.list.xml"));
    ASSERT_TRUE(DDNSInfoXml().createXmlString(std::vector<DDNSInfo>(), text));
    EXPECT_EQ("<DDNSInfoList />\n", text);
}

TEST(DDNSInfoXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DDNSInfo> list(1, sample());
    ASSERT_TRUE(DDNSInfoXml().parseXmlString(golden("network/DDNSInfoXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectInfo(sample(), list[0]);
    expectInfo(sample(), list[1]);
    expectInfo(DDNSInfo(), list[2]);
}

TEST(DDNSInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DDNSInfo read = sample();
    std::vector<DDNSInfo> list(1, sample());
    EXPECT_FALSE(DDNSInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DDNSInfoXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(DDNSInfoXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(DDNSInfoXml().parseDomainXmlNode(empty, list));
    expectInfo(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(DDNSInfoXml, RefusesTheRootOfTheOtherKind)
{
    DDNSInfo read;
    std::vector<DDNSInfo> list;
    EXPECT_FALSE(DDNSInfoXml().parseXmlString(golden("network/DDNSInfoXml.list.xml"), read));
    EXPECT_FALSE(DDNSInfoXml().parseXmlString(golden("network/DDNSInfoXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(DDNSInfoXml, KeepsTheItemsBeforeAFailedOne)
{
    CapturedOutput output;
    std::vector<DDNSInfo> list;
    EXPECT_FALSE(DDNSInfoXml().parseXmlString(
        "<DDNSInfoList><Other DDNSProviderId='1' DDNSHostName='h' DDNSCommand='c' /><DDNSInfo /></DDNSInfoList>",
        list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(1, list[0].getDDNSProviderId());
}
