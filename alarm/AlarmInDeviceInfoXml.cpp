// <AlarmInDeviceInfo AlarmInId="1" AlarmInName="Door" />

#include "alarm/AlarmInDeviceInfoXml.h"

#include "core/Frame.h"

AlarmInDeviceInfoXml::AlarmInDeviceInfoXml() = default;

AlarmInDeviceInfoXml::~AlarmInDeviceInfoXml() = default;

void AlarmInDeviceInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool AlarmInDeviceInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInDeviceInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInDeviceInfo", document_, node_) && parseXmlNode();
}

bool AlarmInDeviceInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& AlarmInDeviceInfoXml::writeElement(TiXmlNode& parent, const AlarmInDeviceInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInDeviceInfo");
    frame::setInt(element, "AlarmInId", info.getAlarmInId());
    frame::setText(element, "AlarmInName", info.getAlarmInName());
    return element;
}

bool AlarmInDeviceInfoXml::readElement(const TiXmlElement& element, AlarmInDeviceInfo& info)
{
    info.setAlarmInId(frame::intOf(element, "AlarmInId", 0));
    info.setAlarmInName(frame::textOf(element, "AlarmInName", ""));
    return true;
}
