#include "network/VideoDeviceAccessParamXml.h"

#include "tests/support/Documents.h"

namespace
{

VideoDeviceAccessParam sample()
{
    VideoDeviceAccessParam param;
    param.setDeviceIP("192.0.2.31");
    param.setDevicePort(30001);
    param.setIPProtoVer(4);
    param.setDeviceType(3);
    param.setDeviceID("C-31");
    param.setDeviceName("North gate");
    param.setUserID("recorder");
    param.setPassword("not told");
    param.setRouterMappingEnableFlag(true);
    param.setRouterAddr("198.51.100.7");
    param.setRouterMappingControlPort(40001);
    param.setRouterMappingTCPAVPort(40002);
    param.setRouterMappingRTPPort(40003);
    param.setRouterMappingRTCPPort(40004);
    param.setRouterMappingRTSPPort(40005);
    return param;
}

void expectParam(const VideoDeviceAccessParam& expected, const VideoDeviceAccessParam& param)
{
    EXPECT_EQ(expected.getDeviceIP(), param.getDeviceIP());
    EXPECT_EQ(expected.getDevicePort(), param.getDevicePort());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
    EXPECT_EQ(expected.getDeviceType(), param.getDeviceType());
    EXPECT_EQ(expected.getDeviceID(), param.getDeviceID());
    EXPECT_EQ(expected.getDeviceName(), param.getDeviceName());
    EXPECT_EQ(expected.getUserID(), param.getUserID());
    EXPECT_TRUE(expected.getPassword() == param.getPassword()); // without the texts
    EXPECT_EQ(expected.getRouterMappingEnableFlag(), param.getRouterMappingEnableFlag());
    EXPECT_EQ(expected.getRouterAddr(), param.getRouterAddr());
    EXPECT_EQ(expected.getRouterMappingControlPort(), param.getRouterMappingControlPort());
    EXPECT_EQ(expected.getRouterMappingTCPAVPort(), param.getRouterMappingTCPAVPort());
    EXPECT_EQ(expected.getRouterMappingRTPPort(), param.getRouterMappingRTPPort());
    EXPECT_EQ(expected.getRouterMappingRTCPPort(), param.getRouterMappingRTCPPort());
    EXPECT_EQ(expected.getRouterMappingRTSPPort(), param.getRouterMappingRTSPPort());
}

} // namespace

TEST(VideoDeviceAccessParamXml, Writes)
{
    VideoDeviceAccessParamXml codec;
    codec.setVideoDeviceAccessParamList({sample(), VideoDeviceAccessParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "network/VideoDeviceAccessParamXml.document.xml"));
}

TEST(VideoDeviceAccessParamXml, WritesAnEmptyList)
{
    VideoDeviceAccessParamXml codec;
    EXPECT_EQ("<VideoDeviceAccessParamList />\n", written(codec));
}

TEST(VideoDeviceAccessParamXml, ReadsBehindWhatTheListHolds)
{
    VideoDeviceAccessParam before;
    before.setDeviceID("before");
    VideoDeviceAccessParamXml codec;
    codec.setVideoDeviceAccessParamList({before});
    ASSERT_TRUE(reads(codec, golden("network/VideoDeviceAccessParamXml.document.xml")));
    const std::vector<VideoDeviceAccessParam>& list = codec.getVideoDeviceAccessParamList();
    ASSERT_EQ(3U, list.size());
    expectParam(before, list[0]);
    expectParam(sample(), list[1]);
    expectParam(VideoDeviceAccessParam(), list[2]);
}

TEST(VideoDeviceAccessParamXml, TakesItemsByTheirNameAndLeavesWhatTheyLack)
{
    VideoDeviceAccessParamXml codec;
    ASSERT_TRUE(reads(codec, "<VideoDeviceAccessParamList>text<Other DeviceType='1' /><!--VideoDeviceAccessParam-->"
                             "<VideoDeviceAccessParam DeviceType='2' /><Other DeviceType='3' />"
                             "<VideoDeviceAccessParam IPProtoVer='4' /></VideoDeviceAccessParamList>"));
    const std::vector<VideoDeviceAccessParam>& list = codec.getVideoDeviceAccessParamList();
    ASSERT_EQ(2U, list.size());
    VideoDeviceAccessParam expected;
    expected.setDeviceType(2);
    expectParam(expected, list[0]);
    expected.setDeviceType(0);
    expected.setIPProtoVer(4);
    expectParam(expected, list[1]);
}

TEST(VideoDeviceAccessParamXml, ReadsTheFlagAsANumberOrAsAWord)
{
    VideoDeviceAccessParamXml codec;
    std::string text;
    for (const char* flag : {"1", "true", "0", "false", "yes", ""})
        text += std::string("<VideoDeviceAccessParam RouterMappingEnableFlag='") + flag + "' />";
    ASSERT_TRUE(reads(codec, "<VideoDeviceAccessParamList>" + text + "</VideoDeviceAccessParamList>"));
    const std::vector<VideoDeviceAccessParam>& list = codec.getVideoDeviceAccessParamList();
    ASSERT_EQ(6U, list.size());
    EXPECT_TRUE(list[0].getRouterMappingEnableFlag());
    EXPECT_TRUE(list[1].getRouterMappingEnableFlag());
    EXPECT_FALSE(list[2].getRouterMappingEnableFlag());
    EXPECT_FALSE(list[3].getRouterMappingEnableFlag());
    EXPECT_FALSE(list[4].getRouterMappingEnableFlag());
    EXPECT_FALSE(list[5].getRouterMappingEnableFlag());
}

TEST(VideoDeviceAccessParamXml, TakesBadNumbersAsFarAsTheyGo)
{
    VideoDeviceAccessParamXml codec;
    ASSERT_TRUE(reads(codec, "<VideoDeviceAccessParamList><VideoDeviceAccessParam DevicePort='70000' IPProtoVer='' "
                             "DeviceType='none' RouterMappingRTPPort='-1' RouterMappingRTCPPort='40x' "
                             "RouterMappingRTSPPort='99999999999999999999' /></VideoDeviceAccessParamList>"));
    ASSERT_EQ(1U, codec.getVideoDeviceAccessParamList().size());
    const VideoDeviceAccessParam& param = codec.getVideoDeviceAccessParamList()[0];
    EXPECT_EQ(4464, param.getDevicePort());
    EXPECT_EQ(0, param.getIPProtoVer());
    EXPECT_EQ(0, param.getDeviceType());
    EXPECT_EQ(65535, param.getRouterMappingRTPPort());
    EXPECT_EQ(40, param.getRouterMappingRTCPPort());
    EXPECT_EQ(65535, param.getRouterMappingRTSPPort());
}
