#pragma once

#include "domain/DeviceRecords.h"

#include <gtest/gtest.h>
#include <vector>

// Abilities with a distinct value in every field, and their comparison field by field.

/// Compares two lists item by item.
template <class Record>
void expectList(const std::vector<Record>& expected, const std::vector<Record>& read,
                void (*expectItem)(const Record& expected, const Record& read))
{
    ASSERT_EQ(expected.size(), read.size());
    for (std::size_t number = 0; number < read.size(); ++number)
    {
        SCOPED_TRACE(number);
        expectItem(expected[number], read[number]);
    }
}

AudioAbility sampleAudioAbility();
void expectAudioAbility(const AudioAbility& expected, const AudioAbility& read);

AudioDecodeType sampleAudioDecodeType();
void expectAudioDecodeType(const AudioDecodeType& expected, const AudioDecodeType& read);

AudioEncodeType sampleAudioEncodeType();
void expectAudioEncodeType(const AudioEncodeType& expected, const AudioEncodeType& read);

AudioInType sampleAudioInType();
void expectAudioInType(const AudioInType& expected, const AudioInType& read);

AudioOutType sampleAudioOutType();
void expectAudioOutType(const AudioOutType& expected, const AudioOutType& read);

AudioExAbility sampleAudioExAbility();
void expectAudioExAbility(const AudioExAbility& expected, const AudioExAbility& read);

BlindAbility sampleBlindAbility();
void expectBlindAbility(const BlindAbility& expected, const BlindAbility& read);

FileSystemAbility sampleFileSystemAbility();
void expectFileSystemAbility(const FileSystemAbility& expected, const FileSystemAbility& read);

MotionDetectionAbility sampleMotionDetectionAbility();
void expectMotionDetectionAbility(const MotionDetectionAbility& expected, const MotionDetectionAbility& read);

MotionDetectionExAbility sampleMotionDetectionExAbility();
void expectMotionDetectionExAbility(const MotionDetectionExAbility& expected, const MotionDetectionExAbility& read);

PTZAbility samplePTZAbility();
void expectPTZAbility(const PTZAbility& expected, const PTZAbility& read);

ROIAbility sampleROIAbility();
void expectROIAbility(const ROIAbility& expected, const ROIAbility& read);

WifiAbilityParam sampleWifiAbilityParam();
void expectWifiAbilityParam(const WifiAbilityParam& expected, const WifiAbilityParam& read);

IPCNetworkCardAbility sampleIPCNetworkCardAbility();
void expectIPCNetworkCardAbility(const IPCNetworkCardAbility& expected, const IPCNetworkCardAbility& read);

WorkingMode sampleWorkingMode();
void expectWorkingMode(const WorkingMode& expected, const WorkingMode& read);

LanguageType sampleLanguageType();
void expectLanguageType(const LanguageType& expected, const LanguageType& read);
