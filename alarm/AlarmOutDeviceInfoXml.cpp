// <AlarmOutDeviceInfo AlarmOutId="1" AlarmOutName="Siren" />

#include "alarm/AlarmOutDeviceInfoXml.h"

#include "core/Frame.h"

AlarmOutDeviceInfoXml::AlarmOutDeviceInfoXml() = default;

AlarmOutDeviceInfoXml::~AlarmOutDeviceInfoXml() = default;

void AlarmOutDeviceInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool AlarmOutDeviceInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmOutDeviceInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmOutDeviceInfo", document_, node_) && parseXmlNode();
}

bool AlarmOutDeviceInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& AlarmOutDeviceInfoXml::writeElement(TiXmlNode& parent, const AlarmOutDeviceInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmOutDeviceInfo");
    frame::setInt(element, "AlarmOutId", info.getAlarmOutId());
    frame::setText(element, "AlarmOutName", info.getAlarmOutName());
    return element;
}

bool AlarmOutDeviceInfoXml::readElement(const TiXmlElement& element, AlarmOutDeviceInfo& info)
{
    info.setAlarmOutId(frame::intOf(element, "AlarmOutId", 0));
    info.setAlarmOutName(frame::textOf(element, "AlarmOutName", ""));
    return true;
}
