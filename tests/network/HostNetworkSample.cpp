#include "tests/network/HostNetworkSample.h"

#include <gtest/gtest.h>

HostNetwork sampleNetwork()
{
    HostNetwork network;
    network.setDeviceId("D-17");
    network.setNetId(2);
    network.setAutoGetIpFlag(true);
    network.setLocalIp("192.0.2.17");
    network.setLocalSubnetMask("255.255.255.0");
    network.setGateway("192.0.2.1");
    network.setAutoGetDNSFlag(false);
    network.setPrimaryDNSIp("192.0.2.53");
    network.setSpareDNSIp("192.0.2.54");
    network.setControlPort(30001);
    network.setRegisterPort(30002);
    network.setHttpPort(8080);
    network.setIPProtoVer(4);
    return network;
}

void expectNetwork(const HostNetwork& expected, const HostNetwork& network)
{
    EXPECT_EQ(expected.getDeviceId(), network.getDeviceId());
    EXPECT_EQ(expected.getNetId(), network.getNetId());
    EXPECT_EQ(expected.getAutoGetIpFlag(), network.getAutoGetIpFlag());
    EXPECT_EQ(expected.getLocalIp(), network.getLocalIp());
    EXPECT_EQ(expected.getLocalSubnetMask(), network.getLocalSubnetMask());
    EXPECT_EQ(expected.getGateway(), network.getGateway());
    EXPECT_EQ(expected.getAutoGetDNSFlag(), network.getAutoGetDNSFlag());
    EXPECT_EQ(expected.getPrimaryDNSIp(), network.getPrimaryDNSIp());
    EXPECT_EQ(expected.getSpareDNSIp(), network.getSpareDNSIp());
    EXPECT_EQ(expected.getControlPort(), network.getControlPort());
    EXPECT_EQ(expected.getRegisterPort(), network.getRegisterPort());
    EXPECT_EQ(expected.getHttpPort(), network.getHttpPort());
    EXPECT_EQ(expected.getIPProtoVer(), network.getIPProtoVer());
}
