#include "network/I3GNetworkParamXml.h"

#include "tests/support/Documents.h"

namespace
{

I3GNetworkParam sample()
{
    I3GNetworkParam param;
    param.setIP("192.0.2.21");
    param.setSubnetMask("255.255.255.0");
    param.setGateway("192.0.2.1");
    param.setPrimaryDNS("192.0.2.53");
    param.setSpareDNS("192.0.2.54");
    return param;
}

void expectParam(const I3GNetworkParam& expected, const I3GNetworkParam& param)
{
    EXPECT_EQ(expected.getIP(), param.getIP());
    EXPECT_EQ(expected.getSubnetMask(), param.getSubnetMask());
    EXPECT_EQ(expected.getGateway(), param.getGateway());
    EXPECT_EQ(expected.getPrimaryDNS(), param.getPrimaryDNS());
    EXPECT_EQ(expected.getSpareDNS(), param.getSpareDNS());
}

} // namespace

TEST(I3GNetworkParamXml, Writes)
{
    I3GNetworkParamXml codec;
    codec.setI3GNetworkParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/I3GNetworkParamXml.document.xml"));
}

TEST(I3GNetworkParamXml, Reads)
{
    I3GNetworkParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/I3GNetworkParamXml.document.xml")));
    expectParam(sample(), codec.getI3GNetworkParam());
}

TEST(I3GNetworkParamXml, LeavesWhatIsMissing)
{
    I3GNetworkParamXml codec;
    codec.setI3GNetworkParam(sample());
    ASSERT_TRUE(reads(codec, "<I3GNetworkParam />"));
    expectParam(sample(), codec.getI3GNetworkParam());
}
