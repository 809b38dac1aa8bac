#include "tests/record/RecordSample.h"

#include <gtest/gtest.h>

TimeStruct sampleTime(std::uint16_t year)
{
    TimeStruct time;
    time.setTimeZone(-8);
    time.setDaylightSavingTime(1);
    time.setYear(year);
    time.setMonth(3);
    time.setDay(2);
    time.setDayOfWeek(6);
    time.setHour(23);
    time.setMinute(59);
    time.setSecond(58);
    time.setMilliseconds(999);
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

AlarmExType alarmType(const std::string& name, int major, int minor)
{
    AlarmExType type;
    type.setAlarmExTypeName(name);
    type.setMajorType(major);
    type.setMinorType(minor);
    return type;
}

void expectAlarmTypes(const std::vector<AlarmExType>& expected, const std::vector<AlarmExType>& types)
{
    ASSERT_EQ(expected.size(), types.size());
    for (std::size_t number = 0; number < types.size(); ++number)
    {
        EXPECT_EQ(expected[number].getAlarmExTypeName(), types[number].getAlarmExTypeName());
        EXPECT_EQ(expected[number].getMajorType(), types[number].getMajorType());
        EXPECT_EQ(expected[number].getMinorType(), types[number].getMinorType());
    }
}

RecordDirInfo sampleDisk()
{
    RecordDirInfo info;
    info.setDiskType(1);
    info.setDiskName("hda1");
    info.setGroupId(2);
    info.setUsableSpace(300);
    info.setFreeSpace(200);
    info.setAttribute(4);
    info.setEnableFlag(true);
    info.setAlarmThreshold(50);
    info.setStatus(6);
    info.setFileSystemFormat(7);
    return info;
}

void expectDisk(const RecordDirInfo& expected, const RecordDirInfo& info)
{
    EXPECT_EQ(expected.getDiskType(), info.getDiskType());
    EXPECT_EQ(expected.getDiskName(), info.getDiskName());
    EXPECT_EQ(expected.getGroupId(), info.getGroupId());
    EXPECT_EQ(expected.getUsableSpace(), info.getUsableSpace());
    EXPECT_EQ(expected.getFreeSpace(), info.getFreeSpace());
    EXPECT_EQ(expected.getAttribute(), info.getAttribute());
    EXPECT_EQ(expected.getEnableFlag(), info.getEnableFlag());
    EXPECT_EQ(expected.getAlarmThreshold(), info.getAlarmThreshold());
    EXPECT_EQ(expected.getStatus(), info.getStatus());
    EXPECT_EQ(expected.getFileSystemFormat(), info.getFileSystemFormat());
}
