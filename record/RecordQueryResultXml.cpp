// <RecordQueryResultList>
//     <RecordQueryResult DeviceID="D1" DeviceIP="192.0.2.1" CameraID="2">
//         <RecordTimeSegmentList>
//             <RecordTimeSegment RecordBeginTime="2015-03-02 08:09:07" RecordEndTime="2015-03-02 09:09:07"
//                                RecordLock="true" RecordAlarm="false" RecordDataLen="3">
//                 <BeginTimeStruct TimeZone="8" ... />
//                 <EndTimeStruct TimeZone="8" ... />
//             </RecordTimeSegment>
//         </RecordTimeSegmentList>
//     </RecordQueryResult>
// </RecordQueryResultList>

#include "record/RecordQueryResultXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "record/RecordSteps.h"

#include <utility>

namespace
{

void writeSegment(TiXmlNode& list, const RecordTimeSegment& segment)
{
    TiXmlElement& element = frame::appendElement(list, "RecordTimeSegment");
    frame::setTime(element, "RecordBeginTime", segment.getRecordBeginTime());
    frame::setTime(element, "RecordEndTime", segment.getRecordEndTime());
    frame::setFlag(element, "RecordLock", segment.getRecordLockFlag());
    frame::setFlag(element, "RecordAlarm", segment.getRecordAlarmFlag());
    frame::setUnsigned(element, "RecordDataLen", segment.getRecordDataLength());
    TimeStructXml::writeElement(element, "BeginTimeStruct", segment.getStructRecordBeginTime());
    TimeStructXml::writeElement(element, "EndTimeStruct", segment.getStructRecordEndTime());
}

void readSegment(const TiXmlElement& element, RecordTimeSegment& segment)
{
    segment.setRecordBeginTime(frame::timeOf(element, "RecordBeginTime", segment.getRecordBeginTime()));
    segment.setRecordEndTime(frame::timeOf(element, "RecordEndTime", segment.getRecordEndTime()));
    segment.setRecordLockFlag(frame::flagOf(element, "RecordLock", segment.getRecordLockFlag()));
    segment.setRecordAlarmFlag(frame::flagOf(element, "RecordAlarm", segment.getRecordAlarmFlag()));
    segment.setRecordDataLength(frame::unsignedLongOf(element, "RecordDataLen", segment.getRecordDataLength()));

    TimeStruct begin;
    if (TimeStructXml().parseTimeStruct(&element, "BeginTimeStruct", begin)) segment.setStructRecordBeginTime(begin);
    TimeStruct end;
    if (TimeStructXml().parseTimeStruct(&element, "EndTimeStruct", end)) segment.setStructRecordEndTime(end);
}

void writeResult(TiXmlNode& list, const RecordQueryResult& result)
{
    TiXmlElement& element = frame::appendElement(list, "RecordQueryResult");
    // The peers spell the answer with "ID" and "IP", the question with "Id" and "Ip".
    frame::setText(element, "DeviceID", result.getDeviceID());
    frame::setText(element, "DeviceIP", result.getDeviceIP());
    frame::setInt(element, "CameraID", result.getCameraID());

    TiXmlElement& segments = frame::appendElement(element, "RecordTimeSegmentList");
    for (const RecordTimeSegment& segment : result.getRecordTimeSegment())
        writeSegment(segments, segment);
}

void readResult(const TiXmlElement& element, RecordQueryResult& result)
{
    result.setDeviceID(frame::textOf(element, "DeviceID", result.getDeviceID()));
    result.setDeviceIP(frame::textOf(element, "DeviceIP", result.getDeviceIP()));
    result.setCameraID(frame::intOf(element, "CameraID", 0));

    // Peers may spread a camera's stretches over several lists.
    const TiXmlElement* list = element.FirstChildElement("RecordTimeSegmentList");
    for (; list != nullptr; list = list->NextSiblingElement("RecordTimeSegmentList"))
    {
        const TiXmlElement* item = frame::firstItem(*list, "RecordTimeSegment");
        for (; item != nullptr; item = item->NextSiblingElement())
        {
            RecordTimeSegment segment;
            readSegment(*item, segment);
            result.addRecordTimeSegment(segment);
        }
    }
}

} // namespace

RecordQueryResultXml::RecordQueryResultXml() = default;

RecordQueryResultXml::~RecordQueryResultXml() = default;

void RecordQueryResultXml::createXmlNode()
{
    writeElement(document_, results_);
}

bool RecordQueryResultXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordQueryResultXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordQueryResultList", document_, node_) && parseXmlNode();
}

bool RecordQueryResultXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, results_);
}

TiXmlElement& RecordQueryResultXml::writeElement(TiXmlNode& parent, const std::vector<RecordQueryResult>& results)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordQueryResultList");
    for (const RecordQueryResult& result : results)
        writeResult(element, result);
    return element;
}

bool RecordQueryResultXml::readElement(const TiXmlElement& element, std::vector<RecordQueryResult>& results)
{
    const TiXmlElement* item = frame::firstItem(element, "RecordQueryResult");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RecordQueryResult result;
        readResult(*item, result);
        results.push_back(std::move(result));
    }
    return true;
}
