#include "tests/record/AlarmEventSample.h"

#include <cstddef>
#include <gtest/gtest.h>

AlarmEvent alarmEvent(int id, int majorType, int type)
{
    AlarmEvent event;
    event.setAlarmId(id);
    event.setMajorAlarmType(majorType);
    event.setAlarmType(type);
    return event;
}

std::vector<AlarmEvent> sampleAlarmEvents()
{
    return {alarmEvent(31, 32, 33), alarmEvent(34, 35, 36)};
}

void expectAlarmEvents(const std::vector<AlarmEvent>& expected, const std::vector<AlarmEvent>& events)
{
    ASSERT_EQ(expected.size(), events.size());
    for (std::size_t number = 0; number < events.size(); ++number)
    {
        EXPECT_EQ(expected[number].getAlarmId(), events[number].getAlarmId());
        EXPECT_EQ(expected[number].getMajorAlarmType(), events[number].getMajorAlarmType());
        EXPECT_EQ(expected[number].getAlarmType(), events[number].getAlarmType());
    }
}
