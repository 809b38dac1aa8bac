// <DeviceDateTime DeviceId="D-17" TimeZone="8" DataFormat="1" ... EndTime="03:00:00" />
//
// "DataFormat" and "DTSOpenFlag" are the peers' spelling; other documents say "DSTOpenFlag".

#include "network/DeviceDateTimeXml.h"

#include "core/Frame.h"

DeviceDateTimeXml::DeviceDateTimeXml() = default;

DeviceDateTimeXml::~DeviceDateTimeXml() = default;

void DeviceDateTimeXml::createXmlNode()
{
    writeElement(document_, dateTime_);
}

bool DeviceDateTimeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceDateTimeXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceDateTime", document_, node_) && parseXmlNode();
}

bool DeviceDateTimeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, dateTime_);
}

TiXmlElement& DeviceDateTimeXml::writeElement(TiXmlNode& parent, const DeviceDateTime& dateTime)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceDateTime");
    frame::setText(element, "DeviceId", dateTime.getDeviceId());
    frame::setInt(element, "TimeZone", dateTime.getTimeZone());
    frame::setInt(element, "DataFormat", dateTime.getDataFormat());
    frame::setInt(element, "TimeFormat", dateTime.getTimeFormat());
    frame::setInt(element, "DTSOpenFlag", dateTime.getDTSOpenFlag());
    frame::setInt(element, "BeginXun", dateTime.getBeginXun());
    frame::setInt(element, "BeginMonth", dateTime.getBeginMonth());
    frame::setInt(element, "BeginWeekly", dateTime.getBeginWeekly());
    frame::setInt(element, "BeginWeekDays", dateTime.getBeginWeekDays());
    frame::setText(element, "BeginTime", dateTime.getBeginTime());
    frame::setInt(element, "EndXun", dateTime.getEndXun());
    frame::setInt(element, "EndMonth", dateTime.getEndMonth());
    frame::setInt(element, "EndWeekly", dateTime.getEndWeekly());
    frame::setInt(element, "EndWeekDays", dateTime.getEndWeekDays());
    frame::setText(element, "EndTime", dateTime.getEndTime());
    return element;
}

bool DeviceDateTimeXml::readElement(const TiXmlElement& element, DeviceDateTime& dateTime)
{
    dateTime.setDeviceId(frame::textOf(element, "DeviceId", ""));
    dateTime.setTimeZone(frame::intOf(element, "TimeZone", 0));
    dateTime.setDataFormat(frame::intOf(element, "DataFormat", 0));
    dateTime.setTimeFormat(frame::intOf(element, "TimeFormat", 0));
    dateTime.setDTSOpenFlag(static_cast<std::uint8_t>(frame::intOf(element, "DTSOpenFlag", 0)));
    dateTime.setBeginXun(frame::intOf(element, "BeginXun", 0));
    dateTime.setBeginMonth(frame::intOf(element, "BeginMonth", 0));
    dateTime.setBeginWeekly(frame::intOf(element, "BeginWeekly", 0));
    dateTime.setBeginWeekDays(frame::intOf(element, "BeginWeekDays", 0));
    dateTime.setBeginTime(frame::textOf(element, "BeginTime", ""));
    dateTime.setEndXun(frame::intOf(element, "EndXun", 0));
    dateTime.setEndMonth(frame::intOf(element, "EndMonth", 0));
    dateTime.setEndWeekly(frame::intOf(element, "EndWeekly", 0));
    dateTime.setEndWeekDays(frame::intOf(element, "EndWeekDays", 0));
    dateTime.setEndTime(frame::textOf(element, "EndTime", ""));
    return true;
}
