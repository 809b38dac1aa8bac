#pragma once

#include "domain/DeviceRecords.h"

#include <string>

// Abilities with a distinct value in every field, and their comparison field by field.

VideoResolution resolution(int height, int width, const std::string& name);

EncoderAbility sampleEncoderAbility();
void expectEncoderAbility(const EncoderAbility& expected, const EncoderAbility& read);

CameraAbility sampleCameraAbility();
void expectCameraAbility(const CameraAbility& expected, const CameraAbility& read);

VideoAbility sampleVideoAbility();
void expectVideoAbility(const VideoAbility& expected, const VideoAbility& read);

VideoResolution sampleVideoResolution();
void expectVideoResolution(const VideoResolution& expected, const VideoResolution& read);

VideoSystem sampleVideoSystem();
void expectVideoSystem(const VideoSystem& expected, const VideoSystem& read);

StreamEncodeAbility sampleStreamEncodeAbility();
void expectStreamEncodeAbility(const StreamEncodeAbility& expected, const StreamEncodeAbility& read);

AVStreamAttributeAbility sampleAVStreamAttributeAbility();
void expectAVStreamAttributeAbility(const AVStreamAttributeAbility& expected, const AVStreamAttributeAbility& read);

AVStreamAbility sampleAVStreamAbility();
void expectAVStreamAbility(const AVStreamAbility& expected, const AVStreamAbility& read);

CameraExAbility sampleCameraExAbility();
void expectCameraExAbility(const CameraExAbility& expected, const CameraExAbility& read);

VideoResolutionAbility sampleVideoResolutionAbility();
void expectVideoResolutionAbility(const VideoResolutionAbility& expected, const VideoResolutionAbility& read);

VideoEncoderAbility sampleVideoEncoderAbility();
void expectVideoEncoderAbility(const VideoEncoderAbility& expected, const VideoEncoderAbility& read);

SourceResolutionAbility sampleSourceResolutionAbility();
void expectSourceResolutionAbility(const SourceResolutionAbility& expected, const SourceResolutionAbility& read);

VideoExAbility sampleVideoExAbility();
void expectVideoExAbility(const VideoExAbility& expected, const VideoExAbility& read);
