#pragma once

#include "domain/NetworkRecords.h"

/// A distinct value in every field.
HostNetwork sampleNetwork();

void expectNetwork(const HostNetwork& expected, const HostNetwork& network);
