#include "device/DiskStatisticXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

TEST(DiskStatisticXml, Writes)
{
    DiskStatisticXml codec;
    codec.setDiskStatistic(sampleDisk());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DiskStatisticXml.document.xml"));
}

TEST(DiskStatisticXml, Reads)
{
    DiskStatisticXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DiskStatisticXml.document.xml")));
    expectDisk(sampleDisk(), codec.getDiskStatistic());
}

TEST(DiskStatisticXml, ResetsWhatIsMissing)
{
    DiskStatisticXml codec;
    codec.setDiskStatistic(sampleDisk());
    ASSERT_TRUE(reads(codec, "<DiskStatistic />"));
    expectDisk(DiskStatistic(), codec.getDiskStatistic());
}
