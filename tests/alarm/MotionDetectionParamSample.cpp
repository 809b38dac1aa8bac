#include "tests/alarm/MotionDetectionParamSample.h"

#include "tests/alarm/DetectionAreaSample.h"

#include <gtest/gtest.h>

MotionDetectionParam sampleMotionDetectionParam()
{
    MotionDetectionParam param;
    param.setToUpCheckFlag(true);
    param.setToDownCheckFlag(false);
    param.setToLeftCheckFlag(true);
    param.setToRightCheckFlag(false);
    param.setAreaMaskFlag(true);
    param.setCheckBlockNum(26);
    param.setSensitivity(27);
    param.setImageFormatId(28);
    param.setFrameInterval(29);
    param.getDetectionArea().push_back(sampleDetectionArea());
    return param;
}

void expectMotionDetectionParam(const MotionDetectionParam& expected, const MotionDetectionParam& param)
{
    EXPECT_EQ(expected.getToUpCheckFlag(), param.getToUpCheckFlag());
    EXPECT_EQ(expected.getToDownCheckFlag(), param.getToDownCheckFlag());
    EXPECT_EQ(expected.getToLeftCheckFlag(), param.getToLeftCheckFlag());
    EXPECT_EQ(expected.getToRightCheckFlag(), param.getToRightCheckFlag());
    EXPECT_EQ(expected.getAreaMaskFlag(), param.getAreaMaskFlag());
    EXPECT_EQ(expected.getCheckBlockNum(), param.getCheckBlockNum());
    EXPECT_EQ(expected.getSensitivity(), param.getSensitivity());
    EXPECT_EQ(expected.getImageFormatId(), param.getImageFormatId());
    EXPECT_EQ(expected.getFrameInterval(), param.getFrameInterval());
    expectDetectionAreas(expected.getDetectionArea(), param.getDetectionArea());
}

MotionDetectionParamV2 sampleMotionDetectionParamV2()
{
    MotionDetectionParamV2 param;
    param.setCheckBlockNum(30);
    param.setSensitivity(31);
    param.setDetectionArea(sampleDetectionAreaV2());
    return param;
}

void expectMotionDetectionParamV2(const MotionDetectionParamV2& expected, const MotionDetectionParamV2& param)
{
    EXPECT_EQ(expected.getCheckBlockNum(), param.getCheckBlockNum());
    EXPECT_EQ(expected.getSensitivity(), param.getSensitivity());
    expectDetectionAreaV2(expected.getDetectionArea(), param.getDetectionArea());
}
