#pragma once

#include "domain/CoreRecords.h"
#include "domain/MediaRecords.h"

// Areas of pictures and what covers them, with a distinct value in every field.

AreaParam sampleArea();
void expectArea(const AreaParam& expected, const AreaParam& area);

AreaParamV2 sampleFractionalArea();
void expectFractionalArea(const AreaParamV2& expected, const AreaParamV2& area);

MosaicParam sampleMosaic();
void expectMosaic(const MosaicParam& expected, const MosaicParam& mosaic);

ColorParam sampleColor();
void expectColor(const ColorParam& expected, const ColorParam& color);

ROIInfoParam sampleRegion();
void expectRegion(const ROIInfoParam& expected, const ROIInfoParam& region);
