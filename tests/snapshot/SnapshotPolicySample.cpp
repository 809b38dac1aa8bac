#include "tests/snapshot/SnapshotPolicySample.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/record/AlarmEventSample.h"

#include <gtest/gtest.h>

SnapshotParameter sampleSnapshotParameter()
{
    VideoResolution resolution;
    resolution.setVideoHeight(1080);
    resolution.setVideoWidth(1920);
    resolution.setResolutionName("Full");

    SnapshotParameter parameter;
    parameter.setQuality(21);
    parameter.setDuration(22);
    parameter.setShootTimes(23);
    parameter.setInterval(24);
    parameter.setVideoResolution(resolution);
    return parameter;
}

void expectSnapshotParameter(const SnapshotParameter& expected, const SnapshotParameter& parameter)
{
    EXPECT_EQ(expected.getQuality(), parameter.getQuality());
    EXPECT_EQ(expected.getDuration(), parameter.getDuration());
    EXPECT_EQ(expected.getShootTimes(), parameter.getShootTimes());
    EXPECT_EQ(expected.getInterval(), parameter.getInterval());
    EXPECT_EQ(expected.getVideoResolution().getVideoHeight(), parameter.getVideoResolution().getVideoHeight());
    EXPECT_EQ(expected.getVideoResolution().getVideoWidth(), parameter.getVideoResolution().getVideoWidth());
    EXPECT_EQ(expected.getVideoResolution().getResolutionName(), parameter.getVideoResolution().getResolutionName());
}

AlarmSnapshotPolicy sampleAlarmSnapshotPolicy()
{
    AlarmSnapshotPolicy policy;
    policy.setAlarmSnapshotTime(5, 10);
    policy.setAlarmSnapshotFileLockedState(true);
    policy.setAlarmSnapshotOpenState(false);
    policy.setSnapshotParameter(sampleSnapshotParameter());
    policy.setAlarmEventList(sampleAlarmEvents());
    return policy;
}

void expectAlarmSnapshotPolicy(const AlarmSnapshotPolicy& expected, const AlarmSnapshotPolicy& policy)
{
    EXPECT_EQ(expected.getAlarmPreSnapshotTime(), policy.getAlarmPreSnapshotTime());
    EXPECT_EQ(expected.getAlarmDelaySnapshotTime(), policy.getAlarmDelaySnapshotTime());
    EXPECT_EQ(expected.isAlarmSnapshotFileLocked(), policy.isAlarmSnapshotFileLocked());
    EXPECT_EQ(expected.isAlarmSnapshotOpened(), policy.isAlarmSnapshotOpened());
    expectSnapshotParameter(expected.getSnapshotParameter(), policy.getSnapshotParameter());
    expectAlarmEvents(expected.getAlarmEventList(), policy.getAlarmEventList());
}

ScheduleSnapshotPolicy sampleScheduleSnapshotPolicy()
{
    ScheduleSnapshotPolicy policy;
    policy.setScheduleSnapshotOpenState(true);
    policy.setScheduleType(4);
    policy.setSnapshotParameter(sampleSnapshotParameter());
    policy.setScheduleTimeParam(sampleScheduleTimeParam());
    return policy;
}

void expectScheduleSnapshotPolicy(const ScheduleSnapshotPolicy& expected, const ScheduleSnapshotPolicy& policy)
{
    EXPECT_EQ(expected.isScheduleSnapshotOpened(), policy.isScheduleSnapshotOpened());
    EXPECT_EQ(expected.getScheduleType(), policy.getScheduleType());
    expectSnapshotParameter(expected.getSnapshotParameter(), policy.getSnapshotParameter());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), policy.getScheduleTimeParam());
}
