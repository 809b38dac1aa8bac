#pragma once

#include "domain/AlarmRecords.h"

/// @file
/// An event with a distinct value in every field.

NetworkAlarmEvent sampleNetworkAlarmEvent();
void expectNetworkAlarmEvent(const NetworkAlarmEvent& expected, const NetworkAlarmEvent& event);
