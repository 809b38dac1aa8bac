#include "tests/alarm/NetworkAlarmEventSample.h"

#include "tests/alarm/ActionSample.h"

#include <gtest/gtest.h>

NetworkAlarmEvent sampleNetworkAlarmEvent()
{
    NetworkAlarmEvent event;
    event.setNetworkCardId(52);
    event.setAlarmEnableFlag(true);
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    return event;
}

void expectNetworkAlarmEvent(const NetworkAlarmEvent& expected, const NetworkAlarmEvent& event)
{
    EXPECT_EQ(expected.getNetworkCardId(), event.getNetworkCardId());
    EXPECT_EQ(expected.getAlarmEnableFlag(), event.getAlarmEnableFlag());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
}
