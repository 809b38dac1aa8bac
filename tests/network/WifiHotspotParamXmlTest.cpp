#include "network/WifiHotspotParamXml.h"

#include "tests/network/WirelessSample.h"
#include "tests/support/Documents.h"

TEST(WifiHotspotParamXml, Writes)
{
    WifiHotspotParamXml codec;
    codec.setWifiHotspotParam(sampleHotspot());
    EXPECT_TRUE(matchesGolden(written(codec), "network/WifiHotspotParamXml.document.xml"));
}

TEST(WifiHotspotParamXml, Reads)
{
    WifiHotspotParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/WifiHotspotParamXml.document.xml")));
    expectHotspot(sampleHotspot(), codec.getWifiHotspotParam());
}

TEST(WifiHotspotParamXml, LeavesWhatIsMissing)
{
    WifiHotspotParamXml codec;
    codec.setWifiHotspotParam(sampleHotspot());
    ASSERT_TRUE(reads(codec, "<WifiHotspotParam />"));
    expectHotspot(sampleHotspot(), codec.getWifiHotspotParam());
}
