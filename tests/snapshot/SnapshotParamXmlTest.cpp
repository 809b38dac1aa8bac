#include "snapshot/SnapshotParamXml.h"

#include "tests/support/Documents.h"

namespace
{

SnapshotParam sample()
{
    SnapshotParam param;
    param.setCameraId(1);
    param.setSnapshotEnableFlag(true);
    param.setImageFormatId(3);
    param.setQuality(4);
    param.setShootTimes(5);
    param.setPhotoFormat(6);
    return param;
}

void expectParam(const SnapshotParam& expected, const SnapshotParam& param)
{
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getSnapshotEnableFlag(), param.getSnapshotEnableFlag());
    EXPECT_EQ(expected.getImageFormatId(), param.getImageFormatId());
    EXPECT_EQ(expected.getQuality(), param.getQuality());
    EXPECT_EQ(expected.getShootTimes(), param.getShootTimes());
    EXPECT_EQ(expected.getPhotoFormat(), param.getPhotoFormat());
}

} // namespace

TEST(SnapshotParamXml, Writes)
{
    SnapshotParamXml codec;
    codec.setSnapshotParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotParamXml.document.xml"));
}

TEST(SnapshotParamXml, Reads)
{
    SnapshotParamXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotParamXml.document.xml")));
    expectParam(sample(), codec.getSnapshotParam());
}

TEST(SnapshotParamXml, ResetsWhatIsMissing)
{
    SnapshotParamXml codec;
    codec.setSnapshotParam(sample());
    ASSERT_TRUE(reads(codec, "<SnapshotParam />"));
    expectParam(SnapshotParam(), codec.getSnapshotParam());
}
