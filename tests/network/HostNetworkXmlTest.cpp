#include "network/HostNetworkXml.h"

#include "tests/network/HostNetworkSample.h"
#include "tests/support/Documents.h"

TEST(HostNetworkXml, Writes)
{
    HostNetworkXml codec;
    codec.setHostNetwork(sampleNetwork());
    EXPECT_TRUE(matchesGolden(written(codec), "network/HostNetworkXml.document.xml"));
}

TEST(HostNetworkXml, Reads)
{
    HostNetworkXml codec;
    ASSERT_TRUE(reads(codec, golden("network/HostNetworkXml.document.xml")));
    expectNetwork(sampleNetwork(), codec.getHostNetwork());
}

TEST(HostNetworkXml, ResetsWhatIsMissing)
{
    HostNetworkXml codec;
    codec.setHostNetwork(sampleNetwork());
    codec.getHostNetwork().setAutoGetDNSFlag(true);
    ASSERT_TRUE(reads(codec, "<HostNetwork />"));
    expectNetwork(HostNetwork(), codec.getHostNetwork());
}

TEST(HostNetworkXml, TellsItsFlagsApart)
{
    HostNetworkXml codec;
    codec.getHostNetwork().setAutoGetDNSFlag(true);
    HostNetworkXml reader;
    ASSERT_TRUE(reads(reader, written(codec)));
    expectNetwork(codec.getHostNetwork(), reader.getHostNetwork());
}

TEST(HostNetworkXml, NarrowsThePorts)
{
    HostNetworkXml codec;
    ASSERT_TRUE(reads(codec, "<HostNetwork ControlPort='70000' RegisterPort='-1' HttpPort='80x' />"));
    EXPECT_EQ(4464, codec.getHostNetwork().getControlPort());
    EXPECT_EQ(65535, codec.getHostNetwork().getRegisterPort());
    EXPECT_EQ(80, codec.getHostNetwork().getHttpPort());
}

TEST(HostNetworkXml, PassesOverACommentThatReadsLikeTheRoot)
{
    HostNetworkXml codec;
    ASSERT_TRUE(reads(codec, "<!--HostNetwork--><HostNetwork NetId='7' />"));
    EXPECT_EQ(7, codec.getHostNetwork().getNetId());
}
