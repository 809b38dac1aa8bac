#pragma once

#include "domain/AlarmRecords.h"

#include <vector>

/// @file
/// Schedules with a distinct value in every field.

ScheduleTime sampleScheduleTime();
void expectScheduleTime(const ScheduleTime& expected, const ScheduleTime& time);
void expectScheduleTimes(const std::vector<ScheduleTime>& expected, const std::vector<ScheduleTime>& times);

ScheduleTimeSegment sampleScheduleTimeSegment();
void expectScheduleTimeSegment(const ScheduleTimeSegment& expected, const ScheduleTimeSegment& segment);
void expectScheduleTimeSegments(const std::vector<ScheduleTimeSegment>& expected,
                                const std::vector<ScheduleTimeSegment>& segments);

ScheduleWeek sampleScheduleWeek();
void expectScheduleWeek(const ScheduleWeek& expected, const ScheduleWeek& week);
void expectScheduleWeeks(const std::vector<ScheduleWeek>& expected, const std::vector<ScheduleWeek>& weeks);

ScheduleTimeParam sampleScheduleTimeParam();
void expectScheduleTimeParam(const ScheduleTimeParam& expected, const ScheduleTimeParam& schedule);
