#pragma once

#include "domain/MediaRecords.h"

#include <vector>

// Texts on pictures, with a distinct value in every field.

OSDInfoEx sampleText();
void expectText(const OSDInfoEx& expected, const OSDInfoEx& info);

OSDPrintTime samplePrintTime();
void expectPrintTime(const OSDPrintTime& expected, const OSDPrintTime& time);

/// A camera with two texts, and one with none.
std::vector<VideoOSDInfoEx> sampleVideos();
void expectVideo(const VideoOSDInfoEx& expected, const VideoOSDInfoEx& video);
void expectVideos(const std::vector<VideoOSDInfoEx>& expected, const std::vector<VideoOSDInfoEx>& videos);
