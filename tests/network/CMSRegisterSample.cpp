#include "tests/network/CMSRegisterSample.h"

#include <gtest/gtest.h>

CMSRegisterServerParam sampleServers()
{
    CMSRegisterServerParam server;
    server.setRegisterSrvIP1("192.0.2.1");
    server.setRegisterSrvPort1(6001);
    server.setRegisterSrvIP2("192.0.2.2");
    server.setRegisterSrvPort2(6002);
    server.setRegisterSrvIP3("192.0.2.3");
    server.setRegisterSrvPort3(6003);
    server.setRegisterSrvIP4("192.0.2.4");
    server.setRegisterSrvPort4(6004);
    return server;
}

void expectServers(const CMSRegisterServerParam& expected, const CMSRegisterServerParam& server)
{
    EXPECT_EQ(expected.getRegisterSrvIP1(), server.getRegisterSrvIP1());
    EXPECT_EQ(expected.getRegisterSrvPort1(), server.getRegisterSrvPort1());
    EXPECT_EQ(expected.getRegisterSrvIP2(), server.getRegisterSrvIP2());
    EXPECT_EQ(expected.getRegisterSrvPort2(), server.getRegisterSrvPort2());
    EXPECT_EQ(expected.getRegisterSrvIP3(), server.getRegisterSrvIP3());
    EXPECT_EQ(expected.getRegisterSrvPort3(), server.getRegisterSrvPort3());
    EXPECT_EQ(expected.getRegisterSrvIP4(), server.getRegisterSrvIP4());
    EXPECT_EQ(expected.getRegisterSrvPort4(), server.getRegisterSrvPort4());
}

CMSExternConfigParam sampleConfig()
{
    CMSExternConfigParam config;
    config.setExternConfig1("value 1");
    config.setExternConfig2("value 2");
    config.setExternConfig3("value 3");
    return config;
}

void expectConfig(const CMSExternConfigParam& expected, const CMSExternConfigParam& config)
{
    EXPECT_EQ(expected.getExternConfig1(), config.getExternConfig1());
    EXPECT_EQ(expected.getExternConfig2(), config.getExternConfig2());
    EXPECT_EQ(expected.getExternConfig3(), config.getExternConfig3());
}

CMSDeviceRegisterInfoParam sampleDeviceInfo()
{
    CMSDeviceRegisterInfoParam info;
    info.setDeviceRegisterID("R-17");
    return info;
}

void expectDeviceInfo(const CMSDeviceRegisterInfoParam& expected, const CMSDeviceRegisterInfoParam& info)
{
    EXPECT_EQ(expected.getDeviceRegisterID(), info.getDeviceRegisterID());
}

CMSCameraRegisterInfoParam sampleCameraInfo()
{
    CMSCameraRegisterInfoParam info;
    info.setCameraID(3);
    info.setCameraRegisterID("R-17-3");
    return info;
}

void expectCameraInfo(const CMSCameraRegisterInfoParam& expected, const CMSCameraRegisterInfoParam& info)
{
    EXPECT_EQ(expected.getCameraID(), info.getCameraID());
    EXPECT_EQ(expected.getCameraRegisterID(), info.getCameraRegisterID());
}
