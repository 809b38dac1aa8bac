#include "tests/snapshot/TriggerSample.h"

#include <gtest/gtest.h>

SnapshotTriggerParameter sampleTrigger()
{
    SnapshotTriggerParameter trigger = samplePlainTrigger();
    trigger.setShutterTime(14);
    trigger.setGain(15);
    trigger.setSparkState(16);
    trigger.setSparkDelay(17);
    return trigger;
}

SnapshotTriggerParameter samplePlainTrigger()
{
    SnapshotTriggerParameter trigger;
    trigger.setCameraId(1);
    trigger.setQuality(2);
    trigger.setPicNumber(3);
    trigger.setSparkFlag(true);
    trigger.setTriggerDelay(5);
    trigger.setExposalDelay(6);
    trigger.setSparkIOId(7);
    trigger.setSparkReloadTime(8);
    trigger.setSnapshotInterval(9);
    trigger.setSparkDuration(10);
    trigger.setSparkType(11);
    trigger.setAlarmInIdList({12, 13});
    return trigger;
}

void expectTrigger(const SnapshotTriggerParameter& expected, const SnapshotTriggerParameter& trigger)
{
    EXPECT_EQ(expected.getCameraId(), trigger.getCameraId());
    EXPECT_EQ(expected.getQuality(), trigger.getQuality());
    EXPECT_EQ(expected.getPicNumber(), trigger.getPicNumber());
    EXPECT_EQ(expected.getSparkFlag(), trigger.getSparkFlag());
    EXPECT_EQ(expected.getTriggerDelay(), trigger.getTriggerDelay());
    EXPECT_EQ(expected.getExposalDelay(), trigger.getExposalDelay());
    EXPECT_EQ(expected.getSparkIOId(), trigger.getSparkIOId());
    EXPECT_EQ(expected.getSparkReloadTime(), trigger.getSparkReloadTime());
    EXPECT_EQ(expected.getSnapshotInterval(), trigger.getSnapshotInterval());
    EXPECT_EQ(expected.getSparkDuration(), trigger.getSparkDuration());
    EXPECT_EQ(expected.getSparkType(), trigger.getSparkType());
    EXPECT_EQ(expected.getAlarmInIdList(), trigger.getAlarmInIdList());
    EXPECT_EQ(expected.getShutterTime(), trigger.getShutterTime());
    EXPECT_EQ(expected.getGain(), trigger.getGain());
    EXPECT_EQ(expected.getSparkState(), trigger.getSparkState());
    EXPECT_EQ(expected.getSparkDelay(), trigger.getSparkDelay());
}
