#include "tests/snapshot/SnapshotSample.h"

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

SnapshotFile samplePicture()
{
    SnapshotFile file;
    file.setDeviceId("d1");
    file.setDeviceIP("10.0.0.9");
    file.setCameraId(3);
    file.setSnapshotFileTime(1425283747045);
    file.setSnapshotPolicyType(2);
    file.setLockFlag(true);
    file.setSnapshotFileLength(51200);
    file.setStructSnapshotFileTime(sampleTime());
    file.setAlarmExTypeList({alarmType("Motion", 1, 2), alarmType("Line", 3, 4)});
    file.setSnapshotFileName("d1_10.0.0.9_3_20150302080907045_2.jpg");
    return file;
}

SnapshotFile emptyPicture(const std::string& deviceId, const std::string& deviceIp, int cameraId)
{
    SnapshotFile file;
    file.setDeviceId(deviceId);
    file.setDeviceIP(deviceIp);
    file.setCameraId(cameraId);
    file.setSnapshotFileName(deviceId + "_" + deviceIp + "_" + std::to_string(cameraId) + "_19700101000000000_0.jpg");
    return file;
}

void expectPicture(const SnapshotFile& expected, const SnapshotFile& file)
{
    EXPECT_EQ(expected.getDeviceId(), file.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), file.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), file.getCameraId());
    EXPECT_EQ(expected.getSnapshotFileTime(), file.getSnapshotFileTime());
    EXPECT_EQ(expected.getSnapshotPolicyType(), file.getSnapshotPolicyType());
    EXPECT_EQ(expected.getLockFlag(), file.getLockFlag());
    EXPECT_EQ(expected.getSnapshotFileLength(), file.getSnapshotFileLength());
    expectTime(expected.getStructSnapshotFileTime(), file.getStructSnapshotFileTime());
    expectAlarmTypes(expected.getAlarmExTypeList(), file.getAlarmExTypeList());
    EXPECT_EQ(expected.getSnapshotFileName(), file.getSnapshotFileName());
}

SnapshotFileEx sampleStretch()
{
    SnapshotFileEx file;
    file.setDeviceId("d1");
    file.setDeviceIP("10.0.0.9");
    file.setCameraId(3);
    file.setSnapshotFileBeginTime(1425283747045);
    file.setSnapshotFileEndTime(1425287347046);
    file.setSnapshotCount(12);
    file.setStructSnapshotFileTime(sampleTime());
    file.setSnapshotAlarmExType(alarmType("", 1, 2));
    return file;
}

SnapshotFileEx emptyStretch(const std::string& deviceId, const std::string& deviceIp, int cameraId)
{
    SnapshotFileEx file;
    file.setDeviceId(deviceId);
    file.setDeviceIP(deviceIp);
    file.setCameraId(cameraId);
    return file;
}

void expectStretch(const SnapshotFileEx& expected, const SnapshotFileEx& file)
{
    EXPECT_EQ(expected.getDeviceId(), file.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), file.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), file.getCameraId());
    EXPECT_EQ(expected.getSnapshotFileBeginTime(), file.getSnapshotFileBeginTime());
    EXPECT_EQ(expected.getSnapshotFileEndTime(), file.getSnapshotFileEndTime());
    EXPECT_EQ(expected.getSnapshotCount(), file.getSnapshotCount());
    expectTime(expected.getStructSnapshotFileTime(), file.getStructSnapshotFileTime());
    expectAlarmTypes({expected.getSnapshotAlarmExType()}, {file.getSnapshotAlarmExType()});
}
