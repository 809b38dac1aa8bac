#include "tests/snapshot/SnapshotSample.h"

#include <gtest/gtest.h>

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
    file.setStructSnapshotFileTime(sampleTime(2015));
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
    file.setStructSnapshotFileTime(sampleTime(2015));
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
