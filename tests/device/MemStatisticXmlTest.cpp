#include "device/MemStatisticXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

TEST(MemStatisticXml, Writes)
{
    MemStatisticXml codec;
    codec.setMemStatistic(sampleMemory());
    EXPECT_TRUE(matchesGolden(written(codec), "device/MemStatisticXml.document.xml"));
}

TEST(MemStatisticXml, Reads)
{
    MemStatisticXml codec;
    ASSERT_TRUE(reads(codec, golden("device/MemStatisticXml.document.xml")));
    expectMemory(sampleMemory(), codec.getMemStatistic());
}

TEST(MemStatisticXml, ResetsWhatIsMissing)
{
    MemStatisticXml codec;
    codec.setMemStatistic(sampleMemory());
    ASSERT_TRUE(reads(codec, "<MemStatistic />"));
    expectMemory(MemStatistic(), codec.getMemStatistic());
}
