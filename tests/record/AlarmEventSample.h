#pragma once

#include "domain/AlarmRecords.h"

#include <vector>

AlarmEvent alarmEvent(int id, int majorType, int type);

/// Two alarms with a distinct value in every field.
std::vector<AlarmEvent> sampleAlarmEvents();

void expectAlarmEvents(const std::vector<AlarmEvent>& expected, const std::vector<AlarmEvent>& events);
