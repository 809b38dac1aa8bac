// <WifiHotspotParamList>
//     <WifiHotspotParam ... />
// </WifiHotspotParamList>

#include "network/WifiHotspotParamListXml.h"

#include "core/Frame.h"
#include "network/WifiHotspotParamXml.h"

#include <utility>

WifiHotspotParamListXml::WifiHotspotParamListXml() = default;

WifiHotspotParamListXml::~WifiHotspotParamListXml() = default;

void WifiHotspotParamListXml::createXmlNode()
{
    writeElement(document_, hotspots_);
}

bool WifiHotspotParamListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WifiHotspotParamListXml::parseXmlString()
{
    return frame::parseRoot(text_, "WifiHotspotParamList", document_, node_) && parseXmlNode();
}

bool WifiHotspotParamListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, hotspots_);
}

TiXmlElement& WifiHotspotParamListXml::writeElement(TiXmlNode& parent, const std::vector<WifiHotspotParam>& hotspots)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiHotspotParamList");
    for (const WifiHotspotParam& hotspot : hotspots)
        WifiHotspotParamXml::writeElement(element, hotspot);
    return element;
}

bool WifiHotspotParamListXml::readElement(const TiXmlElement& element, std::vector<WifiHotspotParam>& hotspots)
{
    const TiXmlElement* item = frame::firstItem(element, "WifiHotspotParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        WifiHotspotParam hotspot;
        if (!WifiHotspotParamXml::readElement(*item, hotspot)) return false;
        hotspots.push_back(std::move(hotspot));
    }
    return true;
}
