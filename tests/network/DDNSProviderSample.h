#pragma once

#include "domain/NetworkRecords.h"

/// A provider with a distinct value in every field.
DDNSProvider sampleProvider();
void expectProvider(const DDNSProvider& expected, const DDNSProvider& provider);
