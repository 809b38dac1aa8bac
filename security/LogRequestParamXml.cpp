// <LogRequestParam DeviceId="D-17" DeviceIp="192.0.2.17" CameraId="3" UserName="operator" SelectMode="2" MajorType="4"
//                  MinorType="5" StartTime="1425283200" EndTime="1425369600" />

#include "security/LogRequestParamXml.h"

#include "core/Frame.h"

LogRequestParamXml::LogRequestParamXml() = default;

LogRequestParamXml::~LogRequestParamXml() = default;

void LogRequestParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool LogRequestParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LogRequestParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "LogRequestParam", document_, node_) && parseXmlNode();
}

bool LogRequestParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& LogRequestParamXml::writeElement(TiXmlNode& parent, const LogRequestParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "LogRequestParam");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setText(element, "DeviceIp", param.getDeviceIp());
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setText(element, "UserName", param.getUserName());
    frame::setInt(element, "SelectMode", param.getSelectMode());
    frame::setInt(element, "MajorType", param.getMajorType());
    frame::setInt(element, "MinorType", param.getMinorType());
    frame::setUnsigned(element, "StartTime", param.getStartTime());
    frame::setUnsigned(element, "EndTime", param.getEndTime());
    return element;
}

bool LogRequestParamXml::readElement(const TiXmlElement& element, LogRequestParam& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", ""));
    param.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setUserName(frame::textOf(element, "UserName", ""));
    param.setSelectMode(frame::intOf(element, "SelectMode", 0));
    param.setMajorType(frame::intOf(element, "MajorType", 0));
    param.setMinorType(frame::intOf(element, "MinorType", 0));
    param.setStartTime(frame::unsignedLongOf(element, "StartTime", 0));
    param.setEndTime(frame::unsignedLongOf(element, "EndTime", 0));
    return true;
}
