// <DeviceServiceParam AlarmCenterStartFlag="false" />

#include "network/DeviceServiceParamXml.h"

#include "core/Frame.h"

DeviceServiceParamXml::DeviceServiceParamXml() = default;

DeviceServiceParamXml::~DeviceServiceParamXml() = default;

void DeviceServiceParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DeviceServiceParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceServiceParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceServiceParam", document_, node_) && parseXmlNode();
}

bool DeviceServiceParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DeviceServiceParamXml::writeElement(TiXmlNode& parent, const DeviceServiceParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceServiceParam");
    frame::setFlag(element, "AlarmCenterStartFlag", param.getAlarmCenterStartFlag());
    return element;
}

bool DeviceServiceParamXml::readElement(const TiXmlElement& element, DeviceServiceParam& param)
{
    param.setAlarmCenterStartFlag(frame::flagOf(element, "AlarmCenterStartFlag", true));
    return true;
}
