#include "network/HeartbeatParamXml.h"

#include "tests/support/Documents.h"

namespace
{

HeartbeatParam sample()
{
    HeartbeatParam param;
    param.setHeartbeatEnableFlag(true);
    param.setHeartbeatServerIp("192.0.2.6");
    param.setHeartbeatServerPort(30005);
    param.setHeartbeatInterval(15);
    param.setHeartbeatAckTimeout(5);
    param.setHeartbeatTimeoutCount(3);
    param.setIPProtoVer(4);
    return param;
}

void expectParam(const HeartbeatParam& expected, const HeartbeatParam& param)
{
    EXPECT_EQ(expected.getHeartbeatEnableFlag(), param.getHeartbeatEnableFlag());
    EXPECT_EQ(expected.getHeartbeatServerIp(), param.getHeartbeatServerIp());
    EXPECT_EQ(expected.getHeartbeatServerPort(), param.getHeartbeatServerPort());
    EXPECT_EQ(expected.getHeartbeatInterval(), param.getHeartbeatInterval());
    EXPECT_EQ(expected.getHeartbeatAckTimeout(), param.getHeartbeatAckTimeout());
    EXPECT_EQ(expected.getHeartbeatTimeoutCount(), param.getHeartbeatTimeoutCount());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
}

} // namespace

TEST(HeartbeatParamXml, Writes)
{
    HeartbeatParamXml codec;
    codec.setHeartbeatParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/HeartbeatParamXml.document.xml"));
}

TEST(HeartbeatParamXml, Reads)
{
    HeartbeatParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/HeartbeatParamXml.document.xml")));
    expectParam(sample(), codec.getHeartbeatParam());
}

TEST(HeartbeatParamXml, ResetsWhatIsMissing)
{
    HeartbeatParamXml codec;
    codec.setHeartbeatParam(sample());
    ASSERT_TRUE(reads(codec, "<HeartbeatParam />"));
    expectParam(HeartbeatParam(), codec.getHeartbeatParam());
}
