#include "tests/alarm/DetectionAreaSample.h"

#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>

DetectionArea sampleDetectionArea()
{
    DetectionArea area;
    area.setTopX(20);
    area.setTopY(21);
    area.setWidth(22);
    area.setHigh(23);
    return area;
}

void expectDetectionArea(const DetectionArea& expected, const DetectionArea& area)
{
    EXPECT_EQ(expected.getTopX(), area.getTopX());
    EXPECT_EQ(expected.getTopY(), area.getTopY());
    EXPECT_EQ(expected.getWidth(), area.getWidth());
    EXPECT_EQ(expected.getHigh(), area.getHigh());
}

void expectDetectionAreas(const std::vector<DetectionArea>& expected, const std::vector<DetectionArea>& areas)
{
    ASSERT_EQ(expected.size(), areas.size());
    for (std::size_t number = 0; number < areas.size(); ++number)
        expectDetectionArea(expected[number], areas[number]);
}

DetectionAreaV2 sampleDetectionAreaV2()
{
    DetectionAreaV2 area;
    area.setWidthCellNumber(24);
    area.setHighCellNumber(25);
    area.setData("\x01\x00\xFF\x80", 4);
    return area;
}

void expectDetectionAreaV2(const DetectionAreaV2& expected, const DetectionAreaV2& area)
{
    EXPECT_EQ(expected.getWidthCellNumber(), area.getWidthCellNumber());
    EXPECT_EQ(expected.getHighCellNumber(), area.getHighCellNumber());
    ASSERT_EQ(expected.getDataLength(), area.getDataLength());
    EXPECT_EQ(0, std::memcmp(expected.getData(), area.getData(), static_cast<std::size_t>(area.getDataLength())));
}
