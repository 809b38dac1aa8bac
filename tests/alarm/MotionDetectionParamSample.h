#pragma once

#include "domain/AlarmRecords.h"

/// @file
/// Parameters with a distinct value in every field.

MotionDetectionParam sampleMotionDetectionParam();
void expectMotionDetectionParam(const MotionDetectionParam& expected, const MotionDetectionParam& param);

MotionDetectionParamV2 sampleMotionDetectionParamV2();
void expectMotionDetectionParamV2(const MotionDetectionParamV2& expected, const MotionDetectionParamV2& param);
