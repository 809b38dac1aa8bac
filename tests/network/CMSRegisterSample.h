#pragma once

#include "domain/NetworkRecords.h"

/// What a device registers with, with a distinct value in every field.
CMSRegisterServerParam sampleServers();
void expectServers(const CMSRegisterServerParam& expected, const CMSRegisterServerParam& server);

CMSExternConfigParam sampleConfig();
void expectConfig(const CMSExternConfigParam& expected, const CMSExternConfigParam& config);

CMSDeviceRegisterInfoParam sampleDeviceInfo();
void expectDeviceInfo(const CMSDeviceRegisterInfoParam& expected, const CMSDeviceRegisterInfoParam& info);

CMSCameraRegisterInfoParam sampleCameraInfo();
void expectCameraInfo(const CMSCameraRegisterInfoParam& expected, const CMSCameraRegisterInfoParam& info);
