#pragma once

#include "domain/AlarmRecords.h"

// Alarms, questions and times, with a distinct value in every field.

AlarmData sampleAlarmData();
void expectAlarmData(const AlarmData& expected, const AlarmData& data);

TimeStruct sampleAlarmTime(std::uint16_t hour);
void expectAlarmTime(const TimeStruct& expected, const TimeStruct& time);

AlarmInfoExQueryParam sampleAlarmQuery();
void expectAlarmQuery(const AlarmInfoExQueryParam& expected, const AlarmInfoExQueryParam& param);
