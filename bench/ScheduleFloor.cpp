#include "bench/ScheduleFloor.h"

#include "bench/Floor.h"

#include <string>
#include <utility>

namespace
{

ScheduleTime makeTime(long startTime, long endTime)
{
    ScheduleTime time;
    time.setStartTime(startTime);
    time.setEndTime(endTime);
    return time;
}

ScheduleTimeSegment makeSegment(unsigned long beginTime)
{
    ScheduleTimeSegment segment;
    segment.setBeginTime(beginTime);
    segment.setEndTime(beginTime + 86400);
    return segment;
}

void readWeek(const TiXmlElement& element, ScheduleWeek& week)
{
    week.setWeekDay(bare::intOf(element, "WeekDay", 0));

    const TiXmlElement* times = element.FirstChildElement("ScheduleTimeList");
    const TiXmlElement* item = times != nullptr ? times->FirstChildElement() : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTime time;
        time.setStartTime(bare::longOf(*item, "StartTime", 0));
        time.setEndTime(bare::longOf(*item, "EndTime", 0));
        week.getScheduleTimeList().push_back(time);
    }
}

} // namespace

ScheduleTimeParam makeSchedule(int cameraId)
{
    ScheduleTimeParam schedule;
    schedule.setDeviceId("34020000001320000" + std::to_string(100 + cameraId));
    schedule.setCameraId(cameraId);
    for (int day = 1; day <= 7; ++day)
    {
        ScheduleWeek week;
        week.setWeekDay(day);
        week.getScheduleTimeList().push_back(makeTime(21600 + 60 * day, 43200));
        if (day <= 5) week.getScheduleTimeList().push_back(makeTime(46800, 79200 + 60 * day));
        schedule.getScheduleWeekList().push_back(week);
    }
    const unsigned long begin = 1425254400 + 3600 * static_cast<unsigned long>(cameraId);
    schedule.getScheduleTimeSegmentList().push_back(makeSegment(begin));
    schedule.getScheduleTimeSegmentList().push_back(makeSegment(begin + 604800));
    return schedule;
}

namespace bare
{

void writeSchedule(TiXmlElement& parent, const char* name, const ScheduleTimeParam& schedule)
{
    TiXmlElement& element = appendElement(parent, name);
    element.SetAttribute("DeviceId", schedule.getDeviceId().c_str());
    element.SetAttribute("CameraId", schedule.getCameraId());

    TiXmlElement& weeks = appendElement(element, "ScheduleWeekList");
    for (const ScheduleWeek& week : schedule.getScheduleWeekList())
    {
        TiXmlElement& weekElement = appendElement(weeks, "ScheduleWeek");
        weekElement.SetAttribute("WeekDay", week.getWeekDay());

        TiXmlElement& times = appendElement(weekElement, "ScheduleTimeList");
        for (const ScheduleTime& time : week.getScheduleTimeList())
        {
            TiXmlElement& item = appendElement(times, "ScheduleTime");
            setNumber(item, "StartTime", time.getStartTime());
            setNumber(item, "EndTime", time.getEndTime());
        }
    }

    TiXmlElement& segments = appendElement(element, "ScheduleTimeSegmentList");
    for (const ScheduleTimeSegment& segment : schedule.getScheduleTimeSegmentList())
    {
        TiXmlElement& item = appendElement(segments, "ScheduleTimeSegment");
        setNumber(item, "BeginTime", segment.getBeginTime());
        setNumber(item, "EndTime", segment.getEndTime());
    }
}

void readSchedule(const TiXmlElement& element, ScheduleTimeParam& schedule)
{
    schedule.setDeviceId(textOf(element, "DeviceId"));
    schedule.setCameraId(intOf(element, "CameraId", 0));

    const TiXmlElement* weeks = element.FirstChildElement("ScheduleWeekList");
    const TiXmlElement* item = weeks != nullptr ? weeks->FirstChildElement() : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleWeek week;
        readWeek(*item, week);
        schedule.getScheduleWeekList().push_back(std::move(week));
    }

    const TiXmlElement* segments = element.FirstChildElement("ScheduleTimeSegmentList");
    item = segments != nullptr ? segments->FirstChildElement() : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTimeSegment segment;
        segment.setBeginTime(static_cast<unsigned long>(longOf(*item, "BeginTime", 0)));
        segment.setEndTime(static_cast<unsigned long>(longOf(*item, "EndTime", 0)));
        schedule.getScheduleTimeSegmentList().push_back(segment);
    }
}

} // namespace bare
