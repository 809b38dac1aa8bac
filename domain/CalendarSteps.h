#pragma once

#include "domain/CoreRecords.h"

/// What the records that derive a calendar from a point in time share.
namespace [[gnu::visibility("hidden")]] frame
{

/// The calendar, in UTC, at so many seconds since 1970-01-01 00:00:00 UTC.
TimeStruct calendarOf(unsigned long seconds);

} // namespace frame
