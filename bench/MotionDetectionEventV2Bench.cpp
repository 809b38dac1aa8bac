#include "alarm/MotionDetectionEventXmlV2.h"
#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "domain/Base64Codecs.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <utility>

namespace
{

MotionDetectionParamV2 makeParam()
{
    constexpr int width = 22;
    constexpr int height = 18;
    std::string map;
    for (int byte = 0; byte < (width * height + 7) / 8; ++byte)
        map.push_back(static_cast<char>(byte * 37));

    MotionDetectionParamV2 param;
    param.setCheckBlockNum(4);
    param.setSensitivity(60);
    param.getDetectionArea().setWidthCellNumber(width);
    param.getDetectionArea().setHighCellNumber(height);
    param.getDetectionArea().setData(map.data(), static_cast<int>(map.size()));
    return param;
}

ScheduleTimeParam makeSchedule(const std::string& deviceId)
{
    ScheduleTimeParam schedule;
    schedule.setDeviceId(deviceId);
    schedule.setCameraId(1);
    for (int day = 1; day <= 2; ++day)
    {
        ScheduleTime morning;
        morning.setStartTime(0);
        morning.setEndTime(25200);
        ScheduleTime evening;
        evening.setStartTime(64800);
        evening.setEndTime(86400);
        ScheduleWeek week;
        week.setWeekDay(day);
        week.setScheduleTimeList({morning, evening});
        schedule.getScheduleWeekList().push_back(week);
    }
    for (unsigned long holiday = 0; holiday < 2; ++holiday)
    {
        ScheduleTimeSegment segment;
        segment.setBeginTime(1425254400 + holiday * 604800);
        segment.setEndTime(1425340800 + holiday * 604800);
        schedule.getScheduleTimeSegmentList().push_back(segment);
    }
    return schedule;
}

void addActions(MotionDetectionEventV2& event, int number)
{
    constexpr int eventTypeId = 2;
    const std::string command = "goto preset " + std::to_string(number);

    AlarmOutAction out;
    out.setDeviceId(event.getDeviceId());
    out.setAlarmOutId(number);
    out.setAlarmOutFlag(1);
    out.setEventTypeId(eventTypeId);
    event.getAlarmOutAction().push_back(out);

    AlarmRecordAction record;
    record.setDeviceId(event.getDeviceId());
    record.setCameraId(number);
    record.setPreRecordTime(5);
    record.setRecordTime(30);
    record.setEventTypeId(eventTypeId);
    record.setEnableRecordAudio(true);
    event.getAlarmRecordAction().push_back(record);

    AlarmPTZAction ptz;
    ptz.setEventTypeId(eventTypeId);
    ptz.setDeviceId(event.getDeviceId());
    ptz.setCameraId(number);
    ptz.setComId(1);
    ptz.setPtzId(64 + number);
    ptz.setPtzOperationCmd(command.data(), static_cast<int>(command.size()));
    ptz.setReserve(1);
    event.getAlarmPTZAction().push_back(ptz);

    AlarmOverlayAction overlay;
    overlay.setEventTypeId(eventTypeId);
    overlay.setDeviceId(event.getDeviceId());
    overlay.setCameraId(number);
    overlay.getOSDInfo().setOSDType(3);
    overlay.getOSDInfo().setOSDEnableFlag(true);
    overlay.getOSDInfo().setTopX(16);
    overlay.getOSDInfo().setTopY(24 * number);
    overlay.getOSDInfo().setInfo("Motion at the gate");
    event.getAlarmOverlayAction().push_back(overlay);
}

/// Events of devices with one camera each: nodes give no other camera back.
std::vector<MotionDetectionEventV2> makeEvents(int count)
{
    std::vector<MotionDetectionEventV2> events;
    for (int id = 1; id <= count; ++id)
    {
        MotionDetectionEventV2 event;
        event.setEventId(id);
        event.setPolicyId(1000 + id);
        event.setDeviceId("3402000000132000" + std::to_string(100 + id));
        event.setCameraId(1);
        event.setMotionDetectionEnableFlag(true);
        event.setMotionDetectionParam(makeParam());
        event.setScheduleTimeParam(makeSchedule(event.getDeviceId()));
        addActions(event, 1);
        addActions(event, 2);
        events.push_back(event);
    }
    return events;
}

// Base64 is not what is compared: both ways leave it to the same functions.

void writeFloorParam(TiXmlElement& parent, const MotionDetectionParamV2& param)
{
    TiXmlElement& element = bare::appendElement(parent, "MotionDetectionParamV2");
    element.SetAttribute("CheckBlockNum", param.getCheckBlockNum());
    element.SetAttribute("Sensitivity", param.getSensitivity());

    const DetectionAreaV2& area = param.getDetectionArea();
    int room = (area.getDataLength() + 2) / 3 * 4 + 1;
    std::string data(static_cast<std::size_t>(room), '\0');
    Base64Codecs::base64Encode(area.getData(), area.getDataLength(), &data[0], room);

    TiXmlElement& child = bare::appendElement(element, "DetectionAreaV2");
    child.SetAttribute("WidthCellNumber", area.getWidthCellNumber());
    child.SetAttribute("HighCellNumber", area.getHighCellNumber());
    child.SetAttribute("Data", data.c_str());
    child.SetAttribute("DataLength", area.getDataLength());
}

void setFloorTime(TiXmlElement& element, const char* name, unsigned long value)
{
    char text[32];
    std::snprintf(text, sizeof(text), "%lu", value);
    element.SetAttribute(name, text);
}

void writeFloorSchedule(TiXmlElement& parent, const ScheduleTimeParam& schedule)
{
    TiXmlElement& element = bare::appendElement(parent, "ScheduleTimeParam");
    element.SetAttribute("DeviceId", schedule.getDeviceId().c_str());
    element.SetAttribute("CameraId", schedule.getCameraId());

    TiXmlElement& weeks = bare::appendElement(element, "ScheduleWeekList");
    for (const ScheduleWeek& week : schedule.getScheduleWeekList())
    {
        TiXmlElement& item = bare::appendElement(weeks, "ScheduleWeek");
        item.SetAttribute("WeekDay", week.getWeekDay());

        TiXmlElement& times = bare::appendElement(item, "ScheduleTimeList");
        for (const ScheduleTime& time : week.getScheduleTimeList())
        {
            TiXmlElement& child = bare::appendElement(times, "ScheduleTime");
            child.SetAttribute("StartTime", static_cast<int>(time.getStartTime()));
            child.SetAttribute("EndTime", static_cast<int>(time.getEndTime()));
        }
    }

    TiXmlElement& segments = bare::appendElement(element, "ScheduleTimeSegmentList");
    for (const ScheduleTimeSegment& segment : schedule.getScheduleTimeSegmentList())
    {
        TiXmlElement& item = bare::appendElement(segments, "ScheduleTimeSegment");
        setFloorTime(item, "BeginTime", segment.getBeginTime());
        setFloorTime(item, "EndTime", segment.getEndTime());
    }
}

void writeFloorActions(TiXmlElement& element, const MotionDetectionEventV2& event)
{
    TiXmlElement& outs = bare::appendElement(element, "AlarmOutActionList");
    for (const AlarmOutAction& action : event.getAlarmOutAction())
    {
        TiXmlElement& item = bare::appendElement(outs, "AlarmOutAction");
        item.SetAttribute("DeviceId", action.getDeviceId().c_str());
        item.SetAttribute("AlarmOutId", action.getAlarmOutId());
        item.SetAttribute("AlarmOutFlag", action.getAlarmOutFlag());
        item.SetAttribute("EventTypeId", action.getEventTypeId());
    }

    TiXmlElement& records = bare::appendElement(element, "AlarmRecordActionList");
    for (const AlarmRecordAction& action : event.getAlarmRecordAction())
    {
        TiXmlElement& item = bare::appendElement(records, "AlarmRecordAction");
        item.SetAttribute("DeviceId", action.getDeviceId().c_str());
        item.SetAttribute("CameraId", action.getCameraId());
        item.SetAttribute("PreRecordTime", action.getPreRecordTime());
        item.SetAttribute("RecordTime", action.getRecordTime());
        item.SetAttribute("EventTypeId", action.getEventTypeId());
        bare::setFlag(item, "IsEnableRecordAudio", action.getEnableRecordAudio());
    }

    TiXmlElement& ptzs = bare::appendElement(element, "AlarmPTZActionList");
    for (const AlarmPTZAction& action : event.getAlarmPTZAction())
    {
        TiXmlElement& item = bare::appendElement(ptzs, "AlarmPTZAction");
        item.SetAttribute("EventTypeId", action.getEventTypeId());
        item.SetAttribute("DeviceId", action.getDeviceId().c_str());
        item.SetAttribute("CameraId", action.getCameraId());
        item.SetAttribute("ComId", action.getComId());
        item.SetAttribute("PtzId", action.getPtzId());
        item.SetAttribute("PtzOperationCmd", action.getPtzOperationCmd().c_str());
        item.SetAttribute("PtzOperationCmdLen", action.getPtzOperationCmdLen());
        item.SetAttribute("Reserve", action.getReserve());
    }

    TiXmlElement& overlays = bare::appendElement(element, "AlarmOverlayActionList");
    for (const AlarmOverlayAction& action : event.getAlarmOverlayAction())
    {
        TiXmlElement& item = bare::appendElement(overlays, "AlarmOverlayAction");
        item.SetAttribute("EventTypeId", action.getEventTypeId());
        item.SetAttribute("DeviceId", action.getDeviceId().c_str());
        item.SetAttribute("CameraId", action.getCameraId());

        TiXmlElement& info = bare::appendElement(item, "OSDInfo");
        info.SetAttribute("Info", action.getOSDInfo().getInfo().c_str());
        bare::setFlag(info, "OSDEnableFlag", action.getOSDInfo().getOSDEnableFlag());
        info.SetAttribute("OSDType", action.getOSDInfo().getOSDType());
        info.SetAttribute("TopX", action.getOSDInfo().getTopX());
        info.SetAttribute("TopY", action.getOSDInfo().getTopY());
    }
}

void readFloorArea(const TiXmlElement& element, DetectionAreaV2& area)
{
    area.setWidthCellNumber(bare::intOf(element, "WidthCellNumber", 0));
    area.setHighCellNumber(bare::intOf(element, "HighCellNumber", 0));

    const char* text = bare::textOf(element, "Data");
    const int length = static_cast<int>(std::strlen(text));
    int decoded = length;
    std::string bytes(static_cast<std::size_t>(length), '\0');
    Base64Codecs::base64Decode(text, length, &bytes[0], decoded);
    area.setData(bytes.data(), std::min(bare::intOf(element, "DataLength", 0), decoded));
}

void readFloorParam(const TiXmlElement& element, MotionDetectionParamV2& param)
{
    param.setCheckBlockNum(bare::intOf(element, "CheckBlockNum", 0));
    param.setSensitivity(bare::intOf(element, "Sensitivity", 0));

    const TiXmlElement* area = element.FirstChildElement("DetectionAreaV2");
    if (area != nullptr) readFloorArea(*area, param.getDetectionArea());
}

/// The first item of any name.
const TiXmlElement* firstFloorItem(const TiXmlElement& parent, const char* container)
{
    const TiXmlElement* list = parent.FirstChildElement(container);
    return list != nullptr ? list->FirstChildElement() : nullptr;
}

unsigned long floorTimeOf(const TiXmlElement& element, const char* name)
{
    const char* text = element.Attribute(name);
    return text != nullptr ? std::strtoul(text, nullptr, 10) : 0;
}

void readFloorSchedule(const TiXmlElement& element, ScheduleTimeParam& schedule)
{
    schedule.setDeviceId(bare::textOf(element, "DeviceId"));
    schedule.setCameraId(bare::intOf(element, "CameraId", 0));

    const TiXmlElement* item = firstFloorItem(element, "ScheduleWeekList");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleWeek week;
        week.setWeekDay(bare::intOf(*item, "WeekDay", 0));

        const TiXmlElement* child = firstFloorItem(*item, "ScheduleTimeList");
        for (; child != nullptr; child = child->NextSiblingElement())
        {
            ScheduleTime time;
            time.setStartTime(bare::intOf(*child, "StartTime", 0));
            time.setEndTime(bare::intOf(*child, "EndTime", 0));
            week.getScheduleTimeList().push_back(time);
        }
        schedule.getScheduleWeekList().push_back(std::move(week));
    }

