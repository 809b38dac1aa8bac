// <RS485DeviceInfo ComId="1" Name="Dome bus" />
//
// The number stands first, other than with RS-232.

#include "ptz/RS485DeviceInfoXml.h"

#include "core/Frame.h"

RS485DeviceInfoXml::RS485DeviceInfoXml() = default;

RS485DeviceInfoXml::~RS485DeviceInfoXml() = default;

void RS485DeviceInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool RS485DeviceInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS485DeviceInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS485DeviceInfo", document_, node_) && parseXmlNode();
}

bool RS485DeviceInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& RS485DeviceInfoXml::writeElement(TiXmlNode& parent, const RS485DeviceInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "RS485DeviceInfo");
    frame::setInt(element, "ComId", info.getComId());
    frame::setText(element, "Name", info.getName());
    return element;
}

bool RS485DeviceInfoXml::readElement(const TiXmlElement& element, RS485DeviceInfo& info)
{
    info.setComId(frame::intOf(element, "ComId", 0));
    info.setName(frame::textOf(element, "Name", ""));
    return true;
}
