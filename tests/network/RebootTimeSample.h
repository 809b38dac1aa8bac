#pragma once

#include "domain/NetworkRecords.h"

RebootTime rebootTime(int month, int day, int weekday, int second);

/// Two times with distinct values in all fields.
std::vector<RebootTime> sampleTimes();
/// Those times, and the flag set.
TimeRebootParam sampleReboot();

void expectTimes(const std::vector<RebootTime>& expected, const std::vector<RebootTime>& times);
void expectReboot(const TimeRebootParam& expected, const TimeRebootParam& param);
