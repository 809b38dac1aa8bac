// <LiveVideoLayout LayoutName="gates" UserName="operator" LayoutMode="4" AccessControlType="1" LayoutWindowNum="1"
//                  CycleScanInterval="10">
//     <LayoutWindowList>
//         <LayoutWindow WindowID="1">
//             <LiveVideoChannelList>
//                 <LiveVideoChannel ChannelID="1" DeviceID="D1" />
//             </LiveVideoChannelList>
//         </LayoutWindow>
//     </LayoutWindowList>
// </LiveVideoLayout>

#include "display/LiveVideoLayoutXml.h"

#include "core/Frame.h"
#include "display/LayoutWindowXml.h"

#include <utility>

LiveVideoLayoutXml::LiveVideoLayoutXml() = default;

LiveVideoLayoutXml::~LiveVideoLayoutXml() = default;

void LiveVideoLayoutXml::createXmlNode()
{
    writeElement(document_, layout_);
}

bool LiveVideoLayoutXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LiveVideoLayoutXml::parseXmlString()
{
    return frame::parseRoot(text_, "LiveVideoLayout", document_, node_) && parseXmlNode();
}

bool LiveVideoLayoutXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, layout_);
}

TiXmlElement& LiveVideoLayoutXml::writeElement(TiXmlNode& parent, const LiveVideoLayout& layout)
{
    TiXmlElement& element = frame::appendElement(parent, "LiveVideoLayout");
    frame::setText(element, "LayoutName", layout.getLayoutName());
    frame::setText(element, "UserName", layout.getUserName());
    frame::setInt(element, "LayoutMode", layout.getLayoutMode());
    frame::setInt(element, "AccessControlType", layout.getAccessControlType());
    frame::setInt(element, "LayoutWindowNum", layout.getLayoutWindowNum());
    frame::setInt(element, "CycleScanInterval", layout.getCycleScanInterval());

    TiXmlElement& windows = frame::appendElement(element, "LayoutWindowList");
    for (const LayoutWindow& window : layout.getLayoutWindowList())
        LayoutWindowXml::writeElement(windows, window);
    return element;
}

bool LiveVideoLayoutXml::readElement(const TiXmlElement& element, LiveVideoLayout& layout)
{
    layout.setLayoutName(frame::textOf(element, "LayoutName", ""));
    layout.setUserName(frame::textOf(element, "UserName", ""));
    layout.setLayoutMode(frame::intOf(element, "LayoutMode", layout.getLayoutMode()));
    layout.setAccessControlType(frame::intOf(element, "AccessControlType", layout.getAccessControlType()));
    layout.setLayoutWindowNum(frame::intOf(element, "LayoutWindowNum", layout.getLayoutWindowNum()));
    layout.setCycleScanInterval(frame::intOf(element, "CycleScanInterval", layout.getCycleScanInterval()));

    const TiXmlElement* item = frame::firstItem(element, "LayoutWindowList", "LayoutWindow");
    for (; item != nullptr; item = item->NextSiblingElement("LayoutWindow"))
    {
        LayoutWindow window;
        if (!LayoutWindowXml::readElement(*item, window)) return false;
        layout.getLayoutWindowList().push_back(std::move(window));
    }
    return true;
}
