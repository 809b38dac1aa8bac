#pragma once

#include "domain/PtzRecords.h"

/// A head with a distinct value in every field.
PTZParam sampleHead();
/// What nodes give for a head without attributes.
PTZParam headOfAnEmptyNode();

void expectHead(const PTZParam& expected, const PTZParam& param);
void expectHeads(const std::vector<PTZParam>& expected, const std::vector<PTZParam>& params);
