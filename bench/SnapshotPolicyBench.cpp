#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "bench/ScheduleFloor.h"
#include "snapshot/SnapshotPolicyXml.h"

#include <cstdint>
#include <utility>

namespace
{

SnapshotParameter makeParameter(int shootTimes)
{
    SnapshotParameter parameter;
    parameter.setQuality(80);
    parameter.setDuration(30);
    parameter.setShootTimes(shootTimes);
    parameter.setInterval(5);
    parameter.getVideoResolution().setVideoHeight(1080);
    parameter.getVideoResolution().setVideoWidth(1920);
    parameter.getVideoResolution().setResolutionName("1080P (1920 x 1080)");
    return parameter;
}

std::vector<SnapshotPolicy> makePolicies(int count)
{
    std::vector<SnapshotPolicy> policies;
    for (int cameraId = 1; cameraId <= count; ++cameraId)
    {
        SnapshotPolicy policy;
        policy.setCameraId(cameraId);
        policy.setSaveDays(30);
        policy.setCycleWriteFlag(true);
        policy.setIsRedundancy(cameraId % 2 == 0);

        AlarmSnapshotPolicy& alarm = policy.getAlarmSnapshotPolicy();
        alarm.setAlarmSnapshotTime(5, 10);
        alarm.setAlarmSnapshotFileLockedState(true);
        alarm.setAlarmSnapshotOpenState(true);
        alarm.setSnapshotParameter(makeParameter(3));
        for (int alarmId = 1; alarmId <= 4; ++alarmId)
        {
            AlarmEvent event;
            event.setAlarmId(100 * cameraId + alarmId);
            event.setMajorAlarmType(2);
            event.setAlarmType(alarmId);
            alarm.getAlarmEventList().push_back(event);
        }

        ScheduleSnapshotPolicy& schedule = policy.getScheduleSnapshotPolicy();
        schedule.setScheduleSnapshotOpenState(true);
        schedule.setScheduleType(1);
        schedule.setSnapshotParameter(makeParameter(1));
        schedule.setScheduleTimeParam(makeSchedule(cameraId));

        UploadPolicy& upload = policy.getUploadPolicy();
        upload.setUploadEnableFlag(true);
        upload.setUploadServerIP("192.168.20." + std::to_string(cameraId));
        upload.setUploadServerPort(static_cast<std::uint16_t>(8000 + cameraId));
        upload.setIPProtoVer(1);
        policies.push_back(policy);
    }
    return policies;
}

void writeFloorParameter(TiXmlElement& parent, const SnapshotParameter& parameter)
{
    TiXmlElement& element = bare::appendElement(parent, "SnapshotParameter");
    element.SetAttribute("Quality", static_cast<int>(parameter.getQuality()));
    element.SetAttribute("duration", parameter.getDuration());
    element.SetAttribute("ShootTimes", parameter.getShootTimes());
    element.SetAttribute("interval", parameter.getInterval());

    const VideoResolution& resolution = parameter.getVideoResolution();
    TiXmlElement& resolutionElement = bare::appendElement(element, "VideoResolution");
    resolutionElement.SetAttribute("VideoHeight", resolution.getVideoHeight());
    resolutionElement.SetAttribute("VideoWidth", resolution.getVideoWidth());
    resolutionElement.SetAttribute("ResolutionName", resolution.getResolutionName().c_str());
}

void readFloorParameter(const TiXmlElement& parent, SnapshotParameter& parameter)
{
    const TiXmlElement* element = parent.FirstChildElement("SnapshotParameter");
    if (element == nullptr) return;

    parameter.setQuality(static_cast<std::uint32_t>(bare::intOf(*element, "Quality", 0)));
    parameter.setDuration(bare::intOf(*element, "duration", 0));
    parameter.setShootTimes(bare::intOf(*element, "ShootTimes", 0));
    parameter.setInterval(bare::intOf(*element, "interval", 0));

    const TiXmlElement* resolutionElement = element->FirstChildElement("VideoResolution");
    if (resolutionElement != nullptr)
    {
        VideoResolution& resolution = parameter.getVideoResolution();
        resolution.setVideoHeight(bare::intOf(*resolutionElement, "VideoHeight", 0));
        resolution.setVideoWidth(bare::intOf(*resolutionElement, "VideoWidth", 0));
        resolution.setResolutionName(bare::textOf(*resolutionElement, "ResolutionName"));
    }
}

void writeFloorAlarm(TiXmlElement& parent, const AlarmSnapshotPolicy& policy)
{
    TiXmlElement& element = bare::appendElement(parent, "AlarmSnapshotPolicy");
    element.SetAttribute("PreSnapshotTime", policy.getAlarmPreSnapshotTime());
    element.SetAttribute("DelaySnapshotTime", policy.getAlarmDelaySnapshotTime());
    bare::setFlag(element, "FileLockFlag", policy.isAlarmSnapshotFileLocked());
    bare::setFlag(element, "OpenFlag", policy.isAlarmSnapshotOpened());
    writeFloorParameter(element, policy.getSnapshotParameter());

    TiXmlElement& events = bare::appendElement(element, "AlarmEventList");
    for (const AlarmEvent& event : policy.getAlarmEventList())
    {
        TiXmlElement& item = bare::appendElement(events, "AlarmEvent");
        item.SetAttribute("AlarmType", event.getAlarmType());
        item.SetAttribute("MajorAlarmType", event.getMajorAlarmType());
        item.SetAttribute("AlarmId", event.getAlarmId());
    }
}

void readFloorAlarm(const TiXmlElement& element, AlarmSnapshotPolicy& policy)
{
    policy.setAlarmSnapshotTime(bare::intOf(element, "PreSnapshotTime", 0),
                                bare::intOf(element, "DelaySnapshotTime", 0));
    policy.setAlarmSnapshotFileLockedState(bare::flagOf(element, "FileLockFlag"));
    policy.setAlarmSnapshotOpenState(bare::flagOf(element, "OpenFlag"));
    readFloorParameter(element, policy.getSnapshotParameter());

    const TiXmlElement* events = element.FirstChildElement("AlarmEventList");
    const TiXmlElement* item = events != nullptr ? events->FirstChildElement("AlarmEvent") : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmEvent event;
        event.setAlarmType(bare::intOf(*item, "AlarmType", 0));
        event.setMajorAlarmType(bare::intOf(*item, "MajorAlarmType", 0));
        event.setAlarmId(bare::intOf(*item, "AlarmId", 0));
        policy.getAlarmEventList().push_back(event);
    }
}

