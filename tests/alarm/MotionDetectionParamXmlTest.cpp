#include "alarm/MotionDetectionParamXml.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/alarm/MotionDetectionParamSample.h"
#include "tests/support/Documents.h"

TEST(MotionDetectionParamXml, Writes)
{
    MotionDetectionParamXml codec;
    codec.setMotionDetectionParam(sampleMotionDetectionParam());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/MotionDetectionParamXml.document.xml"));
}

TEST(MotionDetectionParamXml, Reads)
{
    MotionDetectionParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionParamXml.document.xml")));
    expectMotionDetectionParam(sampleMotionDetectionParam(), codec.getMotionDetectionParam());
}

TEST(MotionDetectionParamXml, ResetsAttributesAndLeavesTheAreasThatAreMissing)
{
    MotionDetectionParamXml codec;
    codec.setMotionDetectionParam(sampleMotionDetectionParam());
    ASSERT_TRUE(reads(codec, "<MotionDetectionParam />"));
    MotionDetectionParam expected;
    expected.setDetectionArea(sampleMotionDetectionParam().getDetectionArea());
    expectMotionDetectionParam(expected, codec.getMotionDetectionParam());
}

TEST(MotionDetectionParamXml, AddsAreasBehindThoseThatAreThere)
{
    MotionDetectionParamXml codec;
    codec.getMotionDetectionParam().getDetectionArea().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionParamXml.document.xml")));
    expectDetectionAreas({DetectionArea(), sampleDetectionArea()}, codec.getMotionDetectionParam().getDetectionArea());
}
