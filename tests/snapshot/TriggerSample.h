#pragma once

#include "domain/SnapshotRecords.h"

/// A trigger with a distinct value in every field.
SnapshotTriggerParameter sampleTrigger();

/// The same without the four values of traffic cameras.
SnapshotTriggerParameter samplePlainTrigger();

void expectTrigger(const SnapshotTriggerParameter& expected, const SnapshotTriggerParameter& trigger);
