#include "network/HostNetworkListXml.h"

#include "tests/support/Documents.h"

namespace
{

HostNetwork sample()
{
    HostNetwork network;
    network.setDeviceId("D-17");
    network.setNetId(2);
    network.setAutoGetIpFlag(true);
    network.setLocalIp("192.0.2.17");
    network.setLocalSubnetMask("255.255.255.0");
    network.setGateway("192.0.2.1");
    network.setAutoGetDNSFlag(false);
    network.setPrimaryDNSIp("192.0.2.53");
    network.setSpareDNSIp("192.0.2.54");
    network.setControlPort(30001);
    network.setRegisterPort(30002);
    network.setHttpPort(8080);
    network.setIPProtoVer(4);
    return network;
}

void expectNetwork(const HostNetwork& expected, const HostNetwork& network)
{
    EXPECT_EQ(expected.getDeviceId(), network.getDeviceId());
    EXPECT_EQ(expected.getNetId(), network.getNetId());
    EXPECT_EQ(expected.getAutoGetIpFlag(), network.getAutoGetIpFlag());
    EXPECT_EQ(expected.getLocalIp(), network.getLocalIp());
    EXPECT_EQ(expected.getLocalSubnetMask(), network.getLocalSubnetMask());
    EXPECT_EQ(expected.getGateway(), network.getGateway());
    EXPECT_EQ(expected.getAutoGetDNSFlag(), network.getAutoGetDNSFlag());
    EXPECT_EQ(expected.getPrimaryDNSIp(), network.getPrimaryDNSIp());
    EXPECT_EQ(expected.getSpareDNSIp(), network.getSpareDNSIp());
    EXPECT_EQ(expected.getControlPort(), network.getControlPort());
    EXPECT_EQ(expected.getRegisterPort(), network.getRegisterPort());
    EXPECT_EQ(expected.getHttpPort(), network.getHttpPort());
    EXPECT_EQ(expected.getIPProtoVer(), network.getIPProtoVer());
}

} // namespace

TEST(HostNetworkListXml, Writes)
{
    HostNetworkListXml codec;
    codec.setHostNetworkList({sample(), HostNetwork()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/HostNetworkListXml.document.xml"));
}

TEST(HostNetworkListXml, WritesTheSameTextEachTime)
{
    HostNetworkListXml codec;
    EXPECT_EQ("<HostNetWorkList />\n", written(codec));
    codec.setHostNetworkList({sample(), HostNetwork()});
    written(codec);
    EXPECT_TRUE(matchesGolden(written(codec), "network/HostNetworkListXml.document.xml"));
}

TEST(HostNetworkListXml, Reads)
{
    CapturedOutput output;
    HostNetworkListXml codec;
    ASSERT_TRUE(reads(codec, golden("network/HostNetworkListXml.document.xml")));
    ASSERT_EQ(2U, codec.getHostNetworkList().size());
    expectNetwork(sample(), codec.getHostNetworkList()[0]);
    expectNetwork(HostNetwork(), codec.getHostNetworkList()[1]);
    EXPECT_EQ("", output.text());
}

TEST(HostNetworkListXml, ReplacesTheListByTheSecondText)
{
    HostNetworkListXml codec;
    ASSERT_TRUE(reads(codec, golden("network/HostNetworkListXml.document.xml")));
    ASSERT_TRUE(reads(codec, "<HostNetWorkList><HostNetWork NetId='7' /></HostNetWorkList>"));
    ASSERT_EQ(1U, codec.getHostNetworkList().size());
    HostNetwork expected;
    expected.setNetId(7);
    expectNetwork(expected, codec.getHostNetworkList()[0]);
}

TEST(HostNetworkListXml, TakesItemsByTheirNameOnly)
{
    HostNetworkListXml codec;
    codec.setHostNetworkList({sample()});
    ASSERT_TRUE(reads(codec, "<HostNetWorkList>text<HostNetwork NetId='1' /><!--HostNetWork--><HostNetWork NetId='2' />"
                             "<Other NetId='3' /><HostNetWork NetId='4' /></HostNetWorkList>"));
    ASSERT_EQ(2U, codec.getHostNetworkList().size());
    EXPECT_EQ(2, codec.getHostNetworkList()[0].getNetId());
    EXPECT_EQ(4, codec.getHostNetworkList()[1].getNetId());

    ASSERT_TRUE(reads(codec, "<HostNetWorkList><HostNetwork NetId='1' /></HostNetWorkList>"));
    EXPECT_TRUE(codec.getHostNetworkList().empty());
}

TEST(HostNetworkListXml, LeavesTheListOfAFailedRead)
{
    HostNetworkListXml codec;
    codec.setHostNetworkList({sample()});
    EXPECT_FALSE(reads(codec, "<HostNetWorkList>"));
    EXPECT_FALSE(reads(codec, "<HostNetworkList />"));
    ASSERT_EQ(1U, codec.getHostNetworkList().size());
    expectNetwork(sample(), codec.getHostNetworkList()[0]);
}
