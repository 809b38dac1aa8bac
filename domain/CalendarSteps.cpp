#include "domain/CalendarSteps.h"

#include "domain/TimeConverter.h"

namespace frame
{

TimeStruct calendarOf(unsigned long seconds)
{
    ZTDateTime fields;
    TimeConverter().longToStruct(seconds, fields);

    TimeStruct time;
    time.setYear(fields.year);
    time.setMonth(fields.month);
    time.setDay(fields.day);
    time.setDayOfWeek(fields.dayOfWeek);
    time.setHour(fields.hour);
    time.setMinute(fields.minute);
    time.setSecond(fields.second);
    return time;
}

} // namespace frame
