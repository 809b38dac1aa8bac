#include "tests/media/RegionSample.h"

#include <gtest/gtest.h>

AreaParam sampleArea()
{
    AreaParam area;
    area.setTopX(-1);
    area.setTopY(2);
    area.setWidth(30);
    area.setHeight(40);
    return area;
}

void expectArea(const AreaParam& expected, const AreaParam& area)
{
    EXPECT_EQ(expected.getTopX(), area.getTopX());
    EXPECT_EQ(expected.getTopY(), area.getTopY());
    EXPECT_EQ(expected.getWidth(), area.getWidth());
    EXPECT_EQ(expected.getHeight(), area.getHeight());
}

AreaParamV2 sampleFractionalArea()
{
    AreaParamV2 area;
    area.setTopX(0.1);
    area.setTopY(-0.25);
    area.setWidth(30.5);
    area.setHeight(40);
    return area;
}

void expectFractionalArea(const AreaParamV2& expected, const AreaParamV2& area)
{
    EXPECT_EQ(expected.getTopX(), area.getTopX());
    EXPECT_EQ(expected.getTopY(), area.getTopY());
    EXPECT_EQ(expected.getWidth(), area.getWidth());
    EXPECT_EQ(expected.getHeight(), area.getHeight());
}

MosaicParam sampleMosaic()
{
    MosaicParam mosaic;
    mosaic.setWidth(16);
    mosaic.setHeight(8);
    return mosaic;
}

void expectMosaic(const MosaicParam& expected, const MosaicParam& mosaic)
{
    EXPECT_EQ(expected.getWidth(), mosaic.getWidth());
    EXPECT_EQ(expected.getHeight(), mosaic.getHeight());
}

ColorParam sampleColor()
{
    ColorParam color;
    color.setRed(255);
    color.setGreen(128);
    color.setBlue(64);
    color.setAlpha(32);
    return color;
}

void expectColor(const ColorParam& expected, const ColorParam& color)
{
    EXPECT_EQ(expected.getRed(), color.getRed());
    EXPECT_EQ(expected.getGreen(), color.getGreen());
    EXPECT_EQ(expected.getBlue(), color.getBlue());
    EXPECT_EQ(expected.getAlpha(), color.getAlpha());
}

ROIInfoParam sampleRegion()
{
    ROIInfoParam region;
    region.setName("Till");
    region.setStreamID(1);
    region.setIndexID(2);
    region.setEnableFlag(true);
    region.setROILevel(3);
    region.setAreaParam(sampleArea());
    return region;
}

void expectRegion(const ROIInfoParam& expected, const ROIInfoParam& region)
{
    EXPECT_EQ(expected.getName(), region.getName());
    EXPECT_EQ(expected.getStreamID(), region.getStreamID());
    EXPECT_EQ(expected.getIndexID(), region.getIndexID());
    EXPECT_EQ(expected.getEnableFlag(), region.getEnableFlag());
    EXPECT_EQ(expected.getROILevel(), region.getROILevel());
    expectArea(expected.getAreaParam(), region.getAreaParam());
}
