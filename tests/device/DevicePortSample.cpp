#include "tests/device/DevicePortSample.h"

#include <gtest/gtest.h>

DevicePort samplePorts()
{
    DevicePort port;
    port.setDeviceId("D-4");
    port.setHttpPort(8080);
    port.setControlPort(37777);
    port.setRTCPPort(5005);
    port.setRTPPort(5004);
    port.setRTSPPort(554);
    port.setTCPAVPort(37778);
    port.setRegisterPort(37779);
    port.setReservePort1(60001);
    port.setReservePort2(60002);
    port.setReservePort3(60003);
    port.setReservePort4(60004);
    return port;
}

void expectPorts(const DevicePort& expected, const DevicePort& port)
{
    EXPECT_EQ(expected.getDeviceId(), port.getDeviceId());
    EXPECT_EQ(expected.getHttpPort(), port.getHttpPort());
    EXPECT_EQ(expected.getControlPort(), port.getControlPort());
    EXPECT_EQ(expected.getRTCPPort(), port.getRTCPPort());
    EXPECT_EQ(expected.getRTPPort(), port.getRTPPort());
    EXPECT_EQ(expected.getRTSPPort(), port.getRTSPPort());
    EXPECT_EQ(expected.getTCPAVPort(), port.getTCPAVPort());
    EXPECT_EQ(expected.getRegisterPort(), port.getRegisterPort());
    EXPECT_EQ(expected.getReservePort1(), port.getReservePort1());
    EXPECT_EQ(expected.getReservePort2(), port.getReservePort2());
    EXPECT_EQ(expected.getReservePort3(), port.getReservePort3());
    EXPECT_EQ(expected.getReservePort4(), port.getReservePort4());
}
