#pragma once

#include "domain/NetworkRecords.h"

/// Wireless networks with a distinct value in every field.
WifiParam sampleWifi();
void expectWifi(const WifiParam& expected, const WifiParam& param);

WifiHotspotParam sampleHotspot();
void expectHotspot(const WifiHotspotParam& expected, const WifiHotspotParam& hotspot);
