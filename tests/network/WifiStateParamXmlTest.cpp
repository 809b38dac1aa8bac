#include "network/WifiStateParamXml.h"

#include "tests/support/Documents.h"

namespace
{

WifiStateParam sample()
{
    WifiStateParam param;
    param.setConnectState(2);
    param.setSignalQuality(71);
    return param;
}

void expectParam(const WifiStateParam& expected, const WifiStateParam& param)
{
    EXPECT_EQ(expected.getConnectState(), param.getConnectState());
    EXPECT_EQ(expected.getSignalQuality(), param.getSignalQuality());
}

} // namespace

TEST(WifiStateParamXml, Writes)
{
    WifiStateParamXml codec;
    codec.setWifiStateParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/WifiStateParamXml.document.xml"));
}

TEST(WifiStateParamXml, Reads)
{
    WifiStateParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/WifiStateParamXml.document.xml")));
    expectParam(sample(), codec.getWifiStateParam());
}

TEST(WifiStateParamXml, LeavesWhatIsMissing)
{
    WifiStateParamXml codec;
    codec.setWifiStateParam(sample());
    ASSERT_TRUE(reads(codec, "<WifiStateParam />"));
    expectParam(sample(), codec.getWifiStateParam());
}
