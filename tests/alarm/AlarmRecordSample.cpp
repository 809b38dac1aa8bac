#include "tests/alarm/AlarmRecordSample.h"

#include <gtest/gtest.h>

AlarmData sampleAlarmData()
{
    AlarmData data;
    data.setAlarmCode(11);
    data.setAlarmFlag(1);
    data.setAlarmSourceId(12);
    data.setAlarmSourceName("Door & gate");
    data.setAlarmTime(1425254400);
    data.setAlarmType(13);
    data.setEventType(14);
    return data;
}

void expectAlarmData(const AlarmData& expected, const AlarmData& data)
{
    EXPECT_EQ(expected.getAlarmCode(), data.getAlarmCode());
    EXPECT_EQ(expected.getAlarmFlag(), data.getAlarmFlag());
    EXPECT_EQ(expected.getAlarmSourceId(), data.getAlarmSourceId());
    EXPECT_EQ(expected.getAlarmSourceName(), data.getAlarmSourceName());
    EXPECT_EQ(expected.getAlarmTime(), data.getAlarmTime());
    EXPECT_EQ(expected.getAlarmType(), data.getAlarmType());
    EXPECT_EQ(expected.getEventType(), data.getEventType());
}

TimeStruct sampleAlarmTime(std::uint16_t hour)
{
    TimeStruct time;
    time.setTimeZone(-8);
    time.setDaylightSavingTime(1);
    time.setYear(2015);
    time.setMonth(3);
    time.setDay(2);
    time.setDayOfWeek(6);
    time.setHour(hour);
    time.setMinute(59);
    time.setSecond(58);
    time.setMilliseconds(999);
    return time;
}

void expectAlarmTime(const TimeStruct& expected, const TimeStruct& time)
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

AlarmInfoExQueryParam sampleAlarmQuery()
{
    AlarmInfoExQueryParam param;
    param.setDeviceId("D-17");
    param.setDeviceIP("192.0.2.17");
    param.setSourceId("S-3");
    param.setSourceName("Door & gate");
    param.setAlarmBeginTime(1425254400);
    param.setAlarmEndTime(4294967295UL);
    param.setMajorType(21);
    param.setMinorType(22);
    param.setStructAlarmBeginTime(sampleAlarmTime(20));
    param.setStructAlarmEndTime(sampleAlarmTime(21));
    return param;
}

void expectAlarmQuery(const AlarmInfoExQueryParam& expected, const AlarmInfoExQueryParam& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), param.getDeviceIP());
    EXPECT_EQ(expected.getSourceId(), param.getSourceId());
    EXPECT_EQ(expected.getSourceName(), param.getSourceName());
    EXPECT_EQ(expected.getAlarmBeginTime(), param.getAlarmBeginTime());
    EXPECT_EQ(expected.getAlarmEndTime(), param.getAlarmEndTime());
    EXPECT_EQ(expected.getMajorType(), param.getMajorType());
    EXPECT_EQ(expected.getMinorType(), param.getMinorType());
    expectAlarmTime(expected.getStructAlarmBeginTime(), param.getStructAlarmBeginTime());
    expectAlarmTime(expected.getStructAlarmEndTime(), param.getStructAlarmEndTime());
}
