#pragma once

/// @file
/// What the program measures. Each function adds its benchmarks, and raises `std::runtime_error` if the two ways
/// of a comparison do not do the same.

void addCameraDeviceList();
void addDeviceBaseInfoList();
void addNTPParam();
void addSafePointer();
void addVideoStreamRequest();