void writeFloorSchedule(TiXmlElement& parent, const ScheduleSnapshotPolicy& policy)
{
    TiXmlElement& element = bare::appendElement(parent, "ScheduleSnapshotPolicy");
    bare::setFlag(element, "OpenFlag", policy.isScheduleSnapshotOpened());
    element.SetAttribute("ScheduleSnapshotType", policy.getScheduleType());
    writeFloorParameter(element, policy.getSnapshotParameter());
    bare::writeSchedule(element, "ScheduleRecordTimeParam", policy.getScheduleTimeParam());
}

void readFloorSchedule(const TiXmlElement& element, ScheduleSnapshotPolicy& policy)
{
    policy.setScheduleSnapshotOpenState(bare::flagOf(element, "OpenFlag"));
    policy.setScheduleType(bare::intOf(element, "ScheduleSnapshotType", 0));
    readFloorParameter(element, policy.getSnapshotParameter());

    const TiXmlElement* schedule = element.FirstChildElement("ScheduleRecordTimeParam");
    if (schedule != nullptr) bare::readSchedule(*schedule, policy.getScheduleTimeParam());
}

void writeFloorPolicy(TiXmlElement& list, const SnapshotPolicy& policy)
{
    TiXmlElement& element = bare::appendElement(list, "SnapshotPolicy");
    element.SetAttribute("CameraId", policy.getCameraId());
    element.SetAttribute("SaveDays", policy.getSaveDays());
    bare::setFlag(element, "CycleWriteFlag", policy.getCycleWriteFlag());
    bare::setFlag(element, "IsRedundancy", policy.getIsRedundancy());
    writeFloorAlarm(element, policy.getAlarmSnapshotPolicy());
    writeFloorSchedule(element, policy.getScheduleSnapshotPolicy());

    const UploadPolicy& upload = policy.getUploadPolicy();
    TiXmlElement& uploadElement = bare::appendElement(element, "UploadPolicy");
    bare::setFlag(uploadElement, "UploadEnableFlag", upload.getUploadEnableFlag());
    uploadElement.SetAttribute("UploadServerIP", upload.getUploadServerIP().c_str());
    uploadElement.SetAttribute("UploadServerPort", upload.getUploadServerPort());
    uploadElement.SetAttribute("IPProtoVer", upload.getIPProtoVer());
}

