#pragma once

#include "domain/PtzRecords.h"

/// A port with a distinct value in every field.
RS485Device samplePort();
/// The same behind an interface of kind 1.
ExternInterface sampleInterface();

void expectPort(const RS485Device& expected, const RS485Device& port);
void expectInterface(const ExternInterface& expected, const ExternInterface& interface);
