#pragma once

#include "domain/AlarmRecords.h"

/// @file
/// An event and its parameter with a distinct value in every field.

OcclusionDetectionParam sampleOcclusionDetectionParam();
void expectOcclusionDetectionParam(const OcclusionDetectionParam& expected, const OcclusionDetectionParam& param);

OcclusionDetectionEvent sampleOcclusionDetectionEvent();
void expectOcclusionDetectionEvent(const OcclusionDetectionEvent& expected, const OcclusionDetectionEvent& event);
