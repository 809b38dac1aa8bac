#include "alarm/CameraMaskEventXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/support/Documents.h"

namespace
{

CameraMaskEvent sample()
{
    CameraMaskEvent event;
    event.setDetectType(45);
    event.setEventId(46);
    event.setPolicyId(47);
    event.setDeviceId("D-11");
    event.setCameraId(48);
    event.getAlarmOutAction().push_back(sampleAlarmOutAction());
    event.getAlarmRecordAction().push_back(sampleAlarmRecordAction());
    event.getAlarmPTZAction().push_back(sampleAlarmPTZAction());
    event.getAlarmOverlayAction().push_back(sampleAlarmOverlayAction());
    return event;
}

void expectEvent(const CameraMaskEvent& expected, const CameraMaskEvent& event)
{
    EXPECT_EQ(expected.getDetectType(), event.getDetectType());
    EXPECT_EQ(expected.getEventId(), event.getEventId());
    EXPECT_EQ(expected.getPolicyId(), event.getPolicyId());
    EXPECT_EQ(expected.getDeviceId(), event.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), event.getCameraId());
    expectAlarmOutActions(expected.getAlarmOutAction(), event.getAlarmOutAction());
    expectAlarmRecordActions(expected.getAlarmRecordAction(), event.getAlarmRecordAction());
    expectAlarmPTZActions(expected.getAlarmPTZAction(), event.getAlarmPTZAction());
    expectAlarmOverlayActions(expected.getAlarmOverlayAction(), event.getAlarmOverlayAction());
}

} // namespace

TEST(CameraMaskEventXml, Writes)
{
    CameraMaskEventXml codec;
    codec.setCameraMaskEvent(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/CameraMaskEventXml.document.xml"));
}

TEST(CameraMaskEventXml, Reads)
{
    CameraMaskEventXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/CameraMaskEventXml.document.xml")));
    expectEvent(sample(), codec.getCameraMaskEvent());
}

TEST(CameraMaskEventXml, ResetsAttributesAndLeavesListsThatAreMissing)
{
    CameraMaskEventXml codec;
    codec.setCameraMaskEvent(sample());
    ASSERT_TRUE(reads(codec, "<CameraMaskEvent />"));
    CameraMaskEvent expected = sample();
    expected.setDetectType(0);
    expected.setEventId(0);
    expected.setPolicyId(0);
    expected.setDeviceId("");
    expected.setCameraId(0);
    expectEvent(expected, codec.getCameraMaskEvent());
}

TEST(CameraMaskEventXml, AddsActionsBehindThoseThatAreThere)
{
    CameraMaskEventXml codec;
    codec.getCameraMaskEvent().getAlarmOutAction().resize(1);
    codec.getCameraMaskEvent().getAlarmRecordAction().resize(1);
    codec.getCameraMaskEvent().getAlarmPTZAction().resize(1);
    codec.getCameraMaskEvent().getAlarmOverlayAction().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/CameraMaskEventXml.document.xml")));
    expectAlarmOutActions({AlarmOutAction(), sampleAlarmOutAction()}, codec.getCameraMaskEvent().getAlarmOutAction());
    expectAlarmRecordActions({AlarmRecordAction(), sampleAlarmRecordAction()},
                             codec.getCameraMaskEvent().getAlarmRecordAction());
    expectAlarmPTZActions({AlarmPTZAction(), sampleAlarmPTZAction()}, codec.getCameraMaskEvent().getAlarmPTZAction());
    expectAlarmOverlayActions({AlarmOverlayAction(), sampleAlarmOverlayAction()},
                              codec.getCameraMaskEvent().getAlarmOverlayAction());
}
