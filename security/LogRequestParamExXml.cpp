// <LogRequestParamEx DeviceId="D-17" DeviceIp="192.0.2.17" CameraId="3" UserName="operator" SelectMode="2"
//                    MajorType="4" MinorType="5">
//     <StartTime ... />
//     <EndTime ... />
// </LogRequestParamEx>

#include "security/LogRequestParamExXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"

LogRequestParamExXml::LogRequestParamExXml() = default;

LogRequestParamExXml::~LogRequestParamExXml() = default;

void LogRequestParamExXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool LogRequestParamExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LogRequestParamExXml::parseXmlString()
{
    return frame::parseRoot(text_, "LogRequestParamEx", document_, node_) && parseXmlNode();
}

bool LogRequestParamExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& LogRequestParamExXml::writeElement(TiXmlNode& parent, const LogRequestParamEx& param)
{
    TiXmlElement& element = frame::appendElement(parent, "LogRequestParamEx");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setText(element, "DeviceIp", param.getDeviceIp());
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setText(element, "UserName", param.getUserName());
    frame::setInt(element, "SelectMode", param.getSelectMode());
    frame::setInt(element, "MajorType", param.getMajorType());
    frame::setInt(element, "MinorType", param.getMinorType());

    TimeStructXml::writeElement(element, "StartTime", param.getStartTime());
    TimeStructXml::writeElement(element, "EndTime", param.getEndTime());
    return element;
}

bool LogRequestParamExXml::readElement(const TiXmlElement& element, LogRequestParamEx& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", param.getDeviceId()));
    param.setDeviceIp(frame::textOf(element, "DeviceIp", param.getDeviceIp()));
    param.setCameraId(frame::intOf(element, "CameraId", param.getCameraId()));
    param.setUserName(frame::textOf(element, "UserName", param.getUserName()));
    param.setSelectMode(frame::intOf(element, "SelectMode", param.getSelectMode()));
    param.setMajorType(frame::intOf(element, "MajorType", param.getMajorType()));
    param.setMinorType(frame::intOf(element, "MinorType", param.getMinorType()));

    TimeStruct startTime;
    if (TimeStructXml().parseTimeStruct(&element, "StartTime", startTime)) param.setStartTime(startTime);
    TimeStruct endTime;
    if (TimeStructXml().parseTimeStruct(&element, "EndTime", endTime)) param.setEndTime(endTime);
    return true;
}
