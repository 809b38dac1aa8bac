#pragma once

#include "domain/DeviceRecords.h"

/// A device with a distinct value in every field.
DeviceBaseInfo sampleDevice();

void expectDevice(const DeviceBaseInfo& expected, const DeviceBaseInfo& info);
