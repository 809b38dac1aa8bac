// <LiveVideoLayoutList>
//     <LiveVideoLayout ... />
// </LiveVideoLayoutList>

#include "display/LiveVideoLayoutListXml.h"

#include "core/Frame.h"
#include "display/LiveVideoLayoutXml.h"

#include <utility>

LiveVideoLayoutListXml::LiveVideoLayoutListXml() = default;

LiveVideoLayoutListXml::~LiveVideoLayoutListXml() = default;

void LiveVideoLayoutListXml::createXmlNode()
{
    writeElement(document_, layouts_);
}

bool LiveVideoLayoutListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LiveVideoLayoutListXml::parseXmlString()
{
    return frame::parseRoot(text_, "LiveVideoLayoutList", document_, node_) && parseXmlNode();
}

bool LiveVideoLayoutListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, layouts_);
}

TiXmlElement& LiveVideoLayoutListXml::writeElement(TiXmlNode& parent, const std::vector<LiveVideoLayout>& layouts)
{
    TiXmlElement& element = frame::appendElement(parent, "LiveVideoLayoutList");
    for (const LiveVideoLayout& layout : layouts)
        LiveVideoLayoutXml::writeElement(element, layout);
    return element;
}

bool LiveVideoLayoutListXml::readElement(const TiXmlElement& element, std::vector<LiveVideoLayout>& layouts)
{
    const TiXmlElement* item = frame::firstItem(element, "LiveVideoLayout");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LiveVideoLayout layout;
        if (!LiveVideoLayoutXml::readElement(*item, layout)) return false;
        layouts.push_back(std::move(layout));
    }
    return true;
}
