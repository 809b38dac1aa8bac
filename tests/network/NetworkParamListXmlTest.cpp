#include "network/NetworkParamListXml.h"

#include "tests/support/Documents.h"

namespace
{

NetworkParam sample()
{
    NetworkParam param;
    param.setNetworkCardId(1);
    param.setWorkingType(2);
    param.setAutoGetIpFlag(true);
    param.setDhcpIp("192.0.2.2");
    param.setLocalIp("192.0.2.17");
    param.setLocalSubnetMask("255.255.255.0");
    param.setGateway("192.0.2.1");
    param.setAutoGetDNSFlag(false);
    param.setPrimaryDNSIp("192.0.2.53");
    param.setSpareDNSIp("192.0.2.54");
    param.setIPProtoVer(4);
    return param;
}

void expectParam(const NetworkParam& expected, const NetworkParam& param)
{
    EXPECT_EQ(expected.getNetworkCardId(), param.getNetworkCardId());
    EXPECT_EQ(expected.getWorkingType(), param.getWorkingType());
    EXPECT_EQ(expected.getAutoGetIpFlag(), param.getAutoGetIpFlag());
    EXPECT_EQ(expected.getDhcpIp(), param.getDhcpIp());
    EXPECT_EQ(expected.getLocalIp(), param.getLocalIp());
    EXPECT_EQ(expected.getLocalSubnetMask(), param.getLocalSubnetMask());
    EXPECT_EQ(expected.getGateway(), param.getGateway());
    EXPECT_EQ(expected.getAutoGetDNSFlag(), param.getAutoGetDNSFlag());
    EXPECT_EQ(expected.getPrimaryDNSIp(), param.getPrimaryDNSIp());
    EXPECT_EQ(expected.getSpareDNSIp(), param.getSpareDNSIp());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(NetworkParamListXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(NetworkParamListXml().createXmlString({sample(), NetworkParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/NetworkParamListXml.list.xml"));
}

TEST(NetworkParamListXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(NetworkParamListXml().createXmlString(std::vector<NetworkParam>(), text));
    EXPECT_EQ("<NetworkParamList />\n", text);
}

TEST(NetworkParamListXml, ReadsTwoTextsIntoOneList)
{
    CapturedOutput output;
    std::vector<NetworkParam> list;
    ASSERT_TRUE(NetworkParamListXml().parseXmlString(golden("network/NetworkParamListXml.list.xml"), list));
    ASSERT_TRUE(NetworkParamListXml().parseXmlString(golden("network/NetworkParamListXml.list.xml"), list));
    ASSERT_EQ(4U, list.size());
    expectParam(sample(), list[0]);
    expectParam(NetworkParam(), list[1]);
    expectParam(sample(), list[2]);
    expectParam(NetworkParam(), list[3]);
    EXPECT_EQ("", output.text());
}

TEST(NetworkParamListXml, TellsItsFlagsApart)
{
    NetworkParam param;
    param.setAutoGetDNSFlag(true);
    std::string text;
    ASSERT_TRUE(NetworkParamListXml().createXmlString({param}, text));
    std::vector<NetworkParam> list;
    ASSERT_TRUE(NetworkParamListXml().parseXmlString(text, list));
    ASSERT_EQ(1U, list.size());
    expectParam(param, list[0]);
}

TEST(NetworkParamListXml, TakesItemsByTheirNameAndLeavesWhatTheyLack)
{
    CapturedOutput output;
    std::vector<NetworkParam> list;
    ASSERT_TRUE(NetworkParamListXml().parseXmlString(
        "<NetworkParamList>text<Other WorkingType='1' /><!--NetworkParam--><NetworkParam WorkingType='2' />"
        "<Other WorkingType='3' /><NetworkParam IPProtoVer='4' /></NetworkParamList>",
        list));
    ASSERT_EQ(2U, list.size());
    NetworkParam expected;
    expected.setWorkingType(2);
    expectParam(expected, list[0]);
    expected.setWorkingType(0);
    expected.setIPProtoVer(4);
    expectParam(expected, list[1]);
    EXPECT_EQ("", output.text());
}

TEST(NetworkParamListXml, LeavesTheListOfAFailedRead)
{
    std::vector<NetworkParam> list(1, sample());
    EXPECT_FALSE(NetworkParamListXml().parseXmlString("<NetworkParamList>", list));
    EXPECT_FALSE(NetworkParamListXml().parseXmlString("<NetworkParam><NetworkParam /></NetworkParam>", list));
    EXPECT_EQ(1U, list.size());
}
