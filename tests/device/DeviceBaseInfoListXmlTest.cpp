#include "device/DeviceBaseInfoListXml.h"

#include "tests/device/DeviceBaseInfoSample.h"
#include "tests/support/Documents.h"

TEST(DeviceBaseInfoListXml, Writes)
{
    DeviceBaseInfoListXml codec;
    codec.setDeviceBaseInfoList({sampleDevice(), DeviceBaseInfo()});
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceBaseInfoListXml.document.xml"));
}

TEST(DeviceBaseInfoListXml, WritesAnEmptyList)
{
    DeviceBaseInfoListXml codec;
    EXPECT_EQ("<DeviceBaseInfoList />\n", written(codec));
}

TEST(DeviceBaseInfoListXml, ReadsBehindWhatTheListHolds)
{
    DeviceBaseInfo before;
    before.setDeviceId("before");
    DeviceBaseInfoListXml codec;
    codec.setDeviceBaseInfoList({before});
    ASSERT_TRUE(reads(codec, golden("device/DeviceBaseInfoListXml.document.xml")));
    ASSERT_EQ(3U, codec.getDeviceBaseInfoList().size());
    expectDevice(before, codec.getDeviceBaseInfoList()[0]);
    expectDevice(sampleDevice(), codec.getDeviceBaseInfoList()[1]);
    expectDevice(DeviceBaseInfo(), codec.getDeviceBaseInfoList()[2]);
}

TEST(DeviceBaseInfoListXml, ReadsARootWithoutDevices)
{
    DeviceBaseInfoListXml codec;
    ASSERT_TRUE(reads(codec, "<DeviceBaseInfoList>text<!--DeviceBaseInfo--><Other /></DeviceBaseInfoList>"));
    EXPECT_TRUE(codec.getDeviceBaseInfoList().empty());
}

TEST(DeviceBaseInfoListXml, WalksOnFromTheFirstDeviceOverElementsOfAnyName)
{
    DeviceBaseInfoListXml codec;
    ASSERT_TRUE(reads(codec, "<DeviceBaseInfoList><Other DeviceID='1' /><DeviceBaseInfo DeviceID='2' /><!-- -->text"
                             "<Other DeviceID='3' /></DeviceBaseInfoList>"));
    ASSERT_EQ(2U, codec.getDeviceBaseInfoList().size());
    EXPECT_EQ("2", codec.getDeviceBaseInfoList()[0].getDeviceId());
    EXPECT_EQ("3", codec.getDeviceBaseInfoList()[1].getDeviceId());
}
