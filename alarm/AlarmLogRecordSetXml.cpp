// <AlarmLogRecordSet DeviceId="D1" DeviceIp="192.0.2.1" AlarmTime="1425254400" AlarmType="3" AlarmSourceId="2"
//                    AlarmSourceName="Door" />

#include "alarm/AlarmLogRecordSetXml.h"

#include "core/Frame.h"

AlarmLogRecordSetXml::AlarmLogRecordSetXml() = default;

AlarmLogRecordSetXml::~AlarmLogRecordSetXml() = default;

void AlarmLogRecordSetXml::createXmlNode()
{
    writeElement(document_, record_);
}

bool AlarmLogRecordSetXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmLogRecordSetXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmLogRecordSet", document_, node_) && parseXmlNode();
}

bool AlarmLogRecordSetXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, record_);
}

TiXmlElement& AlarmLogRecordSetXml::writeElement(TiXmlNode& parent, const AlarmLogRecordSet& record)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmLogRecordSet");
    frame::setText(element, "DeviceId", record.getDeviceId());
    frame::setText(element, "DeviceIp", record.getDeviceIp());
    frame::setUnsigned(element, "AlarmTime", record.getAlarmTime());
    frame::setInt(element, "AlarmType", record.getAlarmType());
    frame::setInt(element, "AlarmSourceId", record.getAlarmSourceId());
    frame::setText(element, "AlarmSourceName", record.getAlarmSourceName());
    return element;
}

bool AlarmLogRecordSetXml::readElement(const TiXmlElement& element, AlarmLogRecordSet& record)
{
    record.setDeviceId(frame::textOf(element, "DeviceId", ""));
    record.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    record.setAlarmTime(frame::unsignedLongOf(element, "AlarmTime", 0));
    record.setAlarmType(frame::intOf(element, "AlarmType", 0));
    record.setAlarmSourceId(frame::intOf(element, "AlarmSourceId", 0));
    record.setAlarmSourceName(frame::textOf(element, "AlarmSourceName", ""));
    return true;
}
