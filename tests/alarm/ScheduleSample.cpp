#include "tests/alarm/ScheduleSample.h"

#include <cstddef>
#include <gtest/gtest.h>

ScheduleTime sampleScheduleTime()
{
    ScheduleTime time;
    time.setStartTime(28800);
    time.setEndTime(64800);
    return time;
}

void expectScheduleTime(const ScheduleTime& expected, const ScheduleTime& time)
{
    EXPECT_EQ(expected.getStartTime(), time.getStartTime());
    EXPECT_EQ(expected.getEndTime(), time.getEndTime());
}

void expectScheduleTimes(const std::vector<ScheduleTime>& expected, const std::vector<ScheduleTime>& times)
{
    ASSERT_EQ(expected.size(), times.size());
    for (std::size_t number = 0; number < times.size(); ++number)
        expectScheduleTime(expected[number], times[number]);
}

ScheduleTimeSegment sampleScheduleTimeSegment()
{
    ScheduleTimeSegment segment;
    segment.setBeginTime(1000000000);
    segment.setEndTime(2000000000);
    return segment;
}

void expectScheduleTimeSegment(const ScheduleTimeSegment& expected, const ScheduleTimeSegment& segment)
{
    EXPECT_EQ(expected.getBeginTime(), segment.getBeginTime());
    EXPECT_EQ(expected.getEndTime(), segment.getEndTime());
}

void expectScheduleTimeSegments(const std::vector<ScheduleTimeSegment>& expected,
                                const std::vector<ScheduleTimeSegment>& segments)
{
    ASSERT_EQ(expected.size(), segments.size());
    for (std::size_t number = 0; number < segments.size(); ++number)
        expectScheduleTimeSegment(expected[number], segments[number]);
}

ScheduleWeek sampleScheduleWeek()
{
    ScheduleWeek week;
    week.setWeekDay(3);
    week.getScheduleTimeList().push_back(sampleScheduleTime());
    return week;
}

void expectScheduleWeek(const ScheduleWeek& expected, const ScheduleWeek& week)
{
    EXPECT_EQ(expected.getWeekDay(), week.getWeekDay());
    expectScheduleTimes(expected.getScheduleTimeList(), week.getScheduleTimeList());
}

void expectScheduleWeeks(const std::vector<ScheduleWeek>& expected, const std::vector<ScheduleWeek>& weeks)
{
    ASSERT_EQ(expected.size(), weeks.size());
    for (std::size_t number = 0; number < weeks.size(); ++number)
        expectScheduleWeek(expected[number], weeks[number]);
}

ScheduleTimeParam sampleScheduleTimeParam()
{
    ScheduleTimeParam schedule;
    schedule.setDeviceId("D-5");
    schedule.setCameraId(19);
    schedule.getScheduleWeekList().push_back(sampleScheduleWeek());
    schedule.getScheduleTimeSegmentList().push_back(sampleScheduleTimeSegment());
    return schedule;
}

void expectScheduleTimeParam(const ScheduleTimeParam& expected, const ScheduleTimeParam& schedule)
{
    EXPECT_EQ(expected.getDeviceId(), schedule.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), schedule.getCameraId());
    expectScheduleWeeks(expected.getScheduleWeekList(), schedule.getScheduleWeekList());
    expectScheduleTimeSegments(expected.getScheduleTimeSegmentList(), schedule.getScheduleTimeSegmentList());
}
