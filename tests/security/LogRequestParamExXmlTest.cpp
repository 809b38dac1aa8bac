#include "security/LogRequestParamExXml.h"

#include "tests/security/TimeSample.h"
#include "tests/support/Documents.h"

namespace
{

LogRequestParamEx sample()
{
    LogRequestParamEx param;
    param.setDeviceId("D-17");
    param.setDeviceIp("192.0.2.17");
    param.setCameraId(3);
    param.setUserName("operator");
    param.setSelectMode(2);
    param.setMajorType(4);
    param.setMinorType(5);
    param.setStartTime(sampleTime());
    param.setEndTime(laterTime());
    return param;
}

void expectParam(const LogRequestParamEx& expected, const LogRequestParamEx& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getDeviceIp(), param.getDeviceIp());
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getUserName(), param.getUserName());
    EXPECT_EQ(expected.getSelectMode(), param.getSelectMode());
    EXPECT_EQ(expected.getMajorType(), param.getMajorType());
    EXPECT_EQ(expected.getMinorType(), param.getMinorType());
    expectTime(expected.getStartTime(), param.getStartTime());
    expectTime(expected.getEndTime(), param.getEndTime());
}

} // namespace

TEST(LogRequestParamExXml, Writes)
{
    LogRequestParamExXml codec;
    codec.setLogRequestParamEx(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "security/LogRequestParamExXml.document.xml"));
}

TEST(LogRequestParamExXml, Reads)
{
    LogRequestParamExXml codec;
    ASSERT_TRUE(reads(codec, golden("security/LogRequestParamExXml.document.xml")));
    expectParam(sample(), codec.getLogRequestParamEx());
}

TEST(LogRequestParamExXml, LeavesWhatIsMissing)
{
    LogRequestParamExXml codec;
    codec.setLogRequestParamEx(sample());
    ASSERT_TRUE(reads(codec, "<LogRequestParamEx />"));
    expectParam(sample(), codec.getLogRequestParamEx());
}

TEST(LogRequestParamExXml, ReadsATimeWithoutItsAttributesAsANewOne)
{
    LogRequestParamExXml codec;
    codec.setLogRequestParamEx(sample());
    ASSERT_TRUE(reads(codec, "<LogRequestParamEx><EndTime Year='2016' /></LogRequestParamEx>"));
    TimeStruct endTime;
    endTime.setYear(2016);
    expectTime(sampleTime(), codec.getLogRequestParamEx().getStartTime());
    expectTime(endTime, codec.getLogRequestParamEx().getEndTime());
}

TEST(LogRequestParamExXml, RefusesTheRootOfASearchBySeconds)
{
    LogRequestParamExXml codec;
    codec.setLogRequestParamEx(sample());
    EXPECT_FALSE(reads(codec, golden("security/LogRequestParamXml.document.xml")));
    expectParam(sample(), codec.getLogRequestParamEx());
}
