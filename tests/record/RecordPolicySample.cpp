#include "tests/record/RecordPolicySample.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/record/AlarmEventSample.h"

#include <gtest/gtest.h>

AlarmRecordPolicy sampleAlarmRecordPolicy()
{
    AlarmRecordPolicy policy;
    policy.setAlarmRecordTime(5, 10);
    policy.setAlarmRecordFileLockedState(true);
    policy.setAlarmRecordOpenState(false);
    policy.getAlarmEventList() = sampleAlarmEvents();
    return policy;
}

void expectAlarmRecordPolicy(const AlarmRecordPolicy& expected, const AlarmRecordPolicy& policy)
{
    EXPECT_EQ(expected.getAlarmPreRecordTime(), policy.getAlarmPreRecordTime());
    EXPECT_EQ(expected.getAlarmDelayRecordTime(), policy.getAlarmDelayRecordTime());
    EXPECT_EQ(expected.isAlarmRecordFileLocked(), policy.isAlarmRecordFileLocked());
    EXPECT_EQ(expected.isAlarmRecordOpened(), policy.isAlarmRecordOpened());
    expectAlarmEvents(expected.getAlarmEventList(), policy.getAlarmEventList());
}

ScheduleRecordPolicy sampleScheduleRecordPolicy()
{
    ScheduleRecordPolicy policy;
    policy.setScheduleRecordOpenState(true);
    policy.setScheduleRecordType(4);
    policy.setScheduleTimeParam(sampleScheduleTimeParam());
    return policy;
}

void expectScheduleRecordPolicy(const ScheduleRecordPolicy& expected, const ScheduleRecordPolicy& policy)
{
    EXPECT_EQ(expected.isScheduleRecordOpened(), policy.isScheduleRecordOpened());
    EXPECT_EQ(expected.getScheduleRecordType(), policy.getScheduleRecordType());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), policy.getScheduleTimeParam());
}

WritePolicy sampleWritePolicy()
{
    WritePolicy policy;
    policy.setStoragePolicy(1);
    policy.setRecordLengthMode(2);
    policy.setRecordFileMaxSize(3);
    policy.setRecordFileTime(4);
    policy.setFileNameSuffix("rec");
    policy.setRecordFormatType(6);
    return policy;
}

void expectWritePolicy(const WritePolicy& expected, const WritePolicy& policy)
{
    EXPECT_EQ(expected.getStoragePolicy(), policy.getStoragePolicy());
    EXPECT_EQ(expected.getRecordLengthMode(), policy.getRecordLengthMode());
    EXPECT_EQ(expected.getRecordFileMaxSize(), policy.getRecordFileMaxSize());
    EXPECT_EQ(expected.getRecordFileTime(), policy.getRecordFileTime());
    EXPECT_EQ(expected.getFileNameSuffix(), policy.getFileNameSuffix());
    EXPECT_EQ(expected.getRecordFormatType(), policy.getRecordFormatType());
}

SpacePolicy sampleSpacePolicy()
{
    SpacePolicy policy;
    policy.setCameraId(1);
    policy.setMaxDiskSize(1024);
    policy.setScheduleRecordDiskSizePercent(87.5F);
    policy.setAlarmRecordDiskSizePercent(12.5F);
    return policy;
}

void expectSpacePolicy(const SpacePolicy& expected, const SpacePolicy& policy)
{
    EXPECT_EQ(expected.getCameraId(), policy.getCameraId());
    EXPECT_EQ(expected.getMaxDiskSize(), policy.getMaxDiskSize());
    EXPECT_EQ(expected.getScheduleRecordDiskSizePercent(), policy.getScheduleRecordDiskSizePercent());
    EXPECT_EQ(expected.getAlarmRecordDiskSizePercent(), policy.getAlarmRecordDiskSizePercent());
}
