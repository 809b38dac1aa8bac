#include "tests/display/LayoutSample.h"

#include <gtest/gtest.h>

LiveVideoChannel sampleChannel(int first)
{
    LiveVideoChannel channel;
    channel.setChannelID(first);
    channel.setDeviceID("D " + std::to_string(first + 1));
    return channel;
}

LayoutWindow sampleWindow(int first)
{
    LayoutWindow window;
    window.setWinId(first);
    window.setLiveVideoChannelList({sampleChannel(first + 1), sampleChannel(first + 3)});
    return window;
}

LiveVideoLayout sampleLayout(int first)
{
    LiveVideoLayout layout;
    layout.setLayoutName("layout " + std::to_string(first));
    layout.setUserName("user " + std::to_string(first + 1));
    layout.setLayoutMode(first + 2);
    layout.setAccessControlType(first + 3);
    layout.setLayoutWindowNum(first + 4);
    layout.setCycleScanInterval(first + 5);
    layout.setLayoutWindowList({sampleWindow(first + 10), sampleWindow(first + 20)});
    return layout;
}

void expectChannel(const LiveVideoChannel& expected, const LiveVideoChannel& channel)
{
    EXPECT_EQ(expected.getChannelID(), channel.getChannelID());
    EXPECT_EQ(expected.getDeviceID(), channel.getDeviceID());
}

void expectWindow(const LayoutWindow& expected, const LayoutWindow& window)
{
    EXPECT_EQ(expected.getWinId(), window.getWinId());
    ASSERT_EQ(expected.getLiveVideoChannelList().size(), window.getLiveVideoChannelList().size());
    for (std::size_t number = 0; number < window.getLiveVideoChannelList().size(); ++number)
        expectChannel(expected.getLiveVideoChannelList()[number], window.getLiveVideoChannelList()[number]);
}

void expectLayout(const LiveVideoLayout& expected, const LiveVideoLayout& layout)
{
    EXPECT_EQ(expected.getLayoutName(), layout.getLayoutName());
    EXPECT_EQ(expected.getUserName(), layout.getUserName());
    EXPECT_EQ(expected.getLayoutMode(), layout.getLayoutMode());
    EXPECT_EQ(expected.getAccessControlType(), layout.getAccessControlType());
    EXPECT_EQ(expected.getLayoutWindowNum(), layout.getLayoutWindowNum());
    EXPECT_EQ(expected.getCycleScanInterval(), layout.getCycleScanInterval());
    ASSERT_EQ(expected.getLayoutWindowList().size(), layout.getLayoutWindowList().size());
    for (std::size_t number = 0; number < layout.getLayoutWindowList().size(); ++number)
        expectWindow(expected.getLayoutWindowList()[number], layout.getLayoutWindowList()[number]);
}
