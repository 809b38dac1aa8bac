// <WifiHotspotParam SSID="Yard" EncryptionType="WPA2-PSK" SignalQuality="71" />

#include "network/WifiHotspotParamXml.h"

#include "core/Frame.h"

WifiHotspotParamXml::WifiHotspotParamXml() = default;

WifiHotspotParamXml::~WifiHotspotParamXml() = default;

void WifiHotspotParamXml::createXmlNode()
{
    writeElement(document_, hotspot_);
}

bool WifiHotspotParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WifiHotspotParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "WifiHotspotParam", document_, node_) && parseXmlNode();
}

bool WifiHotspotParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, hotspot_);
}

TiXmlElement& WifiHotspotParamXml::writeElement(TiXmlNode& parent, const WifiHotspotParam& hotspot)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiHotspotParam");
    frame::setText(element, "SSID", hotspot.getSSID());
    frame::setText(element, "EncryptionType", hotspot.getEncryptionType());
    frame::setInt(element, "SignalQuality", hotspot.getSignalQuality());
    return element;
}

bool WifiHotspotParamXml::readElement(const TiXmlElement& element, WifiHotspotParam& hotspot)
{
    hotspot.setSSID(frame::textOf(element, "SSID", hotspot.getSSID()));
    hotspot.setEncryptionType(frame::textOf(element, "EncryptionType", hotspot.getEncryptionType()));
    hotspot.setSignalQuality(frame::intOf(element, "SignalQuality", hotspot.getSignalQuality()));
    return true;
}
