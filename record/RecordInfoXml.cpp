// <RecordInfoList ExtendField="0">
//     <RecordInfo DeviceId="D1" DeviceIp="192.0.2.1" CameraId="2" BeginTime="2015-03-02 08:09:07"
//                 EndTime="2015-03-02 09:09:07" LockFile="true" AlarmFlag="false">
//         <BeginTimeStruct TimeZone="8" ... />
//         <EndTimeStruct TimeZone="8" ... />
//     </RecordInfo>
// </RecordInfoList>

#include "record/RecordInfoXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "record/RecordSteps.h"

#include <utility>

namespace
{

void writeInfo(TiXmlNode& list, const RecordInfo& info)
{
    TiXmlElement& element = frame::appendElement(list, "RecordInfo");
    frame::setText(element, "DeviceId", info.getDeviceId());
    frame::setText(element, "DeviceIp", info.getDeviceIP());
    frame::setInt(element, "CameraId", info.getCameraId());
    frame::setTime(element, "BeginTime", info.getRecordBeginTime());
    frame::setTime(element, "EndTime", info.getRecordEndTime());
    frame::setFlag(element, "LockFile", info.getLockFlag());
    frame::setFlag(element, "AlarmFlag", info.getAlarmFlag());
    TimeStructXml::writeElement(element, "BeginTimeStruct", info.getStructRecordBeginTime());
    TimeStructXml::writeElement(element, "EndTimeStruct", info.getStructRecordEndTime());
}

void readInfo(const TiXmlElement& element, RecordInfo& info)
{
    info.setDeviceId(frame::textOf(element, "DeviceId", info.getDeviceId()));
    info.setDeviceIP(frame::textOf(element, "DeviceIp", info.getDeviceIP()));
    info.setCameraId(frame::intOf(element, "CameraId", 0));
    info.setRecordBeginTime(frame::timeOf(element, "BeginTime", info.getRecordBeginTime()));
    info.setRecordEndTime(frame::timeOf(element, "EndTime", info.getRecordEndTime()));
    info.setLockFlag(frame::flagOf(element, "LockFile", info.getLockFlag()));
    info.setAlarmFlag(frame::flagOf(element, "AlarmFlag", info.getAlarmFlag()));

    TimeStruct begin;
    if (TimeStructXml().parseTimeStruct(&element, "BeginTimeStruct", begin)) info.setStructRecordBeginTime(begin);
    TimeStruct end;
    if (TimeStructXml().parseTimeStruct(&element, "EndTimeStruct", end)) info.setStructRecordEndTime(end);
}

} // namespace

RecordInfoXml::RecordInfoXml() = default;

RecordInfoXml::~RecordInfoXml() = default;

void RecordInfoXml::createXmlNode()
{
    writeElement(document_, infos_, extendField_);
}

bool RecordInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordInfoList", document_, node_) && parseXmlNode();
}

bool RecordInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, infos_, extendField_);
}

TiXmlElement& RecordInfoXml::writeElement(TiXmlNode& parent, const std::vector<RecordInfo>& infos, int extendField)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordInfoList");
    frame::setInt(element, "ExtendField", extendField);
    for (const RecordInfo& info : infos)
        writeInfo(element, info);
    return element;
}

bool RecordInfoXml::readElement(const TiXmlElement& element, std::vector<RecordInfo>& infos, int& extendField)
{
    extendField = frame::intOf(element, "ExtendField", extendField);

    const TiXmlElement* item = frame::firstItem(element, "RecordInfo");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RecordInfo info;
        readInfo(*item, info);
        infos.push_back(std::move(info));
    }
    return true;
}
