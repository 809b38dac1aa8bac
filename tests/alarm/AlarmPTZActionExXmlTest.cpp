#include "alarm/AlarmPTZActionExXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmPTZActionEx sample()
{
    AlarmPTZActionEx action;
    action.setCameraId(2);
    action.setPtzCmd("left");
    return action;
}

void expectAction(const AlarmPTZActionEx& expected, const AlarmPTZActionEx& action)
{
    EXPECT_EQ(expected.getCameraId(), action.getCameraId());
    EXPECT_EQ(expected.getPtzCmd(), action.getPtzCmd());
}

} // namespace

TEST(AlarmPTZActionExXml, Writes)
{
    AlarmPTZActionExXml codec;
    codec.setAlarmPTZAction(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmPTZActionExXml.document.xml"));
}

TEST(AlarmPTZActionExXml, Reads)
{
    AlarmPTZActionExXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmPTZActionExXml.document.xml")));
    expectAction(sample(), codec.getAlarmPTZAction());
}

TEST(AlarmPTZActionExXml, ResetsTheCameraAndLeavesTheCommandThatAreMissing)
{
    AlarmPTZActionExXml codec;
    codec.setAlarmPTZAction(sample());
    ASSERT_TRUE(reads(codec, "<AlarmPTZAction />"));
    AlarmPTZActionEx expected;
    expected.setPtzCmd("left");
    expectAction(expected, codec.getAlarmPTZAction());
}

TEST(AlarmPTZActionExXml, ResetsTheCameraThatIsNoNumber)
{
    AlarmPTZActionExXml codec;
    codec.setAlarmPTZAction(sample());
    ASSERT_TRUE(reads(codec, "<AlarmPTZAction CameraId='none' PtzCmd='' />"));
    expectAction(AlarmPTZActionEx(), codec.getAlarmPTZAction());
}
