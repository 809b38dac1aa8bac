// <I3GAbilityParam SupportFlag="true" DeviceName="ppp0" />

#include "device/I3GAbilityParamXml.h"

#include "core/Frame.h"

I3GAbilityParamXml::I3GAbilityParamXml() = default;

I3GAbilityParamXml::~I3GAbilityParamXml() = default;

void I3GAbilityParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool I3GAbilityParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool I3GAbilityParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "I3GAbilityParam", document_, node_) && parseXmlNode();
}

bool I3GAbilityParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& I3GAbilityParamXml::writeElement(TiXmlNode& parent, const I3GAbilityParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "I3GAbilityParam");
    frame::setFlag(element, "SupportFlag", param.getSupportFlag());
    frame::setText(element, "DeviceName", param.get3GDeviceName());
    return element;
}

bool I3GAbilityParamXml::readElement(const TiXmlElement& element, I3GAbilityParam& param)
{
    param.setSupportFlag(frame::flagOf(element, "SupportFlag", param.getSupportFlag()));
    param.set3GDeviceName(frame::textOf(element, "DeviceName", param.get3GDeviceName()));
    return true;
}
