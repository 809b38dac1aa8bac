// <RecordQueryCondition DeviceId="D1" DeviceIp="192.0.2.1" CameraId="2" BeginTime="2015-03-02 08:09:07"
//                       EndTime="2015-03-02 09:09:07" SegmentInterval="3" TimePrecision="4" LockFile="true"
//                       AlarmFlag="false">
//     <StructRecordBeginTime TimeZone="0" ... />
//     <StructRecordEndTime TimeZone="0" ... />
//     <AlarmExTypeList>
//         <AlarmExType AlarmTypeName="Motion" MajorAlarmType="1" MinorAlarmType="2" />
//     </AlarmExTypeList>
// </RecordQueryCondition>

#include "record/RecordQueryConditionXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "record/AlarmExTypeXml.h"
#include "record/RecordSteps.h"

RecordQueryConditionXml::RecordQueryConditionXml() = default;

RecordQueryConditionXml::~RecordQueryConditionXml() = default;

void RecordQueryConditionXml::createXmlNode()
{
    writeElement(document_, condition_);
}

bool RecordQueryConditionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordQueryConditionXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordQueryCondition", document_, node_) && parseXmlNode();
}

bool RecordQueryConditionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, condition_);
}

TiXmlElement& RecordQueryConditionXml::writeElement(TiXmlNode& parent, const RecordQueryCondition& condition)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordQueryCondition");
    frame::setText(element, "DeviceId", condition.getDeviceId());
    frame::setText(element, "DeviceIp", condition.getDeviceIP());
    frame::setInt(element, "CameraId", condition.getCameraId());
    frame::setTime(element, "BeginTime", condition.getRecordBeginTime());
    frame::setTime(element, "EndTime", condition.getRecordEndTime());
    frame::setUnsigned(element, "SegmentInterval", condition.getRecordSegmentInterval());
    frame::setInt(element, "TimePrecision", condition.getRecordQueryTimePrecision());
    frame::setFlag(element, "LockFile", condition.getLockFlag());
    frame::setFlag(element, "AlarmFlag", condition.getAlarmFlag());

    // For peers that look at the calendar; those that read seconds, as this one, need nothing of it.
    TimeStructXml::writeElement(element, "StructRecordBeginTime", condition.getStructRecordBeginTime());
    TimeStructXml::writeElement(element, "StructRecordEndTime", condition.getStructRecordEndTime());

    AlarmExTypeXml::writeList(element, condition.getAlarmExTypeList());
    return element;
}

bool RecordQueryConditionXml::readElement(const TiXmlElement& element, RecordQueryCondition& condition)
{
    condition.setDeviceId(frame::textOf(element, "DeviceId", condition.getDeviceId()));
    condition.setDeviceIP(frame::textOf(element, "DeviceIp", condition.getDeviceIP()));
    condition.setCameraId(frame::intOf(element, "CameraId", 0));
    condition.setRecordBeginTime(frame::timeOf(element, "BeginTime", condition.getRecordBeginTime()));
    condition.setRecordEndTime(frame::timeOf(element, "EndTime", condition.getRecordEndTime()));
    condition.setRecordSegmentInterval(
        frame::unsignedLongOf(element, "SegmentInterval", condition.getRecordSegmentInterval()));
    condition.setRecordQueryTimePrecision(
        frame::intOf(element, "TimePrecision", condition.getRecordQueryTimePrecision()));
    condition.setLockFlag(frame::flagOf(element, "LockFile", condition.getLockFlag()));
    condition.setAlarmFlag(frame::flagOf(element, "AlarmFlag", condition.getAlarmFlag()));

    const TiXmlElement* types = element.FirstChildElement("AlarmExTypeList");
    if (types != nullptr) condition.setAlarmExTypeList(AlarmExTypeXml::readList(*types));
    return true;
}
