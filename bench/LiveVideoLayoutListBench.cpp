#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "display/LiveVideoLayoutListXml.h"

#include <utility>

namespace
{

LayoutWindow makeWindow(int id)
{
    LayoutWindow window;
    window.setWinId(id);
    for (int channelId = 1; channelId <= 3; ++channelId)
    {
        LiveVideoChannel channel;
        channel.setChannelID(channelId);
        channel.setDeviceID("3402000000132000" + std::to_string(100 + id));
        window.getLiveVideoChannelList().push_back(channel);
    }
    return window;
}

std::vector<LiveVideoLayout> makeLayouts(int count)
{
    constexpr int windows = 4;
    std::vector<LiveVideoLayout> layouts;
    for (int number = 1; number <= count; ++number)
    {
        LiveVideoLayout layout;
        layout.setLayoutName("Building " + std::to_string(number) + ", entrances");
        layout.setUserName("operator" + std::to_string(number % 4));
        layout.setLayoutMode(windows);
        layout.setAccessControlType(number % 2);
        layout.setLayoutWindowNum(windows);
        layout.setCycleScanInterval(15);
        for (int id = 1; id <= windows; ++id)
            layout.getLayoutWindowList().push_back(makeWindow(id));
        layouts.push_back(layout);
    }
    return layouts;
}

void writeFloorLayout(TiXmlElement& list, const LiveVideoLayout& layout)
{
    TiXmlElement& element = bare::appendElement(list, "LiveVideoLayout");
    element.SetAttribute("LayoutName", layout.getLayoutName().c_str());
    element.SetAttribute("UserName", layout.getUserName().c_str());
    element.SetAttribute("LayoutMode", layout.getLayoutMode());
    element.SetAttribute("AccessControlType", layout.getAccessControlType());
    element.SetAttribute("LayoutWindowNum", layout.getLayoutWindowNum());
    element.SetAttribute("CycleScanInterval", layout.getCycleScanInterval());

    TiXmlElement& windows = bare::appendElement(element, "LayoutWindowList");
    for (const LayoutWindow& window : layout.getLayoutWindowList())
    {
        TiXmlElement& item = bare::appendElement(windows, "LayoutWindow");
        item.SetAttribute("WindowID", window.getWinId());

        TiXmlElement& channels = bare::appendElement(item, "LiveVideoChannelList");
        for (const LiveVideoChannel& channel : window.getLiveVideoChannelList())
        {
            TiXmlElement& child = bare::appendElement(channels, "LiveVideoChannel");
            child.SetAttribute("ChannelID", channel.getChannelID());
            child.SetAttribute("DeviceID", channel.getDeviceID().c_str());
        }
    }
}

void readFloorWindow(const TiXmlElement& element, LayoutWindow& window)
{
    window.setWinId(bare::intOf(element, "WindowID", 0));

    const TiXmlElement* item = bare::firstItem(element, "LiveVideoChannelList", "LiveVideoChannel");
    for (; item != nullptr; item = item->NextSiblingElement("LiveVideoChannel"))
    {
        LiveVideoChannel channel;
        channel.setChannelID(bare::intOf(*item, "ChannelID", 0));
        channel.setDeviceID(bare::textOf(*item, "DeviceID"));
        window.getLiveVideoChannelList().push_back(std::move(channel));
    }
}

void readFloorLayout(const TiXmlElement& element, LiveVideoLayout& layout)
{
    layout.setLayoutName(bare::textOf(element, "LayoutName"));
    layout.setUserName(bare::textOf(element, "UserName"));
    layout.setLayoutMode(bare::intOf(element, "LayoutMode", 0));
    layout.setAccessControlType(bare::intOf(element, "AccessControlType", 0));
    layout.setLayoutWindowNum(bare::intOf(element, "LayoutWindowNum", 0));
    layout.setCycleScanInterval(bare::intOf(element, "CycleScanInterval", 0));

    const TiXmlElement* item = bare::firstItem(element, "LayoutWindowList", "LayoutWindow");
    for (; item != nullptr; item = item->NextSiblingElement("LayoutWindow"))
    {
        LayoutWindow window;
        readFloorWindow(*item, window);
        layout.getLayoutWindowList().push_back(std::move(window));
    }
}

std::string writeFloor(const std::vector<LiveVideoLayout>& layouts)
{
    TiXmlDocument document;
    TiXmlElement& list = bare::appendElement(document, "LiveVideoLayoutList");
    for (const LiveVideoLayout& layout : layouts)
        writeFloorLayout(list, layout);
    return bare::print(document);
}

bool readFloor(const std::string& text, std::vector<LiveVideoLayout>& layouts)
{
    TiXmlDocument document;
    const TiXmlElement* list = bare::parse(document, text, "LiveVideoLayoutList");
    if (list == nullptr) return false;

    const TiXmlElement* item = list->FirstChildElement("LiveVideoLayout");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LiveVideoLayout layout;
        readFloorLayout(*item, layout);
        layouts.push_back(std::move(layout));
    }
    return true;
}

std::string writeDocument(const std::vector<LiveVideoLayout>& layouts)
{
    LiveVideoLayoutListXml codec;
    codec.setLiveVideoLayoutList(layouts);
    codec.createXmlString();
    return std::move(codec.getXmlString());
}

bool readDocument(const std::string& text, std::vector<LiveVideoLayout>& layouts)
{
    LiveVideoLayoutListXml codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;
    layouts = std::move(codec.getLiveVideoLayoutList());
    return true;
}

} // namespace

void addLiveVideoLayoutList()
{
    const char* emptyText = "<LiveVideoLayoutList><LiveVideoLayout><LayoutWindowList><LayoutWindow>"
                            "<LiveVideoChannelList><LiveVideoChannel /></LiveVideoChannelList>"
                            "</LayoutWindow></LayoutWindowList></LiveVideoLayout></LiveVideoLayoutList>";
    compare<std::vector<LiveVideoLayout>>("LiveVideoLayoutList.document", makeLayouts(20), emptyText,
                                          {writeFloor, readFloor}, {writeDocument, readDocument});
}
