#include "security/LogInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

LogInfo sample()
{
    LogInfo info;
    info.setDeviceId("D-17");
    info.setDeviceIp("192.0.2.17");
    info.setCameraId(3);
    info.setUserName("operator");
    info.setMajorType(4);
    info.setMinorType(5);
    info.setLogTime(4102444800);
    info.setLogData("Restarted");
    return info;
}

void expectInfo(const LogInfo& expected, const LogInfo& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceIp(), info.getDeviceIp());
    EXPECT_EQ(expected.getCameraId(), info.getCameraId());
    EXPECT_EQ(expected.getUserName(), info.getUserName());
    EXPECT_EQ(expected.getMajorType(), info.getMajorType());
    EXPECT_EQ(expected.getMinorType(), info.getMinorType());
    EXPECT_EQ(expected.getLogTime(), info.getLogTime());
    EXPECT_EQ(expected.getLogData(), info.getLogData());
}

} // namespace

TEST(LogInfoXml, Writes)
{
    LogInfoXml codec;
    codec.setLogInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "security/LogInfoXml.document.xml"));
}

TEST(LogInfoXml, Reads)
{
    LogInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("security/LogInfoXml.document.xml")));
    expectInfo(sample(), codec.getLogInfo());
}

TEST(LogInfoXml, ResetsWhatIsMissing)
{
    LogInfoXml codec;
    codec.setLogInfo(sample());
    ASSERT_TRUE(reads(codec, "<LogInfo />"));
    expectInfo(LogInfo(), codec.getLogInfo());
}

TEST(LogInfoXml, CarriesTheTimesBehindTheSignedOnesOf32Bits)
{
    LogInfo info;
    info.setLogTime(4294967295UL);
    LogInfoXml codec;
    codec.setLogInfo(info);
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find("LogTime=\"4294967295\""));

    LogInfoXml reader;
    ASSERT_TRUE(reads(reader, text));
    EXPECT_EQ(4294967295UL, reader.getLogInfo().getLogTime());
}
