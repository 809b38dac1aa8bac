#include "tests/alarm/ActionSample.h"

#include <cstddef>
#include <gtest/gtest.h>

OSDInfo sampleOSDInfo()
{
    OSDInfo info;
    info.setOSDType(16);
    info.setOSDEnableFlag(true);
    info.setTopX(17);
    info.setTopY(18);
    info.setInfo("Gate");
    return info;
}

void expectOSDInfo(const OSDInfo& expected, const OSDInfo& info)
{
    EXPECT_EQ(expected.getOSDType(), info.getOSDType());
    EXPECT_EQ(expected.getOSDEnableFlag(), info.getOSDEnableFlag());
    EXPECT_EQ(expected.getTopX(), info.getTopX());
    EXPECT_EQ(expected.getTopY(), info.getTopY());
    EXPECT_EQ(expected.getInfo(), info.getInfo());
}

AlarmOutAction sampleAlarmOutAction()
{
    AlarmOutAction action;
    action.setDeviceId("D-1");
    action.setAlarmOutId(2);
    action.setAlarmOutFlag(3);
    action.setEventTypeId(4);
    return action;
}

void expectAlarmOutAction(const AlarmOutAction& expected, const AlarmOutAction& action)
{
    EXPECT_EQ(expected.getDeviceId(), action.getDeviceId());
    EXPECT_EQ(expected.getAlarmOutId(), action.getAlarmOutId());
    EXPECT_EQ(expected.getAlarmOutFlag(), action.getAlarmOutFlag());
    EXPECT_EQ(expected.getEventTypeId(), action.getEventTypeId());
}

void expectAlarmOutActions(const std::vector<AlarmOutAction>& expected, const std::vector<AlarmOutAction>& actions)
{
    ASSERT_EQ(expected.size(), actions.size());
    for (std::size_t number = 0; number < actions.size(); ++number)
        expectAlarmOutAction(expected[number], actions[number]);
}

AlarmRecordAction sampleAlarmRecordAction()
{
    AlarmRecordAction action;
    action.setDeviceId("D-3");
    action.setCameraId(10);
    action.setPreRecordTime(11);
    action.setRecordTime(12);
    action.setEventTypeId(13);
    action.setEnableRecordAudio(true);
    return action;
}

void expectAlarmRecordAction(const AlarmRecordAction& expected, const AlarmRecordAction& action)
{
    EXPECT_EQ(expected.getDeviceId(), action.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), action.getCameraId());
    EXPECT_EQ(expected.getPreRecordTime(), action.getPreRecordTime());
    EXPECT_EQ(expected.getRecordTime(), action.getRecordTime());
    EXPECT_EQ(expected.getEventTypeId(), action.getEventTypeId());
    EXPECT_EQ(expected.getEnableRecordAudio(), action.getEnableRecordAudio());
}

void expectAlarmRecordActions(const std::vector<AlarmRecordAction>& expected,
                              const std::vector<AlarmRecordAction>& actions)
{
    ASSERT_EQ(expected.size(), actions.size());
    for (std::size_t number = 0; number < actions.size(); ++number)
        expectAlarmRecordAction(expected[number], actions[number]);
}

AlarmPTZAction sampleAlarmPTZAction()
{
    AlarmPTZAction action;
    action.setEventTypeId(5);
    action.setDeviceId("D-2");
    action.setCameraId(6);
    action.setComId(7);
    action.setPtzId(8);
    action.setPtzOperationCmd("left", 4);
    action.setReserve(9);
    return action;
}

void expectAlarmPTZAction(const AlarmPTZAction& expected, const AlarmPTZAction& action)
{
    EXPECT_EQ(expected.getEventTypeId(), action.getEventTypeId());
    EXPECT_EQ(expected.getDeviceId(), action.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), action.getCameraId());
    EXPECT_EQ(expected.getComId(), action.getComId());
    EXPECT_EQ(expected.getPtzId(), action.getPtzId());
    EXPECT_EQ(expected.getPtzOperationCmd(), action.getPtzOperationCmd());
    EXPECT_EQ(expected.getPtzOperationCmdLen(), action.getPtzOperationCmdLen());
    EXPECT_EQ(expected.getReserve(), action.getReserve());
}

void expectAlarmPTZActions(const std::vector<AlarmPTZAction>& expected, const std::vector<AlarmPTZAction>& actions)
{
    ASSERT_EQ(expected.size(), actions.size());
    for (std::size_t number = 0; number < actions.size(); ++number)
        expectAlarmPTZAction(expected[number], actions[number]);
}

AlarmOverlayAction sampleAlarmOverlayAction()
{
    AlarmOverlayAction action;
    action.setEventTypeId(14);
    action.setDeviceId("D-4");
    action.setCameraId(15);
    action.setOSDInfo(sampleOSDInfo());
    return action;
}

void expectAlarmOverlayAction(const AlarmOverlayAction& expected, const AlarmOverlayAction& action)
{
    EXPECT_EQ(expected.getEventTypeId(), action.getEventTypeId());
    EXPECT_EQ(expected.getDeviceId(), action.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), action.getCameraId());
    expectOSDInfo(expected.getOSDInfo(), action.getOSDInfo());
}

void expectAlarmOverlayActions(const std::vector<AlarmOverlayAction>& expected,
                               const std::vector<AlarmOverlayAction>& actions)
{
    ASSERT_EQ(expected.size(), actions.size());
    for (std::size_t number = 0; number < actions.size(); ++number)
        expectAlarmOverlayAction(expected[number], actions[number]);
}
