#include "security/LogRequestParamXml.h"

#include "tests/support/Documents.h"

namespace
{

LogRequestParam sample()
{
    LogRequestParam param;
    param.setDeviceId("D-17");
    param.setDeviceIp("192.0.2.17");
    param.setCameraId(3);
    param.setUserName("operator");
    param.setSelectMode(2);
    param.setMajorType(4);
    param.setMinorType(5);
    param.setStartTime(1425283200);
    param.setEndTime(4102444800);
    return param;
}

void expectParam(const LogRequestParam& expected, const LogRequestParam& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getDeviceIp(), param.getDeviceIp());
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getUserName(), param.getUserName());
    EXPECT_EQ(expected.getSelectMode(), param.getSelectMode());
    EXPECT_EQ(expected.getMajorType(), param.getMajorType());
    EXPECT_EQ(expected.getMinorType(), param.getMinorType());
    EXPECT_EQ(expected.getStartTime(), param.getStartTime());
    EXPECT_EQ(expected.getEndTime(), param.getEndTime());
}

} // namespace

TEST(LogRequestParamXml, Writes)
{
    LogRequestParamXml codec;
    codec.setLogRequestParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "security/LogRequestParamXml.document.xml"));
}

TEST(LogRequestParamXml, Reads)
{
    LogRequestParamXml codec;
    ASSERT_TRUE(reads(codec, golden("security/LogRequestParamXml.document.xml")));
    expectParam(sample(), codec.getLogRequestParam());
}

TEST(LogRequestParamXml, ResetsWhatIsMissing)
{
    LogRequestParamXml codec;
    codec.setLogRequestParam(sample());
    ASSERT_TRUE(reads(codec, "<LogRequestParam />"));
    expectParam(LogRequestParam(), codec.getLogRequestParam());
}

TEST(LogRequestParamXml, RefusesTheRootOfASearchBetweenPointsInTime)
{
    LogRequestParamXml codec;
    codec.setLogRequestParam(sample());
    EXPECT_FALSE(reads(codec, golden("security/LogRequestParamExXml.document.xml")));
    expectParam(sample(), codec.getLogRequestParam());
}
