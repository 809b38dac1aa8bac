#pragma once

#include "core/SafePointer.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <vector>

/// The steps that the codecs of schedules share in node form.
namespace [[gnu::visibility("hidden")]] frame
{

/// Adds the two containers, also for empty lists, and their items. False if an item cannot be written.
bool appendSchedule(SafePointer<DomainXmlNode>& node, const ScheduleTimeParam& schedule);

/// Adds the items of the container @p list, whatever their names, to what the second argument holds. False if an item
/// cannot be read.
/// @{
bool readWeeks(const SafePointer<DomainXmlNode>& list, std::vector<ScheduleWeek>& weeks);
bool readSegments(const SafePointer<DomainXmlNode>& list, std::vector<ScheduleTimeSegment>& segments);
/// @}

} // namespace frame