    item = firstFloorItem(element, "ScheduleTimeSegmentList");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTimeSegment segment;
        segment.setBeginTime(floorTimeOf(*item, "BeginTime"));
        segment.setEndTime(floorTimeOf(*item, "EndTime"));
        schedule.getScheduleTimeSegmentList().push_back(segment);
    }
}

void readFloorAction(const TiXmlElement& element, AlarmOutAction& action)
{
    action.setDeviceId(bare::textOf(element, "DeviceId"));
    action.setAlarmOutId(bare::intOf(element, "AlarmOutId", 0));
    action.setAlarmOutFlag(bare::intOf(element, "AlarmOutFlag", 0));
    action.setEventTypeId(bare::intOf(element, "EventTypeId", 0));
}

void readFloorAction(const TiXmlElement& element, AlarmRecordAction& action)
{
    action.setDeviceId(bare::textOf(element, "DeviceId"));
    action.setCameraId(bare::intOf(element, "CameraId", 0));
    action.setPreRecordTime(bare::intOf(element, "PreRecordTime", 0));
    action.setRecordTime(bare::intOf(element, "RecordTime", 0));
    action.setEventTypeId(bare::intOf(element, "EventTypeId", 0));
    action.setEnableRecordAudio(bare::flagOf(element, "IsEnableRecordAudio"));
}

