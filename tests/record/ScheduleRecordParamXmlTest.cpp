#include "record/ScheduleRecordParamXml.h"

#include "tests/alarm/ScheduleSample.h"
#include "tests/support/Documents.h"

namespace
{

ScheduleRecordParam sample()
{
    ScheduleRecordParam param;
    param.setDeviceId("D-1");
    param.setCameraId(2);
    param.setEnableRecord(true);
    param.setScheduleRecordType(4);
    param.setEnableRecordAudio(false);
    param.setScheduleTimeParam(sampleScheduleTimeParam());
    return param;
}

void expectParam(const ScheduleRecordParam& expected, const ScheduleRecordParam& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getEnableRecord(), param.getEnableRecord());
    EXPECT_EQ(expected.getScheduleRecordType(), param.getScheduleRecordType());
    EXPECT_EQ(expected.getEnableRecordAudio(), param.getEnableRecordAudio());
    expectScheduleTimeParam(expected.getScheduleTimeParam(), param.getScheduleTimeParam());
}

} // namespace

TEST(ScheduleRecordParamXml, Writes)
{
    ScheduleRecordParamXml codec;
    codec.setScheduleRecordParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/ScheduleRecordParamXml.document.xml"));
}

TEST(ScheduleRecordParamXml, Reads)
{
    ScheduleRecordParamXml codec;
    ASSERT_TRUE(reads(codec, golden("record/ScheduleRecordParamXml.document.xml")));
    expectParam(sample(), codec.getScheduleRecordParam());
}

TEST(ScheduleRecordParamXml, ResetsAttributesAndLeavesTheScheduleThatIsMissing)
{
    ScheduleRecordParam param = sample();
    param.setEnableRecordAudio(true);
    ScheduleRecordParamXml codec;
    codec.setScheduleRecordParam(param);
    ASSERT_TRUE(reads(codec, "<ScheduleRecordParam />"));
    ScheduleRecordParam expected;
    expected.setScheduleTimeParam(sampleScheduleTimeParam());
    expectParam(expected, codec.getScheduleRecordParam());
}

TEST(ScheduleRecordParamXml, ReplacesTheScheduleByTheOneThatIsThere)
{
    ScheduleRecordParamXml codec;
    codec.setScheduleRecordParam(sample());
    ASSERT_TRUE(reads(codec, "<ScheduleRecordParam IsEnableRecordAudio='true'><ScheduleRecordTimeParam CameraId='7' />"
                             "</ScheduleRecordParam>"));
    ScheduleRecordParam expected;
    expected.setEnableRecordAudio(true);
    expected.getScheduleTimeParam().setCameraId(7);
    expectParam(expected, codec.getScheduleRecordParam());
}

TEST(ScheduleRecordParamXml, DoesNotReadTheTypeAsThePolicySpellsIt)
{
    ScheduleRecordParamXml codec;
    ASSERT_TRUE(reads(codec, "<ScheduleRecordParam ScheduleReocrdType='4' />"));
    EXPECT_EQ(0, codec.getScheduleRecordParam().getScheduleRecordType());
}
