// <DeviceAccessParam LocalIp="192.0.2.17" ControlPort="30001" VideoTransferPort="30003" ... HttpPort="8080" />

#include "network/DeviceAccessParamXml.h"

#include "core/Frame.h"

DeviceAccessParamXml::DeviceAccessParamXml() = default;

DeviceAccessParamXml::~DeviceAccessParamXml() = default;

void DeviceAccessParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DeviceAccessParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceAccessParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceAccessParam", document_, node_) && parseXmlNode();
}

bool DeviceAccessParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DeviceAccessParamXml::writeElement(TiXmlNode& parent, const DeviceAccessParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceAccessParam");
    frame::setText(element, "LocalIp", param.getLocalIp());
    frame::setInt(element, "ControlPort", param.getControlPort());
    frame::setInt(element, "VideoTransferPort", param.getVideoTransferPort());
    frame::setInt(element, "AudioTransferPort", param.getAudioTransferPort());
    frame::setInt(element, "HttpPort", param.getHttpPort());
    return element;
}

bool DeviceAccessParamXml::readElement(const TiXmlElement& element, DeviceAccessParam& param)
{
    param.setLocalIp(frame::textOf(element, "LocalIp", ""));
    param.setControlPort(frame::uint16Of(element, "ControlPort", 0));
    param.setVideoTransferPort(frame::uint16Of(element, "VideoTransferPort", 0));
    param.setAudioTransferPort(frame::uint16Of(element, "AudioTransferPort", 0));
    param.setHttpPort(frame::uint16Of(element, "HttpPort", 0));
    return true;
}
