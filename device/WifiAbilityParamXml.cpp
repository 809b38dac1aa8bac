// <WifiAbilityParam>
//     <WifiAbilityParamItem SupportFlag="true" DeviceName="wlan0" />
// </WifiAbilityParam>

#include "device/WifiAbilityParamXml.h"

#include "core/Frame.h"

WifiAbilityParamXml::WifiAbilityParamXml() = default;

WifiAbilityParamXml::~WifiAbilityParamXml() noexcept = default;

void WifiAbilityParamXml::createXmlNode()
{
    tree_ = frame::makeNode("WifiAbilityParam");
    element_ = tree_->getXmlNode();
    writeContent(*element_, param_);
}

bool WifiAbilityParamXml::createXmlString()
{
    createXmlNode();
    return DomainXmlNode::toString(tree_, text_);
}

bool WifiAbilityParamXml::parseXmlString()
{
    if (!DomainXmlNode::parse(text_, "WifiAbilityParam", tree_)) return false;
    element_ = tree_->getXmlNode();
    return parseXmlNode();
}

bool WifiAbilityParamXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, param_);
}

TiXmlElement& WifiAbilityParamXml::writeElement(TiXmlNode& parent, const WifiAbilityParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "WifiAbilityParam");
    writeContent(element, param);
    return element;
}

bool WifiAbilityParamXml::readElement(const TiXmlElement& element, WifiAbilityParam& param)
{
    const TiXmlElement* item = element.FirstChildElement("WifiAbilityParamItem");
    if (item == nullptr) return false;
    param.setSupportFlag(frame::flagOf(*item, "SupportFlag", false));
    param.setWifiDeviceName(frame::textOf(*item, "DeviceName", ""));
    return true;
}

void WifiAbilityParamXml::writeContent(TiXmlElement& element, const WifiAbilityParam& param)
{
    TiXmlElement& item = frame::appendElement(element, "WifiAbilityParamItem");
    frame::setFlag(item, "SupportFlag", param.getSupportFlag());
    frame::setText(item, "DeviceName", param.getWifiDeviceName());
}
