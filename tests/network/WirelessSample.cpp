#include "tests/network/WirelessSample.h"

#include <gtest/gtest.h>

WifiParam sampleWifi()
{
    WifiParam param;
    param.setEnableFlag(true);
    param.setSSID("Yard");
    param.setPassword("not told");
    param.setUseDynamicIPFlag(false);
    param.setStaticIP("192.0.2.21");
    param.setSubnetMask("255.255.255.0");
    param.setGateway("192.0.2.1");
    param.setDNS("192.0.2.53");
    return param;
}

void expectWifi(const WifiParam& expected, const WifiParam& param)
{
    EXPECT_EQ(expected.getEnableFlag(), param.getEnableFlag());
    EXPECT_EQ(expected.getSSID(), param.getSSID());
    EXPECT_TRUE(expected.getPassword() == param.getPassword()); // without the texts
    EXPECT_EQ(expected.getUseDynamicIPFlag(), param.getUseDynamicIPFlag());
    EXPECT_EQ(expected.getStaticIP(), param.getStaticIP());
    EXPECT_EQ(expected.getSubnetMask(), param.getSubnetMask());
    EXPECT_EQ(expected.getGateway(), param.getGateway());
    EXPECT_EQ(expected.getDNS(), param.getDNS());
}

WifiHotspotParam sampleHotspot()
{
    WifiHotspotParam hotspot;
    hotspot.setSSID("Yard");
    hotspot.setEncryptionType("WPA2-PSK");
    hotspot.setSignalQuality(71);
    return hotspot;
}

void expectHotspot(const WifiHotspotParam& expected, const WifiHotspotParam& hotspot)
{
    EXPECT_EQ(expected.getSSID(), hotspot.getSSID());
    EXPECT_EQ(expected.getEncryptionType(), hotspot.getEncryptionType());
    EXPECT_EQ(expected.getSignalQuality(), hotspot.getSignalQuality());
}
