#pragma once

#include "domain/AlarmRecords.h"

#include <vector>

/// @file
/// Areas with a distinct value in every field.

DetectionArea sampleDetectionArea();
void expectDetectionArea(const DetectionArea& expected, const DetectionArea& area);
void expectDetectionAreas(const std::vector<DetectionArea>& expected, const std::vector<DetectionArea>& areas);

DetectionAreaV2 sampleDetectionAreaV2();
void expectDetectionAreaV2(const DetectionAreaV2& expected, const DetectionAreaV2& area);
