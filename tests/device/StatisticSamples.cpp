#include "tests/device/StatisticSamples.h"

#include <gtest/gtest.h>

CpuStatistic sampleCpu()
{
    CpuStatistic cpu;
    cpu.setCpuPercent(99.75F);
    cpu.setCpuStatus(3);
    return cpu;
}

MemStatistic sampleMemory()
{
    MemStatistic memory;
    memory.setMemTotalSize(2048);
    memory.setMemFreeSize(512);
    return memory;
}

DiskStatistic sampleDisk()
{
    DiskStatistic disk;
    disk.setDiskId(2);
    disk.setDiskTotalSize(4000);
    disk.setDiskFreeSize(1234);
    disk.setDiskStatus(5);
    return disk;
}

VideoChannelStatistic sampleChannel()
{
    VideoChannelStatistic channel;
    channel.setCameraId(7);
    channel.setRecordStatus(1);
    channel.setCaptureStatus(2);
    channel.setSignalStatus(3);
    channel.setHardwareStatus(4);
    channel.setBitRate(2096);
    return channel;
}

AlarmInStatistic sampleInput()
{
    AlarmInStatistic input;
    input.setAlarmInId(8);
    input.setAlarmInStatus(9);
    input.setLastAlarmTime(1500000008);
    return input;
}

AlarmOutStatistic sampleOutput()
{
    AlarmOutStatistic output;
    output.setAlarmOutId(10);
    output.setAlarmOutStatus(11);
    output.setLastAlarmTime(1500000010);
    return output;
}

void expectCpu(const CpuStatistic& expected, const CpuStatistic& cpu)
{
    EXPECT_EQ(expected.getCpuPercent(), cpu.getCpuPercent());
    EXPECT_EQ(expected.getCpuStatus(), cpu.getCpuStatus());
}

void expectMemory(const MemStatistic& expected, const MemStatistic& memory)
{
    EXPECT_EQ(expected.getMemTotalSize(), memory.getMemTotalSize());
    EXPECT_EQ(expected.getMemFreeSize(), memory.getMemFreeSize());
}

void expectDisk(const DiskStatistic& expected, const DiskStatistic& disk)
{
    EXPECT_EQ(expected.getDiskId(), disk.getDiskId());
    EXPECT_EQ(expected.getDiskTotalSize(), disk.getDiskTotalSize());
    EXPECT_EQ(expected.getDiskFreeSize(), disk.getDiskFreeSize());
    EXPECT_EQ(expected.getDiskStatus(), disk.getDiskStatus());
}

void expectChannel(const VideoChannelStatistic& expected, const VideoChannelStatistic& channel)
{
    EXPECT_EQ(expected.getCameraId(), channel.getCameraId());
    EXPECT_EQ(expected.getRecordStatus(), channel.getRecordStatus());
    EXPECT_EQ(expected.getCaptureStatus(), channel.getCaptureStatus());
    EXPECT_EQ(expected.getSignalStatus(), channel.getSignalStatus());
    EXPECT_EQ(expected.getHardwareStatus(), channel.getHardwareStatus());
    EXPECT_EQ(expected.getBitRate(), channel.getBitRate());
}

void expectInput(const AlarmInStatistic& expected, const AlarmInStatistic& input)
{
    EXPECT_EQ(expected.getAlarmInId(), input.getAlarmInId());
    EXPECT_EQ(expected.getAlarmInStatus(), input.getAlarmInStatus());
    EXPECT_EQ(expected.getLastAlarmTime(), input.getLastAlarmTime());
}

void expectOutput(const AlarmOutStatistic& expected, const AlarmOutStatistic& output)
{
    EXPECT_EQ(expected.getAlarmOutId(), output.getAlarmOutId());
    EXPECT_EQ(expected.getAlarmOutStatus(), output.getAlarmOutStatus());
    EXPECT_EQ(expected.getLastAlarmTime(), output.getLastAlarmTime());
}
