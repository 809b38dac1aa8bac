// <AlarmLogQueryParam DeviceId="D1" DeviceIp="192.0.2.1" StartTime="1425254400" EndTime="1425340799" AlarmType="3" />

#include "alarm/AlarmLogQueryParamXml.h"

#include "core/Frame.h"

AlarmLogQueryParamXml::AlarmLogQueryParamXml() = default;

AlarmLogQueryParamXml::~AlarmLogQueryParamXml() = default;

void AlarmLogQueryParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool AlarmLogQueryParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmLogQueryParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmLogQueryParam", document_, node_) && parseXmlNode();
}

bool AlarmLogQueryParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& AlarmLogQueryParamXml::writeElement(TiXmlNode& parent, const AlarmLogQueryParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmLogQueryParam");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setText(element, "DeviceIp", param.getDeviceIp());
    frame::setUnsigned(element, "StartTime", param.getStartTime());
    frame::setUnsigned(element, "EndTime", param.getEndTime());
    frame::setInt(element, "AlarmType", param.getAlarmType());
    return element;
}

bool AlarmLogQueryParamXml::readElement(const TiXmlElement& element, AlarmLogQueryParam& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", ""));
    param.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    param.setStartTime(frame::unsignedLongOf(element, "StartTime", 0));
    param.setEndTime(frame::unsignedLongOf(element, "EndTime", 0));
    param.setAlarmType(frame::intOf(element, "AlarmType", 0));
    return true;
}
