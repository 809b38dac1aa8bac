#pragma once

#include "domain/AlarmRecords.h"

#include <tinyxml.h>

/// The schedule of a camera: two spans on each working day, one on the others, and two absolute ones.
ScheduleTimeParam makeSchedule(int cameraId);

namespace bare
{

/// Appends an element named @p name to @p parent.
void writeSchedule(TiXmlElement& parent, const char* name, const ScheduleTimeParam& schedule);

void readSchedule(const TiXmlElement& element, ScheduleTimeParam& schedule);

} // namespace bare
