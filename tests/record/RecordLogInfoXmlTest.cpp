#include "record/RecordLogInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

RecordLogInfo sample()
{
    RecordLogInfo info;
    info.setId(1);
    info.setDeviceId("D-17");
    info.setDeviceName("Gate recorder");
    info.setDeviceType(2);
    info.setCameraId(3);
    info.setCameraName("North");
    info.setDeviceIp("192.0.2.17");
    info.setLogTime(1425283747);
    info.setLogType(4);
    info.setLogInformation("disk full");
    return info;
}

void expectInfo(const RecordLogInfo& expected, const RecordLogInfo& info)
{
    EXPECT_EQ(expected.getId(), info.getId());
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceName(), info.getDeviceName());
    EXPECT_EQ(expected.getDeviceType(), info.getDeviceType());
    EXPECT_EQ(expected.getCameraId(), info.getCameraId());
    EXPECT_EQ(expected.getCameraName(), info.getCameraName());
    EXPECT_EQ(expected.getDeviceIp(), info.getDeviceIp());
    EXPECT_EQ(expected.getLogTime(), info.getLogTime());
    EXPECT_EQ(expected.getLogType(), info.getLogType());
    EXPECT_EQ(expected.getLogInformation(), info.getLogInformation());
}

} // namespace

TEST(RecordLogInfoXml, Writes)
{
    RecordLogInfoXml codec;
    codec.setRecordLogInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordLogInfoXml.document.xml"));
}

TEST(RecordLogInfoXml, Reads)
{
    RecordLogInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordLogInfoXml.document.xml")));
    expectInfo(sample(), codec.getRecordLogInfo());
}

TEST(RecordLogInfoXml, ResetsWhatIsMissing)
{
    RecordLogInfoXml codec;
    codec.setRecordLogInfo(sample());
    ASSERT_TRUE(reads(codec, "<RecordLogInfo />"));
    expectInfo(RecordLogInfo(), codec.getRecordLogInfo());
}

TEST(RecordLogInfoXml, ReadsTheTimeSigned)
{
    RecordLogInfoXml codec;
    codec.getRecordLogInfo().setLogTime(4294967295UL);
    RecordLogInfoXml reader;
    ASSERT_TRUE(reads(reader, written(codec)));
    EXPECT_EQ(4294967295UL, reader.getRecordLogInfo().getLogTime());

    RecordLogInfoXml other;
    ASSERT_TRUE(reads(other, "<RecordLogInfo LogTime='18446744073709551615' />"));
    EXPECT_EQ(static_cast<unsigned long>(9223372036854775807LL), other.getRecordLogInfo().getLogTime());
}
