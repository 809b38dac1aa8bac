#pragma once

#include "domain/NetworkRecords.h"

/// Policies of the mobile network with a distinct value in every field.
I3GMessageConnectPolicyParam sampleMessagePolicy();
void expectMessagePolicy(const I3GMessageConnectPolicyParam& expected, const I3GMessageConnectPolicyParam& policy);

I3GTimeConnectPolicyParam sampleTimePolicy();
void expectTimePolicy(const I3GTimeConnectPolicyParam& expected, const I3GTimeConnectPolicyParam& policy);

I3GPolicyParam samplePolicy();
void expectPolicy(const I3GPolicyParam& expected, const I3GPolicyParam& policy);
