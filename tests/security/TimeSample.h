#pragma once

#include "domain/CoreRecords.h"

/// A point in time with a distinct value in every field.
TimeStruct sampleTime();
/// One that differs from that in every field.
TimeStruct laterTime();

void expectTime(const TimeStruct& expected, const TimeStruct& time);
