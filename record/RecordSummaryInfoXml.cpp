// <RecordSummaryInfo DeviceId="D1" DeviceIp="192.0.2.1" CameraId="2" RecordBeginTime="1425283747"
//                    RecordEndTime="1425287347">
//     <StructRecordBeginTime TimeZone="8" ... />
//     <StructRecordEndTime TimeZone="8" ... />
// </RecordSummaryInfo>

#include "record/RecordSummaryInfoXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"

RecordSummaryInfoXml::RecordSummaryInfoXml() = default;

RecordSummaryInfoXml::~RecordSummaryInfoXml() = default;

bool RecordSummaryInfoXml::createXmlString(const RecordSummaryInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RecordSummaryInfo");
    node->setProperty("DeviceId", info.getDeviceId());
    node->setProperty("DeviceIp", info.getDeviceIP());
    node->setProperty("CameraId", info.getCameraId());
    node->setProperty("RecordBeginTime", static_cast<unsigned long long>(info.getRecordBeginTime()));
    node->setProperty("RecordEndTime", static_cast<unsigned long long>(info.getRecordEndTime()));

    TimeStructXml().createTimeStruct(info.getRecordBeginTimeStruct(), "StructRecordBeginTime", node);
    TimeStructXml().createTimeStruct(info.getRecordEndTimeStruct(), "StructRecordEndTime", node);
    return DomainXmlNode::toString(node, text);
}

bool RecordSummaryInfoXml::parseXmlString(const std::string& text, RecordSummaryInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "RecordSummaryInfo", node)) return false;

    info.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    info.setDeviceIP(frame::textProperty(node, "DeviceIp", ""));
    info.setCameraId(frame::intProperty(node, "CameraId", 0));
    info.setRecordBeginTime(static_cast<unsigned long>(frame::unsignedProperty(node, "RecordBeginTime", 0)));
    info.setRecordEndTime(static_cast<unsigned long>(frame::unsignedProperty(node, "RecordEndTime", 0)));

    TimeStruct begin;
    TimeStructXml().parseTimeStruct(node, "StructRecordBeginTime", begin);
    info.setRecordBeginTimeStruct(begin);

    TimeStruct end;
    TimeStructXml().parseTimeStruct(node, "StructRecordEndTime", end);
    info.setRecordEndTimeStruct(end);
    return true;
}