void readFloorPolicy(const TiXmlElement& element, SnapshotPolicy& policy)
{
    policy.setCameraId(bare::intOf(element, "CameraId", 0));
    policy.setSaveDays(bare::intOf(element, "SaveDays", 0));
    policy.setCycleWriteFlag(bare::flagOf(element, "CycleWriteFlag"));
    policy.setIsRedundancy(bare::flagOf(element, "IsRedundancy"));

    const TiXmlElement* alarm = element.FirstChildElement("AlarmSnapshotPolicy");
    if (alarm != nullptr) readFloorAlarm(*alarm, policy.getAlarmSnapshotPolicy());

    const TiXmlElement* schedule = element.FirstChildElement("ScheduleSnapshotPolicy");
    if (schedule != nullptr) readFloorSchedule(*schedule, policy.getScheduleSnapshotPolicy());

    const TiXmlElement* uploadElement = element.FirstChildElement("UploadPolicy");
    if (uploadElement != nullptr)
    {
        UploadPolicy& upload = policy.getUploadPolicy();
        upload.setUploadEnableFlag(bare::flagOf(*uploadElement, "UploadEnableFlag"));
        upload.setUploadServerIP(bare::textOf(*uploadElement, "UploadServerIP"));
        upload.setUploadServerPort(static_cast<std::uint16_t>(bare::intOf(*uploadElement, "UploadServerPort", 0)));
        upload.setIPProtoVer(bare::intOf(*uploadElement, "IPProtoVer", 0));
    }
}

std::string writeFloor(const std::vector<SnapshotPolicy>& policies)
{
    TiXmlDocument document;
    TiXmlElement& list = bare::appendElement(document, "SnapshotPolicyList");
    for (const SnapshotPolicy& policy : policies)
        writeFloorPolicy(list, policy);
    return bare::print(document);
}

bool readFloor(const std::string& text, std::vector<SnapshotPolicy>& policies)
{
    TiXmlDocument document;
    const TiXmlElement* list = bare::parse(document, text, "SnapshotPolicyList");
    if (list == nullptr) return false;

    const TiXmlElement* item = list->FirstChildElement("SnapshotPolicy");
    for (; item != nullptr; item = item->NextSiblingElement("SnapshotPolicy"))
    {
        SnapshotPolicy policy;
        readFloorPolicy(*item, policy);
        policies.push_back(std::move(policy));
    }
    return true;
}

std::string writeDocument(const std::vector<SnapshotPolicy>& policies)
{
    SnapshotPolicyXml codec;
    codec.setSnapshotPolicyList(policies);
    codec.createXmlString();
    return std::move(codec.getXmlString());
}

bool readDocument(const std::string& text, std::vector<SnapshotPolicy>& policies)
{
    SnapshotPolicyXml codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;
    policies = std::move(codec.getSnapshotPolicyList());
    return true;
}

} // namespace

void addSnapshotPolicy()
{
    const char* emptyText = "<SnapshotPolicyList><SnapshotPolicy>"
                            "<AlarmSnapshotPolicy>"
                            "<SnapshotParameter><VideoResolution /></SnapshotParameter>"
                            "<AlarmEventList><AlarmEvent /></AlarmEventList>"
                            "</AlarmSnapshotPolicy>"
                            "<ScheduleSnapshotPolicy>"
                            "<SnapshotParameter><VideoResolution /></SnapshotParameter>"
                            "<ScheduleRecordTimeParam>"
                            "<ScheduleWeekList><ScheduleWeek>"
                            "<ScheduleTimeList><ScheduleTime /></ScheduleTimeList>"
                            "</ScheduleWeek></ScheduleWeekList>"
                            "<ScheduleTimeSegmentList><ScheduleTimeSegment /></ScheduleTimeSegmentList>"
                            "</ScheduleRecordTimeParam>"
                            "</ScheduleSnapshotPolicy>"
                            "<UploadPolicy />"
                            "</SnapshotPolicy></SnapshotPolicyList>";
    compare<std::vector<SnapshotPolicy>>("SnapshotPolicy.document", makePolicies(20), emptyText,
                                         {writeFloor, readFloor}, {writeDocument, readDocument});
}
