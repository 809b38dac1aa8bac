#include "device/AlarmOutStatisticXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

TEST(AlarmOutStatisticXml, Writes)
{
    AlarmOutStatisticXml codec;
    codec.setAlarmOutStatistic(sampleOutput());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AlarmOutStatisticXml.document.xml"));
}

TEST(AlarmOutStatisticXml, Reads)
{
    AlarmOutStatisticXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AlarmOutStatisticXml.document.xml")));
    expectOutput(sampleOutput(), codec.getAlarmOutStatistic());
}

TEST(AlarmOutStatisticXml, ResetsWhatIsMissingButTheStatus)
{
    AlarmOutStatisticXml codec;
    codec.setAlarmOutStatistic(sampleOutput());
    ASSERT_TRUE(reads(codec, "<AlarmOutStatistic />"));
    AlarmOutStatistic expected;
    expected.setAlarmOutStatus(1);
    expectOutput(expected, codec.getAlarmOutStatistic());
}

TEST(AlarmOutStatisticXml, ReadsAStatusThatIsThere)
{
    AlarmOutStatisticXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmOutStatistic AlarmOutStatus='0' LastAlarmTime='-7x' />"));
    EXPECT_EQ(0, codec.getAlarmOutStatistic().getAlarmOutStatus());
    EXPECT_EQ(-7, codec.getAlarmOutStatistic().getLastAlarmTime());
}
