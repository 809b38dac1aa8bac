#pragma once

#include "domain/NetworkRecords.h"

/// Mail settings with a distinct value in every field.
SMTPParam sampleMail();

/// Prints no password.
void expectMail(const SMTPParam& expected, const SMTPParam& param);
