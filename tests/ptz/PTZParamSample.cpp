#include "tests/ptz/PTZParamSample.h"

#include <gtest/gtest.h>

PTZParam sampleHead()
{
    PTZParam param;
    param.setPTZEnableFlag(true);
    param.setCameraId(2);
    param.setPTZDeviceId(3);
    param.setPTZProtocol(4);
    param.setComId(5);
    param.setBaudRate(2400);
    param.setDataBits(8);
    param.setStopBits(6);
    param.setParity(7);
    return param;
}

PTZParam headOfAnEmptyNode()
{
    PTZParam param;
    param.setCameraId(1);
    param.setPTZDeviceId(1);
    param.setComId(1);
    return param;
}

void expectHead(const PTZParam& expected, const PTZParam& param)
{
    EXPECT_EQ(expected.getPTZEnableFlag(), param.getPTZEnableFlag());
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getPTZDeviceId(), param.getPTZDeviceId());
    EXPECT_EQ(expected.getPTZProtocol(), param.getPTZProtocol());
    EXPECT_EQ(expected.getComId(), param.getComId());
    EXPECT_EQ(expected.getBaudRate(), param.getBaudRate());
    EXPECT_EQ(expected.getDataBits(), param.getDataBits());
    EXPECT_EQ(expected.getStopBits(), param.getStopBits());
    EXPECT_EQ(expected.getParity(), param.getParity());
}

void expectHeads(const std::vector<PTZParam>& expected, const std::vector<PTZParam>& params)
{
    ASSERT_EQ(expected.size(), params.size());
    for (std::size_t number = 0; number < params.size(); ++number)
        expectHead(expected[number], params[number]);
}
