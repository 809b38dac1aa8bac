// <RS232DeviceInfo Name="Console" ComId="1" />
//
// The name stands first, other than with RS-485.

#include "ptz/RS232DeviceInfoXml.h"

#include "core/Frame.h"

RS232DeviceInfoXml::RS232DeviceInfoXml() = default;

RS232DeviceInfoXml::~RS232DeviceInfoXml() = default;

void RS232DeviceInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool RS232DeviceInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS232DeviceInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS232DeviceInfo", document_, node_) && parseXmlNode();
}

bool RS232DeviceInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& RS232DeviceInfoXml::writeElement(TiXmlNode& parent, const RS232DeviceInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "RS232DeviceInfo");
    frame::setText(element, "Name", info.getName());
    frame::setInt(element, "ComId", info.getComId());
    return element;
}

bool RS232DeviceInfoXml::readElement(const TiXmlElement& element, RS232DeviceInfo& info)
{
    info.setName(frame::textOf(element, "Name", ""));
    info.setComId(frame::intOf(element, "ComId", 0));
    return true;
}
