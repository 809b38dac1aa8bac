#pragma once

#include "domain/AlarmRecords.h"

#include <vector>

/// @file
/// Actions with a distinct value in every field.

OSDInfo sampleOSDInfo();
void expectOSDInfo(const OSDInfo& expected, const OSDInfo& info);

AlarmOutAction sampleAlarmOutAction();
void expectAlarmOutAction(const AlarmOutAction& expected, const AlarmOutAction& action);
void expectAlarmOutActions(const std::vector<AlarmOutAction>& expected, const std::vector<AlarmOutAction>& actions);

AlarmRecordAction sampleAlarmRecordAction();
void expectAlarmRecordAction(const AlarmRecordAction& expected, const AlarmRecordAction& action);
void expectAlarmRecordActions(const std::vector<AlarmRecordAction>& expected,
                              const std::vector<AlarmRecordAction>& actions);

AlarmPTZAction sampleAlarmPTZAction();
void expectAlarmPTZAction(const AlarmPTZAction& expected, const AlarmPTZAction& action);
void expectAlarmPTZActions(const std::vector<AlarmPTZAction>& expected, const std::vector<AlarmPTZAction>& actions);

AlarmOverlayAction sampleAlarmOverlayAction();
void expectAlarmOverlayAction(const AlarmOverlayAction& expected, const AlarmOverlayAction& action);
void expectAlarmOverlayActions(const std::vector<AlarmOverlayAction>& expected,
                               const std::vector<AlarmOverlayAction>& actions);
