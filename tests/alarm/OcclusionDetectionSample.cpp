#include "tests/alarm/OcclusionDetectionSample.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/DetectionAreaSample.h"
#include "tests/alarm/ScheduleSample.h"

#include <gtest/gtest.h>

OcclusionDetectionParam sampleOcclusionDetectionParam()
{
    OcclusionDetectionParam param;
    param.setSensitivity(49);
    param.getDetectionArea().push_back(sampleDetectionArea());
    return param;
}

void expectOcclusionDetectionParam(const OcclusionDetectionParam& expected, const OcclusionDetectionParam& param)
{
    EXPECT_EQ(expected.getSensitivity(), param.getSensitivity());
    expectDetectionAreas(expected.getDetectionArea(), param.getDetectionArea());
}

OcclusionDetectionEvent sampleOcclusionDetectionEvent()
{
    OcclusionDetectionEvent event;
    event.setDeviceId("D-12");
    event.setCameraId(50);
    event.setOcclusionDetectionEnableFlag(true);
    event.setOcclusionDetectionParam(sampleOcclusionDetectionParam());
    event.setScheduleTimeParam(sampleScheduleTimeParam());
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    return event;
}

void expectOcclusionDetectionEvent(const OcclusionDetectionEvent& expected, const OcclusionDetectionEvent& event)
{
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), event.getCameraId());
    EXPECT_EQ(expected.getOcclusionDetectionEnableFlag(), event.getOcclusionDetectionEnableFlag());
    expectOcclusionDetectionParam(expected.getOcclusionDetectionParam(), event.getOcclusionDetectionParam());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), event.getScheduleTimeParam());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
}
