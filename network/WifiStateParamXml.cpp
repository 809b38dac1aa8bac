// <WifiStateParam ConnectState="2" SignalQuality="71" />

#include "network/WifiStateParamXml.h"

#include "core/Frame.h"

WifiStateParamXml::WifiStateParamXml() = default;

WifiStateParamXml::~WifiStateParamXml() = default;

void WifiStateParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool WifiStateParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WifiStateParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "WifiStateParam", document_, node_) && parseXmlNode();
}

bool WifiStateParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& WifiStateParamXml::writeElement(TiXmlNode& parent, const WifiStateParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiStateParam");
    frame::setInt(element, "ConnectState", param.getConnectState());
    frame::setInt(element, "SignalQuality", param.getSignalQuality());
    return element;
}

bool WifiStateParamXml::readElement(const TiXmlElement& element, WifiStateParam& param)
{
    param.setConnectState(frame::intOf(element, "ConnectState", param.getConnectState()));
    param.setSignalQuality(frame::intOf(element, "SignalQuality", param.getSignalQuality()));
    return true;
}
