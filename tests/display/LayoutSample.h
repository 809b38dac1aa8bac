#pragma once

#include "domain/DisplayRecords.h"

/// Layouts and their parts with a distinct value in every field: numbers from @p first on.
/// @{
LiveVideoChannel sampleChannel(int first);
LayoutWindow sampleWindow(int first);
LiveVideoLayout sampleLayout(int first);
/// @}

void expectChannel(const LiveVideoChannel& expected, const LiveVideoChannel& channel);
void expectWindow(const LayoutWindow& expected, const LayoutWindow& window);
void expectLayout(const LiveVideoLayout& expected, const LiveVideoLayout& layout);