void readFloorAction(const TiXmlElement& element, AlarmPTZAction& action)
{
    action.setEventTypeId(bare::intOf(element, "EventTypeId", 0));
    action.setDeviceId(bare::textOf(element, "DeviceId"));
    action.setCameraId(bare::intOf(element, "CameraId", 0));
    action.setComId(bare::intOf(element, "ComId", 0));
    action.setPtzId(bare::intOf(element, "PtzId", 0));

    const char* command = bare::textOf(element, "PtzOperationCmd");
    const int length = static_cast<int>(std::strlen(command));
    action.setPtzOperationCmd(command, std::min(bare::intOf(element, "PtzOperationCmdLen", 0), length));

    action.setReserve(bare::intOf(element, "Reserve", 0));
}

void readFloorAction(const TiXmlElement& element, AlarmOverlayAction& action)
{
    action.setEventTypeId(bare::intOf(element, "EventTypeId", 0));
    action.setDeviceId(bare::textOf(element, "DeviceId"));
    action.setCameraId(bare::intOf(element, "CameraId", 0));

    const TiXmlElement* child = element.FirstChildElement("OSDInfo");
    if (child == nullptr) return;
    action.getOSDInfo().setInfo(bare::textOf(*child, "Info"));
    action.getOSDInfo().setOSDEnableFlag(bare::flagOf(*child, "OSDEnableFlag"));
    action.getOSDInfo().setOSDType(bare::intOf(*child, "OSDType", 0));
    action.getOSDInfo().setTopX(bare::intOf(*child, "TopX", 0));
    action.getOSDInfo().setTopY(bare::intOf(*child, "TopY", 0));
}

