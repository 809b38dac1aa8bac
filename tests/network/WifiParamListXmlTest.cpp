#include "network/WifiParamListXml.h"

#include "tests/network/WirelessSample.h"
#include "tests/support/Documents.h"

TEST(WifiParamListXml, Writes)
{
    WifiParamListXml codec;
    codec.setWifiParamList({sampleWifi(), WifiParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/WifiParamListXml.document.xml"));
}

TEST(WifiParamListXml, WritesAnEmptyList)
{
    WifiParamListXml codec;
    EXPECT_EQ("<WifiParamList />\n", written(codec));
}

TEST(WifiParamListXml, ReadsBehindWhatTheListHolds)
{
    WifiParam before;
    before.setSSID("before");
    WifiParamListXml codec;
    codec.setWifiParamList({before});
    ASSERT_TRUE(reads(codec, golden("network/WifiParamListXml.document.xml")));
    ASSERT_EQ(3U, codec.getWifiParamList().size());
    expectWifi(before, codec.getWifiParamList()[0]);
    expectWifi(sampleWifi(), codec.getWifiParamList()[1]);
    expectWifi(WifiParam(), codec.getWifiParamList()[2]);
}

TEST(WifiParamListXml, WalksOnFromTheFirstItemOverElementsOfAnyName)
{
    WifiParamListXml codec;
    ASSERT_TRUE(reads(codec, "<WifiParamList>text<!--WifiParam--><Other SSID='1' /><WifiParam SSID='2' /><!-- -->text"
                             "<Other SSID='3' /></WifiParamList>"));
    ASSERT_EQ(2U, codec.getWifiParamList().size());
    EXPECT_EQ("2", codec.getWifiParamList()[0].getSSID());
    EXPECT_EQ("3", codec.getWifiParamList()[1].getSSID());
}

TEST(WifiParamListXml, GivesANewRecordForAnItemWithoutAttributes)
{
    WifiParamListXml codec;
    ASSERT_TRUE(reads(codec, "<WifiParamList><WifiParam /></WifiParamList>"));
    ASSERT_EQ(1U, codec.getWifiParamList().size());
    expectWifi(WifiParam(), codec.getWifiParamList()[0]);
}
