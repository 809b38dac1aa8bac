#include "network/DeviceAccessParamXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceAccessParam sample()
{
    DeviceAccessParam param;
    param.setLocalIp("192.0.2.17");
    param.setControlPort(30001);
    param.setVideoTransferPort(30003);
    param.setAudioTransferPort(30004);
    param.setHttpPort(8080);
    return param;
}

void expectParam(const DeviceAccessParam& expected, const DeviceAccessParam& param)
{
    EXPECT_EQ(expected.getLocalIp(), param.getLocalIp());
    EXPECT_EQ(expected.getControlPort(), param.getControlPort());
    EXPECT_EQ(expected.getVideoTransferPort(), param.getVideoTransferPort());
    EXPECT_EQ(expected.getAudioTransferPort(), param.getAudioTransferPort());
    EXPECT_EQ(expected.getHttpPort(), param.getHttpPort());
}

} // namespace

TEST(DeviceAccessParamXml, Writes)
{
    DeviceAccessParamXml codec;
    codec.setDeviceAccessParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/DeviceAccessParamXml.document.xml"));
}

TEST(DeviceAccessParamXml, Reads)
{
    DeviceAccessParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/DeviceAccessParamXml.document.xml")));
    expectParam(sample(), codec.getDeviceAccessParam());
}

TEST(DeviceAccessParamXml, ResetsWhatIsMissing)
{
    DeviceAccessParamXml codec;
    codec.setDeviceAccessParam(sample());
    ASSERT_TRUE(reads(codec, "<DeviceAccessParam />"));
    expectParam(DeviceAccessParam(), codec.getDeviceAccessParam());
}
