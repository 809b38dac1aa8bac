// <SnapshotQueryCondition DeviceId="D1" DeviceIp="192.0.2.1" CameraId="2" BeginTime="1425283747045"
//                         EndTime="1425287347045" snapshottype="3" LockFile="true">
//     <QueryBeginTimeStruct TimeZone="0" ... />
//     <QueryEndTimeStruct TimeZone="0" ... />
//     <AlarmExTypeList>
//         <AlarmExType AlarmTypeName="Motion" MajorAlarmType="1" MinorAlarmType="2" />
//     </AlarmExTypeList>
// </SnapshotQueryCondition>

#include "snapshot/SnapshotQueryConditionXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "record/AlarmExTypeXml.h"

SnapshotQueryConditionXml::SnapshotQueryConditionXml() = default;

SnapshotQueryConditionXml::~SnapshotQueryConditionXml() = default;

void SnapshotQueryConditionXml::createXmlNode()
{
    writeElement(document_, condition_);
}

bool SnapshotQueryConditionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotQueryConditionXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotQueryCondition", document_, node_) && parseXmlNode();
}

bool SnapshotQueryConditionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, condition_);
}

TiXmlElement& SnapshotQueryConditionXml::writeElement(TiXmlNode& parent, const SnapshotQueryCondition& condition)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotQueryCondition");
    frame::setText(element, "DeviceId", condition.getDeviceId());
    frame::setText(element, "DeviceIp", condition.getDeviceIP());
    frame::setInt(element, "CameraId", condition.getCameraId());
    frame::setInt64(element, "BeginTime", condition.getQueryBeginTime());
    frame::setInt64(element, "EndTime", condition.getQueryEndTime());
    frame::setInt(element, "snapshottype", condition.getSnapshotType()); // the peers' spelling
    frame::setFlag(element, "LockFile", condition.getLockFlag());

    // For peers that look at the calendar; those that read milliseconds, as this one, need nothing of it.
    TimeStructXml::writeElement(element, "QueryBeginTimeStruct", condition.getStructQueryBeginTime());
    TimeStructXml::writeElement(element, "QueryEndTimeStruct", condition.getStructQueryEndTime());

    AlarmExTypeXml::writeList(element, condition.getAlarmExTypeList());
    return element;
}

bool SnapshotQueryConditionXml::readElement(const TiXmlElement& element, SnapshotQueryCondition& condition)
{
    condition.setDeviceId(frame::textOf(element, "DeviceId", condition.getDeviceId()));
    condition.setDeviceIP(frame::textOf(element, "DeviceIp", condition.getDeviceIP()));
    condition.setCameraId(frame::intOf(element, "CameraId", 0));
    condition.setQueryBeginTime(frame::wholeNumberOf(element, "BeginTime", condition.getQueryBeginTime()));
    condition.setQueryEndTime(frame::wholeNumberOf(element, "EndTime", condition.getQueryEndTime()));
    condition.setSnapshotType(frame::intOf(element, "snapshottype", condition.getSnapshotType()));
    condition.setLockFlag(frame::flagOf(element, "LockFile", condition.getLockFlag()));

    const TiXmlElement* types = element.FirstChildElement("AlarmExTypeList");
    if (types != nullptr) condition.setAlarmExTypeList(AlarmExTypeXml::readList(*types));
    return true;
}

bool SnapshotQueryConditionXml::Int642Str(const long long& value, std::string& text) const
{
    text = frame::integerText(value).characters;
    return true;
}

bool SnapshotQueryConditionXml::str2Int64(const std::string& text, long long& value) const
{
    value = frame::wholeNumberIn(text.c_str());
    return true;
}
