#pragma once

#include "domain/RecordRecords.h"

/// @file
/// Policies with a distinct value in every field.

AlarmRecordPolicy sampleAlarmRecordPolicy();
void expectAlarmRecordPolicy(const AlarmRecordPolicy& expected, const AlarmRecordPolicy& policy);

ScheduleRecordPolicy sampleScheduleRecordPolicy();
void expectScheduleRecordPolicy(const ScheduleRecordPolicy& expected, const ScheduleRecordPolicy& policy);

WritePolicy sampleWritePolicy();
void expectWritePolicy(const WritePolicy& expected, const WritePolicy& policy);

SpacePolicy sampleSpacePolicy();
void expectSpacePolicy(const SpacePolicy& expected, const SpacePolicy& policy);