/// Prints the line that tells how it went.
template <class Action>
void readFloorActions(const TiXmlElement& parent, const char* kind, const char* container, std::vector<Action>& actions)
{
    const TiXmlElement* list = parent.FirstChildElement(container);
    const TiXmlElement* item = list != nullptr ? list->FirstChildElement() : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        Action action;
        readFloorAction(*item, action);
        actions.push_back(std::move(action));
    }
    std::printf("MotionDetectionEventXmlV2::parseDomain%sActionListXmlNode boolRet = %d \n", kind,
                list != nullptr ? 1 : 0);
}

/// Prints what the library prints for an event that is whole.
void readFloorEvent(const TiXmlElement& element, MotionDetectionEventV2& event)
{
    event.setEventId(bare::intOf(element, "EventId", 0));
    event.setPolicyId(bare::intOf(element, "PolicyId", 0));
    event.setDeviceId(bare::textOf(element, "DeviceId"));
    if (element.Attribute("CameraId") != nullptr)
    {
        std::puts("MotionDetectionEventXmlV2::parseDomainXmlNode node = ATTR_CAMERA_ID failed ");
        event.setCameraId(1);
    }
    event.setMotionDetectionEnableFlag(bare::flagOf(element, "MotionDetectionEnableFlag"));

    const TiXmlElement* param = element.FirstChildElement("MotionDetectionParamV2");
    if (param != nullptr) readFloorParam(*param, event.getMotionDetectionParam());

    const TiXmlElement* schedule = element.FirstChildElement("ScheduleTimeParam");
    if (schedule != nullptr) readFloorSchedule(*schedule, event.getScheduleTimeParam());

    readFloorActions(element, "AlarmOut", "AlarmOutActionList", event.getAlarmOutAction());
    readFloorActions(element, "AlarmRecord", "AlarmRecordActionList", event.getAlarmRecordAction());
    readFloorActions(element, "AlarmPTZ", "AlarmPTZActionList", event.getAlarmPTZAction());
    readFloorActions(element, "AlarmOverlay", "AlarmOverlayActionList", event.getAlarmOverlayAction());
}

