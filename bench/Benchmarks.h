#pragma once

/// @file
/// What the program measures. Each function adds its benchmarks, and raises `std::runtime_error` if the two ways
/// of a comparison do not do the same.

void addCameraDeviceList();
void addDeviceBaseInfoList();
void addDeviceExAbility();
void addI3GPolicyParam();
void addIntelligenceAnalyseAbility();
void addLiveVideoLayoutList();
void addMotionDetectionEventV2();
void addNTPParam();
void addSafePointer();
void addSnapshotPolicy();
void addVideoStreamRequest();
