// <LogInfo DeviceId="D-17" DeviceIp="192.0.2.17" CameraId="3" UserName="operator" MajorType="4" MinorType="5"
//          LogTime="1425283200" LogData="Restarted" />

#include "security/LogInfoXml.h"

#include "core/Frame.h"

LogInfoXml::LogInfoXml() = default;

LogInfoXml::~LogInfoXml() = default;

void LogInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool LogInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LogInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "LogInfo", document_, node_) && parseXmlNode();
}

bool LogInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& LogInfoXml::writeElement(TiXmlNode& parent, const LogInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "LogInfo");
    frame::setText(element, "DeviceId", info.getDeviceId());
    frame::setText(element, "DeviceIp", info.getDeviceIp());
    frame::setInt(element, "CameraId", info.getCameraId());
    frame::setText(element, "UserName", info.getUserName());
    frame::setInt(element, "MajorType", info.getMajorType());
    frame::setInt(element, "MinorType", info.getMinorType());
    frame::setUnsigned(element, "LogTime", info.getLogTime());
    frame::setText(element, "LogData", info.getLogData());
    return element;
}

bool LogInfoXml::readElement(const TiXmlElement& element, LogInfo& info)
{
    info.setDeviceId(frame::textOf(element, "DeviceId", ""));
    info.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    info.setCameraId(frame::intOf(element, "CameraId", 0));
    info.setUserName(frame::textOf(element, "UserName", ""));
    info.setMajorType(frame::intOf(element, "MajorType", 0));
    info.setMinorType(frame::intOf(element, "MinorType", 0));
    info.setLogTime(frame::unsignedLongOf(element, "LogTime", 0));
    info.setLogData(frame::textOf(element, "LogData", ""));
    return true;
}
