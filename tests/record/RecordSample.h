#pragma once

#include "domain/RecordRecords.h"

/// A time with a distinct value in every field.
TimeStruct sampleTime(std::uint16_t year);

void expectTime(const TimeStruct& expected, const TimeStruct& time);

AlarmExType alarmType(const std::string& name, int major, int minor);

void expectAlarmTypes(const std::vector<AlarmExType>& expected, const std::vector<AlarmExType>& types);

/// A disk with a distinct value in every field.
RecordDirInfo sampleDisk();

void expectDisk(const RecordDirInfo& expected, const RecordDirInfo& info);
