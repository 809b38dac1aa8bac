#include "tests/network/RebootTimeSample.h"

#include <gtest/gtest.h>

RebootTime rebootTime(int month, int day, int weekday, int second)
{
    RebootTime time;
    time.setMonth(month);
    time.setDay(day);
    time.setWeekday(weekday);
    time.setSecond(second);
    return time;
}

std::vector<RebootTime> sampleTimes()
{
    return {rebootTime(4, 15, 6, 10800), rebootTime(12, 31, 1, 7200)};
}

TimeRebootParam sampleReboot()
{
    TimeRebootParam param;
    param.setTimeRebootEnableFlag(true);
    param.setRebootTimeList(sampleTimes());
    return param;
}

void expectTimes(const std::vector<RebootTime>& expected, const std::vector<RebootTime>& times)
{
    ASSERT_EQ(expected.size(), times.size());
    for (std::size_t number = 0; number < times.size(); ++number)
    {
        EXPECT_EQ(expected[number].getMonth(), times[number].getMonth());
        EXPECT_EQ(expected[number].getDay(), times[number].getDay());
        EXPECT_EQ(expected[number].getWeekday(), times[number].getWeekday());
        EXPECT_EQ(expected[number].getSecond(), times[number].getSecond());
    }
}

void expectReboot(const TimeRebootParam& expected, const TimeRebootParam& param)
{
    EXPECT_EQ(expected.getTimeRebootEnableFlag(), param.getTimeRebootEnableFlag());
    expectTimes(expected.getRebootTimeList(), param.getRebootTimeList());
}
