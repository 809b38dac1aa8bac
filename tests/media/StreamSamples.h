#pragma once

#include "domain/MediaRecords.h"

/// Records with a distinct value in every field: numbers from @p first on, in the order of their documents.
/// @{
VideoEncodeQuality sampleVideoQuality(int first);
AudioEncodeQuality sampleAudioQuality(int first);
AVStreamParam sampleStream(int first);
/// @}

void expectVideoQuality(const VideoEncodeQuality& expected, const VideoEncodeQuality& quality);
void expectAudioQuality(const AudioEncodeQuality& expected, const AudioEncodeQuality& quality);
void expectStream(const AVStreamParam& expected, const AVStreamParam& stream);
