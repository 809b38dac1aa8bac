#pragma once

#include "domain/DeviceRecords.h"

/// Ports with a distinct value in every field.
DevicePort samplePorts();

void expectPorts(const DevicePort& expected, const DevicePort& port);
