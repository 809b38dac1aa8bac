#include "alarm/MotionDetectionEventXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/MotionDetectionParamSample.h"
#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

namespace
{

MotionDetectionEvent sample()
{
    MotionDetectionEvent event;
    event.setEventId(32);
    event.setPolicyId(33);
    event.setDeviceId("D-7");
    event.setCameraId(34);
    event.setMotionDetectionEnableFlag(true);
    event.setMotionDetectionParam(sampleMotionDetectionParam());
    event.setScheduleTimeParam(sampleScheduleTimeParam());
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmRecordAction().push_back(sampleAlarmRecordAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    event.getAlarmOverlayAction().push_back(sampleAlarmOverlayAction());
    return event;
}

void expectEvent(const MotionDetectionEvent& expected, const MotionDetectionEvent& event)
{
    EXPECT_EQ(expected.getEventId(), event.getEventId());
    EXPECT_EQ(expected.getPolicyId(), event.getPolicyId());
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), event.getCameraId());
    EXPECT_EQ(expected.getMotionDetectionEnableFlag(), event.getMotionDetectionEnableFlag());
    expectMotionDetectionParam(expected.getMotionDetectionParam(), event.getMotionDetectionParam());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), event.getScheduleTimeParam());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmRecordActions(expected.getAlarmRecordAction(), event.getAlarmRecordAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
    expectAlarmOverlayActions(expected.getAlarmOverlayAction(), event.getAlarmOverlayAction());
}

} // namespace

TEST(MotionDetectionEventXml, Writes)
{
    MotionDetectionEventXml codec;
    codec.setMotionDetectionEvent(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/MotionDetectionEventXml.document.xml"));
}

TEST(MotionDetectionEventXml, Reads)
{
    MotionDetectionEventXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionEventXml.document.xml")));
    expectEvent(sample(), codec.getMotionDetectionEvent());
}

TEST(MotionDetectionEventXml, ResetsAttributesAndLeavesChildrenThatAreMissing)
{
    MotionDetectionEventXml codec;
    codec.setMotionDetectionEvent(sample());
    ASSERT_TRUE(reads(codec, "<MotionDetectionEvent />"));
    MotionDetectionEvent expected = sample();
    expected.setEventId(0);
    expected.setPolicyId(0);
    expected.setDeviceId("");
    expected.setCameraId(0);
    expected.setMotionDetectionEnableFlag(false);
    expectEvent(expected, codec.getMotionDetectionEvent());
}

TEST(MotionDetectionEventXml, AddsActionsBehindThoseThatAreThere)
{
    MotionDetectionEventXml codec;
    codec.getMotionDetectionEvent().getAlarmOutAction().resize(1);
    codec.getMotionDetectionEvent().getAlarmRecordAction().resize(1);
    codec.getMotionDetectionEvent().getAlarmPTZAction().resize(1);
    codec.getMotionDetectionEvent().getAlarmOverlayAction().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionEventXml.document.xml")));
    expectAlarmOutActions({AlarmOutAction(), sampleAlarmOutAction()},
                          codec.getMotionDetectionEvent().getAlarmOutAction());
    expectAlarmRecordActions({AlarmRecordAction(), sampleAlarmRecordAction()},
                             codec.getMotionDetectionEvent().getAlarmRecordAction());
    expectAlarmPTZActions({AlarmPTZAction(), sampleAlarmPTZAction()},
                          codec.getMotionDetectionEvent().getAlarmPTZAction());
    expectAlarmOverlayActions({AlarmOverlayAction(), sampleAlarmOverlayAction()},
                              codec.getMotionDetectionEvent().getAlarmOverlayAction());
}

TEST(MotionDetectionEventXml, WritesTheFlagAsText)
{
    MotionDetectionEventXml codec;
    EXPECT_NE(std::string::npos, written(codec).find(" MotionDetectionEnableFlag=\"false\""));
}
