#include "record/RecordQualityParamXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

namespace
{

RecordQualityParam sample()
{
    RecordQualityParam param;
    param.setCameraId(1);
    param.setVideoEncodeQuality(sampleVideoQuality(11));
    param.setAudioEncodeQuality(sampleAudioQuality(31));
    return param;
}

void expectParam(const RecordQualityParam& expected, const RecordQualityParam& param)
{
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    expectVideoQuality(expected.getVideoEncodeQuality(), param.getVideoEncodeQuality());
    expectAudioQuality(expected.getAudioEncodeQuality(), param.getAudioEncodeQuality());
}

} // namespace

TEST(RecordQualityParamXml, Writes)
{
    RecordQualityParamXml codec;
    codec.setRecordQualityParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordQualityParamXml.document.xml"));
}

TEST(RecordQualityParamXml, Reads)
{
    RecordQualityParamXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordQualityParamXml.document.xml")));
    expectParam(sample(), codec.getRecordQualityParam());
}

TEST(RecordQualityParamXml, ResetsTheCameraAndLeavesChildrenThatAreMissing)
{
    RecordQualityParamXml codec;
    codec.setRecordQualityParam(sample());
    ASSERT_TRUE(reads(codec, "<RecordQualityParam />"));
    RecordQualityParam expected = sample();
    expected.setCameraId(0);
    expectParam(expected, codec.getRecordQualityParam());
}

TEST(RecordQualityParamXml, ReplacesAChildByTheOneThatIsThere)
{
    RecordQualityParamXml codec;
    codec.setRecordQualityParam(sample());
    ASSERT_TRUE(reads(codec, "<RecordQualityParam CameraId='1'><VideoEncodeQuality Quant='9' /></RecordQualityParam>"));
    RecordQualityParam expected = sample();
    expected.setVideoEncodeQuality(VideoEncodeQuality());
    expected.getVideoEncodeQuality().setQuant(9);
    expectParam(expected, codec.getRecordQualityParam());
}
