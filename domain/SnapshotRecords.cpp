#include "domain/SnapshotRecords.h"

#include "domain/CalendarSteps.h"

namespace
{

TimeStruct calendarOf(long long milliseconds)
{
    TimeStruct time = frame::calendarOf(static_cast<unsigned long>(milliseconds / 1000));
    time.setMilliseconds(static_cast<int>(milliseconds % 1000));
    return time;
}

} // namespace

TimeStruct SnapshotQueryCondition::getStructQueryBeginTime() const
{
    return calendarOf(queryBeginTime_);
}

TimeStruct SnapshotQueryCondition::getStructQueryEndTime() const
{
    return calendarOf(queryEndTime_);
}
