#pragma once

#include "domain/DeviceRecords.h"

// Records with a distinct value in every field.

CpuStatistic sampleCpu();
MemStatistic sampleMemory();
DiskStatistic sampleDisk();
VideoChannelStatistic sampleChannel();
AlarmInStatistic sampleInput();
AlarmOutStatistic sampleOutput();

void expectCpu(const CpuStatistic& expected, const CpuStatistic& cpu);
void expectMemory(const MemStatistic& expected, const MemStatistic& memory);
void expectDisk(const DiskStatistic& expected, const DiskStatistic& disk);
void expectChannel(const VideoChannelStatistic& expected, const VideoChannelStatistic& channel);
void expectInput(const AlarmInStatistic& expected, const AlarmInStatistic& input);
void expectOutput(const AlarmOutStatistic& expected, const AlarmOutStatistic& output);
