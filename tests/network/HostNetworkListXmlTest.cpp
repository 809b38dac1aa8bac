#include "network/HostNetworkListXml.h"

#include "tests/network/HostNetworkSample.h"
#include "tests/support/Documents.h"

TEST(HostNetworkListXml, Writes)
{
    HostNetworkListXml codec;
    codec.setHostNetworkList({sampleNetwork(), HostNetwork()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/HostNetworkListXml.document.xml"));
}

TEST(HostNetworkListXml, WritesTheSameTextEachTime)
{
    HostNetworkListXml codec;
    EXPECT_EQ("<HostNetWorkList />\n", written(codec));
    codec.setHostNetworkList({sampleNetwork(), HostNetwork()});
    written(codec);
    EXPECT_TRUE(matchesGolden(written(codec), "network/HostNetworkListXml.document.xml"));
}

TEST(HostNetworkListXml, Reads)
{
    CapturedOutput output;
    HostNetworkListXml codec;
    ASSERT_TRUE(reads(codec, golden("network/HostNetworkListXml.document.xml")));
    ASSERT_EQ(2U, codec.getHostNetworkList().size());
    expectNetwork(sampleNetwork(), codec.getHostNetworkList()[0]);
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
    codec.setHostNetworkList({sampleNetwork()});
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
    codec.setHostNetworkList({sampleNetwork()});
    EXPECT_FALSE(reads(codec, "<HostNetWorkList>"));
    EXPECT_FALSE(reads(codec, "<HostNetworkList />"));
    ASSERT_EQ(1U, codec.getHostNetworkList().size());
    expectNetwork(sampleNetwork(), codec.getHostNetworkList()[0]);
}
