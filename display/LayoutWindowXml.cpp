// <LayoutWindow WindowID="1">
//     <LiveVideoChannelList>
//         <LiveVideoChannel ChannelID="1" DeviceID="D1" />
//     </LiveVideoChannelList>
// </LayoutWindow>

#include "display/LayoutWindowXml.h"

#include "core/Frame.h"
#include "display/LiveVideoChannelXml.h"

#include <utility>

LayoutWindowXml::LayoutWindowXml() = default;

LayoutWindowXml::~LayoutWindowXml() = default;

void LayoutWindowXml::createXmlNode()
{
    writeElement(document_, window_);
}

bool LayoutWindowXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LayoutWindowXml::parseXmlString()
{
    return frame::parseRoot(text_, "LayoutWindow", document_, node_) && parseXmlNode();
}

bool LayoutWindowXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, window_);
}

TiXmlElement& LayoutWindowXml::writeElement(TiXmlNode& parent, const LayoutWindow& window)
{
    TiXmlElement& element = frame::appendElement(parent, "LayoutWindow");
    frame::setInt(element, "WindowID", window.getWinId());

    TiXmlElement& channels = frame::appendElement(element, "LiveVideoChannelList");
    for (const LiveVideoChannel& channel : window.getLiveVideoChannelList())
        LiveVideoChannelXml::writeElement(channels, channel);
    return element;
}

bool LayoutWindowXml::readElement(const TiXmlElement& element, LayoutWindow& window)
{
    window.setWinId(frame::intOf(element, "WindowID", window.getWinId()));

    const TiXmlElement* item = frame::firstItem(element, "LiveVideoChannelList", "LiveVideoChannel");
    for (; item != nullptr; item = item->NextSiblingElement("LiveVideoChannel"))
    {
        LiveVideoChannel channel;
        if (!LiveVideoChannelXml::readElement(*item, channel)) return false;
        window.getLiveVideoChannelList().push_back(std::move(channel));
    }
    return true;
}
