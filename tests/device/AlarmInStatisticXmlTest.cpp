#include "device/AlarmInStatisticXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

TEST(AlarmInStatisticXml, Writes)
{
    AlarmInStatisticXml codec;
    codec.setAlarmInStatistic(sampleInput());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AlarmInStatisticXml.document.xml"));
}

TEST(AlarmInStatisticXml, Reads)
{
    AlarmInStatisticXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AlarmInStatisticXml.document.xml")));
    expectInput(sampleInput(), codec.getAlarmInStatistic());
}

TEST(AlarmInStatisticXml, ResetsWhatIsMissingButTheStatus)
{
    AlarmInStatisticXml codec;
    codec.setAlarmInStatistic(sampleInput());
    ASSERT_TRUE(reads(codec, "<AlarmInStatistic />"));
    AlarmInStatistic expected;
    expected.setAlarmInStatus(1);
    expectInput(expected, codec.getAlarmInStatistic());
}

TEST(AlarmInStatisticXml, ReadsAStatusThatIsThere)
{
    AlarmInStatisticXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmInStatistic AlarmInStatus='0' LastAlarmTime='-7x' />"));
    EXPECT_EQ(0, codec.getAlarmInStatistic().getAlarmInStatus());
    EXPECT_EQ(-7, codec.getAlarmInStatistic().getLastAlarmTime());
}
