// <RecordFile Id="1" DeviceId="D1" DeviceName="Gate" CameraId="2" CameraName="North" DeviceIp="192.0.2.1"
//             RecordFileName="1.rec" RecordTime="1425283747" RecordType="3" AlarmId="4" AlarmType="5"
//             FileByteLength="1048576" FileTimeLength="60" />

#include "record/RecordFileXml.h"

#include "core/Frame.h"

RecordFileXml::RecordFileXml() = default;

RecordFileXml::~RecordFileXml() = default;

void RecordFileXml::createXmlNode()
{
    writeElement(document_, file_);
}

bool RecordFileXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordFileXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordFile", document_, node_) && parseXmlNode();
}

bool RecordFileXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, file_);
}

TiXmlElement& RecordFileXml::writeElement(TiXmlNode& parent, const RecordFile& file)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordFile");
    frame::setInt(element, "Id", file.getId());
    frame::setText(element, "DeviceId", file.getDeviceId());
    frame::setText(element, "DeviceName", file.getDeviceName());
    frame::setInt(element, "CameraId", file.getCameraId());
    frame::setText(element, "CameraName", file.getCameraName());
    frame::setText(element, "DeviceIp", file.getDeviceIp());
    frame::setText(element, "RecordFileName", file.getRecordFileName());
    frame::setInt64(element, "RecordTime", file.getRecordTime());
    frame::setInt(element, "RecordType", file.getRecordType());
    frame::setInt(element, "AlarmId", file.getAlarmId());
    frame::setInt(element, "AlarmType", file.getAlarmType());
    // The peers put the size into a signed number of 32 bits; beside it they make the full text, and drop that.
    frame::setInt(element, "FileByteLength", static_cast<int>(file.getFileByteLength()));
    frame::setInt(element, "FileTimeLength", file.getFileTimeLength());
    return element;
}

bool RecordFileXml::readElement(const TiXmlElement& element, RecordFile& file)
{
    file.setId(frame::intOf(element, "Id", 0));
    file.setDeviceId(frame::textOf(element, "DeviceId", ""));
    file.setDeviceName(frame::textOf(element, "DeviceName", ""));
    file.setCameraId(frame::intOf(element, "CameraId", 0));
    file.setCameraName(frame::textOf(element, "CameraName", ""));
    file.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    file.setRecordFileName(frame::textOf(element, "RecordFileName", ""));
    file.setRecordTime(frame::longOf(element, "RecordTime", 0));
    file.setRecordType(frame::intOf(element, "RecordType", 0));
    file.setAlarmId(frame::intOf(element, "AlarmId", 0));
    file.setAlarmType(frame::intOf(element, "AlarmType", 0));
    file.setFileByteLength(frame::longOf(element, "FileByteLength", 0));
    file.setFileTimeLength(frame::intOf(element, "FileTimeLength", 0));
    return true;
}
