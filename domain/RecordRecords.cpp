#include "domain/RecordRecords.h"

#include "domain/CalendarSteps.h"

TimeStruct RecordQueryCondition::getStructRecordBeginTime() const
{
    return frame::calendarOf(recordBeginTime_);
}

TimeStruct RecordQueryCondition::getStructRecordEndTime() const
{
    return frame::calendarOf(recordEndTime_);
}
