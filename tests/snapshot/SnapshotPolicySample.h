#pragma once

#include "domain/SnapshotRecords.h"

/// @file
/// Policies with a distinct value in every field.

SnapshotParameter sampleSnapshotParameter();
void expectSnapshotParameter(const SnapshotParameter& expected, const SnapshotParameter& parameter);

AlarmSnapshotPolicy sampleAlarmSnapshotPolicy();
void expectAlarmSnapshotPolicy(const AlarmSnapshotPolicy& expected, const AlarmSnapshotPolicy& policy);

ScheduleSnapshotPolicy sampleScheduleSnapshotPolicy();
void expectScheduleSnapshotPolicy(const ScheduleSnapshotPolicy& expected, const ScheduleSnapshotPolicy& policy);