std::string writeFloor(const std::vector<MotionDetectionEventV2>& events)
{
    TiXmlDocument document;
    TiXmlElement& list = bare::appendElement(document, "MotionDetectionEventV2");
    for (const MotionDetectionEventV2& event : events)
    {
        TiXmlElement& element = bare::appendElement(list, "MotionDetectionEventV2");
        element.SetAttribute("MotionDetectionEventV2LEN", static_cast<int>(events.size()));
        element.SetAttribute("EventId", event.getEventId());
        element.SetAttribute("PolicyId", event.getPolicyId());
        element.SetAttribute("DeviceId", event.getDeviceId().c_str());
        element.SetAttribute("CameraId", event.getCameraId());
        bare::setFlag(element, "MotionDetectionEnableFlag", event.getMotionDetectionEnableFlag());
        writeFloorParam(element, event.getMotionDetectionParam());
        writeFloorSchedule(element, event.getScheduleTimeParam());
        writeFloorActions(element, event);
    }
    return bare::print(document);
}

bool readFloor(const std::string& text, std::vector<MotionDetectionEventV2>& events)
{
    TiXmlDocument document;
    const TiXmlElement* list = bare::parse(document, text, "MotionDetectionEventV2");
    if (list == nullptr) return false;

    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        MotionDetectionEventV2 event;
        readFloorEvent(*item, event);
        events.push_back(std::move(event));
    }
    return true;
}

std::string writeNode(const std::vector<MotionDetectionEventV2>& events)
{
    std::string text;
    MotionDetectionEventXmlV2().createXmlString(events, text);
    return text;
}

bool readNode(const std::string& text, std::vector<MotionDetectionEventV2>& events)
{
    return MotionDetectionEventXmlV2().parseXmlString(text, events);
}

} // namespace

void addMotionDetectionEventV2()
{
    const char* emptyText = "<MotionDetectionEventV2><MotionDetectionEventV2>"
                            "<MotionDetectionParamV2><DetectionAreaV2 /></MotionDetectionParamV2>"
                            "<ScheduleTimeParam>"
                            "<ScheduleWeekList><ScheduleWeek>"
                            "<ScheduleTimeList><ScheduleTime /></ScheduleTimeList>"
                            "</ScheduleWeek></ScheduleWeekList>"
                            "<ScheduleTimeSegmentList><ScheduleTimeSegment /></ScheduleTimeSegmentList>"
                            "</ScheduleTimeParam>"
                            "<AlarmOutActionList><AlarmOutAction /></AlarmOutActionList>"
                            "<AlarmRecordActionList><AlarmRecordAction /></AlarmRecordActionList>"
                            "<AlarmPTZActionList><AlarmPTZAction /></AlarmPTZActionList>"
                            "<AlarmOverlayActionList>"
                            "<AlarmOverlayAction><OSDInfo /></AlarmOverlayAction>"
                            "</AlarmOverlayActionList>"
                            "</MotionDetectionEventV2></MotionDetectionEventV2>";
    compare<std::vector<MotionDetectionEventV2>>("MotionDetectionEventV2.node", makeEvents(20), emptyText,
                                                 {writeFloor, readFloor}, {writeNode, readNode});
}
