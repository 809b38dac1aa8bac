#include "tests/media/OverlaySample.h"

#include <gtest/gtest.h>

OSDInfoEx sampleText()
{
    OSDInfoEx info;
    info.setOSDType(3);
    info.setOSDEnableFlag(true);
    info.setX(12.5F);
    info.setY(-0.25F);
    info.setInfo("North & gate");
    return info;
}

void expectText(const OSDInfoEx& expected, const OSDInfoEx& info)
{
    EXPECT_EQ(expected.getOSDType(), info.getOSDType());
    EXPECT_EQ(expected.getOSDEnableFlag(), info.getOSDEnableFlag());
    EXPECT_EQ(expected.getX(), info.getX());
    EXPECT_EQ(expected.getY(), info.getY());
    EXPECT_EQ(expected.getInfo(), info.getInfo());
}

OSDPrintTime samplePrintTime()
{
    OSDPrintTime time;
    time.setOSDType(2);
    time.setTime(9);
    return time;
}

void expectPrintTime(const OSDPrintTime& expected, const OSDPrintTime& time)
{
    EXPECT_EQ(expected.getOSDType(), time.getOSDType());
    EXPECT_EQ(expected.getTime(), time.getTime());
}

std::vector<VideoOSDInfoEx> sampleVideos()
{
    std::vector<VideoOSDInfoEx> videos(2);
    videos[0].setCameraId(4);
    videos[0].setOSDInfoList({sampleText(), OSDInfoEx()});
    videos[1].setCameraId(5);
    return videos;
}

void expectVideo(const VideoOSDInfoEx& expected, const VideoOSDInfoEx& video)
{
    EXPECT_EQ(expected.getCameraId(), video.getCameraId());
    ASSERT_EQ(expected.getOSDInfoList().size(), video.getOSDInfoList().size());
    for (std::size_t number = 0; number < video.getOSDInfoList().size(); ++number)
        expectText(expected.getOSDInfoList()[number], video.getOSDInfoList()[number]);
}

void expectVideos(const std::vector<VideoOSDInfoEx>& expected, const std::vector<VideoOSDInfoEx>& videos)
{
    ASSERT_EQ(expected.size(), videos.size());
    for (std::size_t number = 0; number < videos.size(); ++number)
        expectVideo(expected[number], videos[number]);
}
