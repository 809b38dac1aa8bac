#include "alarm/AlarmLogQueryParamXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmLogQueryParam sample()
{
    AlarmLogQueryParam param;
    param.setDeviceId("D-17");
    param.setDeviceIp("192.0.2.17");
    param.setStartTime(1425254400);
    param.setEndTime(4294967295UL);
    param.setAlarmType(13);
    return param;
}

void expectParam(const AlarmLogQueryParam& expected, const AlarmLogQueryParam& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getDeviceIp(), param.getDeviceIp());
    EXPECT_EQ(expected.getStartTime(), param.getStartTime());
    EXPECT_EQ(expected.getEndTime(), param.getEndTime());
    EXPECT_EQ(expected.getAlarmType(), param.getAlarmType());
}

} // namespace

TEST(AlarmLogQueryParamXml, Writes)
{
    AlarmLogQueryParamXml codec;
    codec.setAlarmLogQueryParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmLogQueryParamXml.document.xml"));
}

TEST(AlarmLogQueryParamXml, Reads)
{
    AlarmLogQueryParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmLogQueryParamXml.document.xml")));
    expectParam(sample(), codec.getAlarmLogQueryParam());
}

TEST(AlarmLogQueryParamXml, ResetsWhatIsMissing)
{
    AlarmLogQueryParamXml codec;
    codec.setAlarmLogQueryParam(sample());
    ASSERT_TRUE(reads(codec, "<AlarmLogQueryParam />"));
    expectParam(AlarmLogQueryParam(), codec.getAlarmLogQueryParam());
}
