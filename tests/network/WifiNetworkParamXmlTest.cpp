#include "network/WifiNetworkParamXml.h"

#include "tests/support/Documents.h"

namespace
{

WifiNetworkParam sample()
{
    WifiNetworkParam param;
    param.setIP("192.0.2.21");
    param.setSubnetMask("255.255.255.0");
    param.setGateway("192.0.2.1");
    param.setPrimaryDNS("192.0.2.53");
    param.setSpareDNS("192.0.2.54");
    return param;
}

void expectParam(const WifiNetworkParam& expected, const WifiNetworkParam& param)
{
    EXPECT_EQ(expected.getIP(), param.getIP());
    EXPECT_EQ(expected.getSubnetMask(), param.getSubnetMask());
    EXPECT_EQ(expected.getGateway(), param.getGateway());
    EXPECT_EQ(expected.getPrimaryDNS(), param.getPrimaryDNS());
    EXPECT_EQ(expected.getSpareDNS(), param.getSpareDNS());
}

} // namespace

TEST(WifiNetworkParamXml, Writes)
{
    WifiNetworkParamXml codec;
    codec.setWifiNetworkParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/WifiNetworkParamXml.document.xml"));
}

TEST(WifiNetworkParamXml, Reads)
{
    WifiNetworkParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/WifiNetworkParamXml.document.xml")));
    expectParam(sample(), codec.getWifiNetworkParam());
}

TEST(WifiNetworkParamXml, LeavesWhatIsMissing)
{
    WifiNetworkParamXml codec;
    codec.setWifiNetworkParam(sample());
    ASSERT_TRUE(reads(codec, "<WifiNetworkParam />"));
    expectParam(sample(), codec.getWifiNetworkParam());
}
