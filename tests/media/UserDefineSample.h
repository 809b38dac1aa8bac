#pragma once

#include "domain/MediaRecords.h"

/// Values with a distinct text in every field: numbered from @p first on.
/// @{
UserDefineParamItem sampleUserItem(int first);
UserDefineParam sampleUserParam(int first);
/// @}

void expectUserItem(const UserDefineParamItem& expected, const UserDefineParamItem& item);
void expectUserParam(const UserDefineParam& expected, const UserDefineParam& param);
