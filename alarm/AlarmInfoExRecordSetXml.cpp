// <AlarmInfoExRecordSetList SendEndFlag="true">
//     <AlarmInfoExRecordSet DeviceId="D1" DeviceIp="192.0.2.1" DeviceType="2" MajorAlarmType="1" MinorAlarmType="3"
//                           AlarmSourceId="S1" AlarmSourceName="Door" AlarmBeginTime="1425254400"
//                           AlarmEndTime="1425254410" Description="Door open">
//         <AlarmBeginTimeStruct ... />
//         <AlarmEndTimeStruct ... />
//     </AlarmInfoExRecordSet>
// </AlarmInfoExRecordSetList>

#include "alarm/AlarmInfoExRecordSetXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"

#include <utility>

AlarmInfoExRecordSetXml::AlarmInfoExRecordSetXml() = default;

AlarmInfoExRecordSetXml::~AlarmInfoExRecordSetXml() = default;

void AlarmInfoExRecordSetXml::createXmlNode()
{
    writeElement(document_, records_, endFlag_);
}

bool AlarmInfoExRecordSetXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInfoExRecordSetXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInfoExRecordSetList", document_, node_) && parseXmlNode();
}

bool AlarmInfoExRecordSetXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, records_, endFlag_);
}

TiXmlElement& AlarmInfoExRecordSetXml::writeElement(TiXmlNode& parent, const std::vector<AlarmInfoExRecordSet>& records,
                                                    bool endFlag)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInfoExRecordSetList");
    frame::setFlag(element, "SendEndFlag", endFlag);

    for (const AlarmInfoExRecordSet& record : records)
    {
        TiXmlElement& item = frame::appendElement(element, "AlarmInfoExRecordSet");
        frame::setText(item, "DeviceId", record.getDeviceId());
        frame::setText(item, "DeviceIp", record.getDeviceIP());
        frame::setInt(item, "DeviceType", record.getDeviceType());
        frame::setInt(item, "MajorAlarmType", record.getMajorType());
        frame::setInt(item, "MinorAlarmType", record.getMinorType());
        frame::setText(item, "AlarmSourceId", record.getSourceId());
        frame::setText(item, "AlarmSourceName", record.getSourceName());
        frame::setUnsigned(item, "AlarmBeginTime", record.getAlarmBeginTime());
        frame::setUnsigned(item, "AlarmEndTime", record.getAlarmEndTime());
        frame::setText(item, "Description", record.getDescription());

        TimeStructXml::writeElement(item, "AlarmBeginTimeStruct", record.getStructAlarmBeginTime());
        TimeStructXml::writeElement(item, "AlarmEndTimeStruct", record.getStructAlarmEndTime());
    }
    return element;
}

bool AlarmInfoExRecordSetXml::readElement(const TiXmlElement& element, std::vector<AlarmInfoExRecordSet>& records,
                                          bool& endFlag)
{
    endFlag = frame::flagOf(element, "SendEndFlag", false);

    const TiXmlElement* item = frame::firstItem(element, "AlarmInfoExRecordSet");
    for (; item != nullptr; item = item->NextSiblingElement("AlarmInfoExRecordSet"))
    {
        AlarmInfoExRecordSet record;
        record.setDeviceId(frame::textOf(*item, "DeviceId", ""));
        record.setDeviceIP(frame::textOf(*item, "DeviceIp", ""));
        record.setDeviceType(frame::intOf(*item, "DeviceType", 0));
        record.setMajorType(frame::intOf(*item, "MajorAlarmType", 0));
        record.setMinorType(frame::intOf(*item, "MinorAlarmType", 0));
        record.setSourceId(frame::textOf(*item, "AlarmSourceId", ""));
        record.setSourceName(frame::textOf(*item, "AlarmSourceName", ""));
        record.setAlarmBeginTime(frame::unsignedLongOf(*item, "AlarmBeginTime", 0));
        record.setAlarmEndTime(frame::unsignedLongOf(*item, "AlarmEndTime", 0));
        record.setDescription(frame::textOf(*item, "Description", ""));

        TimeStruct beginTime;
        if (TimeStructXml().parseTimeStruct(item, "AlarmBeginTimeStruct", beginTime))
            record.setStructAlarmBeginTime(beginTime);

        TimeStruct endTime;
        if (TimeStructXml().parseTimeStruct(item, "AlarmEndTimeStruct", endTime)) record.setStructAlarmEndTime(endTime);
        records.push_back(std::move(record));
    }
    return true;
}
