// <RecordLogInfo Id="1" DeviceId="D1" DeviceName="Gate" DeviceType="2" CameraId="3" CameraName="North"
//                DeviceIp="192.0.2.1" LogTime="1425283747" LogType="4" LogInformation="started" />
//
// The peers write the time unsigned and read it signed: one above the highest signed number comes back as that number.

#include "record/RecordLogInfoXml.h"

#include "core/Frame.h"

RecordLogInfoXml::RecordLogInfoXml() = default;

RecordLogInfoXml::~RecordLogInfoXml() = default;

void RecordLogInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool RecordLogInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordLogInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordLogInfo", document_, node_) && parseXmlNode();
}

bool RecordLogInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& RecordLogInfoXml::writeElement(TiXmlNode& parent, const RecordLogInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordLogInfo");
    frame::setInt(element, "Id", info.getId());
    frame::setText(element, "DeviceId", info.getDeviceId());
    frame::setText(element, "DeviceName", info.getDeviceName());
    frame::setInt(element, "DeviceType", info.getDeviceType());
    frame::setInt(element, "CameraId", info.getCameraId());
    frame::setText(element, "CameraName", info.getCameraName());
    frame::setText(element, "DeviceIp", info.getDeviceIp());
    frame::setUnsigned(element, "LogTime", info.getLogTime());
    frame::setInt(element, "LogType", info.getLogType());
    frame::setText(element, "LogInformation", info.getLogInformation());
    return element;
}

bool RecordLogInfoXml::readElement(const TiXmlElement& element, RecordLogInfo& info)
{
    info.setId(frame::intOf(element, "Id", 0));
    info.setDeviceId(frame::textOf(element, "DeviceId", ""));
    info.setDeviceName(frame::textOf(element, "DeviceName", ""));
    info.setDeviceType(frame::intOf(element, "DeviceType", 0));
    info.setCameraId(frame::intOf(element, "CameraId", 0));
    info.setCameraName(frame::textOf(element, "CameraName", ""));
    info.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    info.setLogTime(static_cast<unsigned long>(frame::longOf(element, "LogTime", 0)));
    info.setLogType(frame::intOf(element, "LogType", 0));
    info.setLogInformation(frame::textOf(element, "LogInformation", ""));
    return true;
}
