#include "device/CpuStatisticXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

TEST(CpuStatisticXml, Writes)
{
    CpuStatisticXml codec;
    codec.setCpuStatistic(sampleCpu());
    EXPECT_TRUE(matchesGolden(written(codec), "device/CpuStatisticXml.document.xml"));
}

TEST(CpuStatisticXml, Reads)
{
    CpuStatisticXml codec;
    ASSERT_TRUE(reads(codec, golden("device/CpuStatisticXml.document.xml")));
    expectCpu(sampleCpu(), codec.getCpuStatistic());
}

TEST(CpuStatisticXml, ResetsWhatIsMissing)
{
    CpuStatisticXml codec;
    codec.setCpuStatistic(sampleCpu());
    ASSERT_TRUE(reads(codec, "<CpuStatistic />"));
    expectCpu(CpuStatistic(), codec.getCpuStatistic());
}

TEST(CpuStatisticXml, CarriesEveryPercentageUnchanged)
{
    for (const float percent : {0.0F, 0.1F, 33.3333F, 99.75F, 100.0F, -1.5F, 1e-30F})
    {
        CpuStatisticXml writer;
        writer.getCpuStatistic().setCpuPercent(percent);
        CpuStatisticXml reader;
        ASSERT_TRUE(reads(reader, written(writer)));
        EXPECT_EQ(percent, reader.getCpuStatistic().getCpuPercent());
    }
}

TEST(CpuStatisticXml, TakesWhatIsNoNumberForZeroAndNarrowsTheStatus)
{
    CpuStatisticXml codec;
    codec.setCpuStatistic(sampleCpu());
    ASSERT_TRUE(reads(codec, "<CpuStatistic CpuPercent='busy' CpuStatus='257' />"));
    EXPECT_EQ(0, codec.getCpuStatistic().getCpuPercent());
    EXPECT_EQ(1, codec.getCpuStatistic().getCpuStatus());
}
