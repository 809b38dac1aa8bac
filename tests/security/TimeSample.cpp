#include "tests/security/TimeSample.h"

#include <gtest/gtest.h>

TimeStruct sampleTime()
{
    TimeStruct time;
    time.setTimeZone(-8);
    time.setDaylightSavingTime(1);
    time.setYear(2015);
    time.setMonth(3);
    time.setDay(2);
    time.setDayOfWeek(6);
    time.setHour(23);
    time.setMinute(59);
    time.setSecond(58);
    time.setMilliseconds(999);
    return time;
}

TimeStruct laterTime()
{
    TimeStruct time;
    time.setTimeZone(7);
    time.setDaylightSavingTime(2);
    time.setYear(2016);
    time.setMonth(12);
    time.setDay(31);
    time.setDayOfWeek(5);
    time.setHour(11);
    time.setMinute(14);
    time.setSecond(13);
    time.setMilliseconds(500);
    return time;
}

void expectTime(const TimeStruct& expected, const TimeStruct& time)
{
    EXPECT_EQ(expected.getTimeZone(), time.getTimeZone());
    EXPECT_EQ(expected.getDaylightSavingTime(), time.getDaylightSavingTime());
    EXPECT_EQ(expected.getYear(), time.getYear());
    EXPECT_EQ(expected.getMonth(), time.getMonth());
    EXPECT_EQ(expected.getDay(), time.getDay());
    EXPECT_EQ(expected.getDayOfWeek(), time.getDayOfWeek());
    EXPECT_EQ(expected.getHour(), time.getHour());
    EXPECT_EQ(expected.getMinute(), time.getMinute());
    EXPECT_EQ(expected.getSecond(), time.getSecond());
    EXPECT_EQ(expected.getMilliseconds(), time.getMilliseconds());
}
