// <RecordFileSearchParam DeviceId="D1" DeviceName="Gate" CameraId="2" CameraName="North" DeviceIp="192.0.2.1"
//                        RecordFileName="1.rec" StartTime="1425283747" EndTime="1425287347" RecordType="3" AlarmId="4"
//                        AlarmType="5" />
//
// The peers write the times unsigned and read them signed: one above the highest signed number comes back as that
// number.

#include "record/RecordFileSearchParamXml.h"

#include "core/Frame.h"

RecordFileSearchParamXml::RecordFileSearchParamXml() = default;

RecordFileSearchParamXml::~RecordFileSearchParamXml() = default;

void RecordFileSearchParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool RecordFileSearchParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordFileSearchParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordFileSearchParam", document_, node_) && parseXmlNode();
}

bool RecordFileSearchParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& RecordFileSearchParamXml::writeElement(TiXmlNode& parent, const RecordFileSearchParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordFileSearchParam");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setText(element, "DeviceName", param.getDeviceName());
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setText(element, "CameraName", param.getCameraName());
    frame::setText(element, "DeviceIp", param.getDeviceIp());
    frame::setText(element, "RecordFileName", param.getRecordFileName());
    frame::setUnsigned(element, "StartTime", param.getStartTime());
    frame::setUnsigned(element, "EndTime", param.getEndTime());
    frame::setInt(element, "RecordType", param.getRecordType());
    frame::setInt(element, "AlarmId", param.getAlarmId());
    frame::setInt(element, "AlarmType", param.getAlarmType());
    return element;
}

bool RecordFileSearchParamXml::readElement(const TiXmlElement& element, RecordFileSearchParam& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", ""));
    param.setDeviceName(frame::textOf(element, "DeviceName", ""));
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setCameraName(frame::textOf(element, "CameraName", ""));
    param.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    param.setRecordFileName(frame::textOf(element, "RecordFileName", ""));
    param.setStartTime(static_cast<unsigned long>(frame::longOf(element, "StartTime", 0)));
    param.setEndTime(static_cast<unsigned long>(frame::longOf(element, "EndTime", 0)));
    param.setRecordType(frame::intOf(element, "RecordType", 0));
    param.setAlarmId(frame::intOf(element, "AlarmId", 0));
    param.setAlarmType(frame::intOf(element, "AlarmType", 0));
    return true;
}
