#include "network/WifiHotspotParamListXml.h"

#include "tests/network/WirelessSample.h"
#include "tests/support/Documents.h"

TEST(WifiHotspotParamListXml, Writes)
{
    WifiHotspotParamListXml codec;
    codec.setWifiHotspotParamList({sampleHotspot(), WifiHotspotParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/WifiHotspotParamListXml.document.xml"));
}

TEST(WifiHotspotParamListXml, WritesAnEmptyList)
{
    WifiHotspotParamListXml codec;
    EXPECT_EQ("<WifiHotspotParamList />\n", written(codec));
}

TEST(WifiHotspotParamListXml, ReadsBehindWhatTheListHolds)
{
    WifiHotspotParam before;
    before.setSSID("before");
    WifiHotspotParamListXml codec;
    codec.setWifiHotspotParamList({before});
    ASSERT_TRUE(reads(codec, golden("network/WifiHotspotParamListXml.document.xml")));
    ASSERT_EQ(3U, codec.getWifiHotspotParamList().size());
    expectHotspot(before, codec.getWifiHotspotParamList()[0]);
    expectHotspot(sampleHotspot(), codec.getWifiHotspotParamList()[1]);
    expectHotspot(WifiHotspotParam(), codec.getWifiHotspotParamList()[2]);
}

TEST(WifiHotspotParamListXml, WalksOnFromTheFirstItemOverElementsOfAnyName)
{
    WifiHotspotParamListXml codec;
    ASSERT_TRUE(reads(
        codec,
        "<WifiHotspotParamList>text<!--WifiHotspotParam--><Other SSID='1' /><WifiHotspotParam SSID='2' /><!-- -->text"
        "<Other SSID='3' /></WifiHotspotParamList>"));
    ASSERT_EQ(2U, codec.getWifiHotspotParamList().size());
    EXPECT_EQ("2", codec.getWifiHotspotParamList()[0].getSSID());
    EXPECT_EQ("3", codec.getWifiHotspotParamList()[1].getSSID());
}

TEST(WifiHotspotParamListXml, GivesANewRecordForAnItemWithoutAttributes)
{
    WifiHotspotParamListXml codec;
    ASSERT_TRUE(reads(codec, "<WifiHotspotParamList><WifiHotspotParam /></WifiHotspotParamList>"));
    ASSERT_EQ(1U, codec.getWifiHotspotParamList().size());
    expectHotspot(WifiHotspotParam(), codec.getWifiHotspotParamList()[0]);
}
