// <AlarmInfoExQueryParam DeviceId="D1" DeviceIp="192.0.2.1" SourceId="S1" SourceName="Door" BeginTime="1425254400"
//                        EndTime="1425340799" MajorType="1" MinorType="3">
//     <AlarmBeginTimeStruct ... />
//     <AlarmEndTimeStruct ... />
// </AlarmInfoExQueryParam>
//
// The answer names the same things otherwise: "SourceId" here is "AlarmSourceId" there, "MajorType" "MajorAlarmType".

#include "alarm/AlarmInfoExQueryParamXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"

AlarmInfoExQueryParamXml::AlarmInfoExQueryParamXml() = default;

AlarmInfoExQueryParamXml::~AlarmInfoExQueryParamXml() = default;

void AlarmInfoExQueryParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool AlarmInfoExQueryParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInfoExQueryParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInfoExQueryParam", document_, node_) && parseXmlNode();
}

bool AlarmInfoExQueryParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& AlarmInfoExQueryParamXml::writeElement(TiXmlNode& parent, const AlarmInfoExQueryParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInfoExQueryParam");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setText(element, "DeviceIp", param.getDeviceIP());
    frame::setText(element, "SourceId", param.getSourceId());
    frame::setText(element, "SourceName", param.getSourceName());
    frame::setUnsigned(element, "BeginTime", param.getAlarmBeginTime());
    frame::setUnsigned(element, "EndTime", param.getAlarmEndTime());
    frame::setInt(element, "MajorType", param.getMajorType());
    frame::setInt(element, "MinorType", param.getMinorType());

    TimeStructXml::writeElement(element, "AlarmBeginTimeStruct", param.getStructAlarmBeginTime());
    TimeStructXml::writeElement(element, "AlarmEndTimeStruct", param.getStructAlarmEndTime());
    return element;
}

bool AlarmInfoExQueryParamXml::readElement(const TiXmlElement& element, AlarmInfoExQueryParam& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", ""));
    param.setDeviceIP(frame::textOf(element, "DeviceIp", ""));
    param.setSourceId(frame::textOf(element, "SourceId", ""));
    param.setSourceName(frame::textOf(element, "SourceName", ""));
    param.setAlarmBeginTime(frame::unsignedLongOf(element, "BeginTime", 0));
    param.setAlarmEndTime(frame::unsignedLongOf(element, "EndTime", 0));
    param.setMajorType(frame::intOf(element, "MajorType", 0));
    param.setMinorType(frame::intOf(element, "MinorType", 0));

    TimeStruct beginTime;
    if (TimeStructXml().parseTimeStruct(&element, "AlarmBeginTimeStruct", beginTime))
        param.setStructAlarmBeginTime(beginTime);

    TimeStruct endTime;
    if (TimeStructXml().parseTimeStruct(&element, "AlarmEndTimeStruct", endTime)) param.setStructAlarmEndTime(endTime);
    return true;
}
