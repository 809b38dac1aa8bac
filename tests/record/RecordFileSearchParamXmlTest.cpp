#include "record/RecordFileSearchParamXml.h"

#include "tests/support/Documents.h"

namespace
{

RecordFileSearchParam sample()
{
    RecordFileSearchParam param;
    param.setDeviceId("D-17");
    param.setDeviceName("Gate recorder");
    param.setCameraId(2);
    param.setCameraName("North");
    param.setDeviceIp("192.0.2.17");
    param.setRecordFileName("0815.rec");
    param.setStartTime(1425283747);
    param.setEndTime(1425287347);
    param.setRecordType(3);
    param.setAlarmId(4);
    param.setAlarmType(5);
    return param;
}

void expectParam(const RecordFileSearchParam& expected, const RecordFileSearchParam& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getDeviceName(), param.getDeviceName());
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getCameraName(), param.getCameraName());
    EXPECT_EQ(expected.getDeviceIp(), param.getDeviceIp());
    EXPECT_EQ(expected.getRecordFileName(), param.getRecordFileName());
    EXPECT_EQ(expected.getStartTime(), param.getStartTime());
    EXPECT_EQ(expected.getEndTime(), param.getEndTime());
    EXPECT_EQ(expected.getRecordType(), param.getRecordType());
    EXPECT_EQ(expected.getAlarmId(), param.getAlarmId());
    EXPECT_EQ(expected.getAlarmType(), param.getAlarmType());
}

} // namespace

TEST(RecordFileSearchParamXml, Writes)
{
    RecordFileSearchParamXml codec;
    codec.setRecordFileSearchParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordFileSearchParamXml.document.xml"));
}

TEST(RecordFileSearchParamXml, Reads)
{
    RecordFileSearchParamXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordFileSearchParamXml.document.xml")));
    expectParam(sample(), codec.getRecordFileSearchParam());
}

TEST(RecordFileSearchParamXml, ResetsWhatIsMissing)
{
    RecordFileSearchParamXml codec;
    codec.setRecordFileSearchParam(sample());
    ASSERT_TRUE(reads(codec, "<RecordFileSearchParam />"));
    expectParam(RecordFileSearchParam(), codec.getRecordFileSearchParam());
}

TEST(RecordFileSearchParamXml, CarriesTimesOf32Bits)
{
    RecordFileSearchParamXml codec;
    codec.getRecordFileSearchParam().setStartTime(2147483648UL);
    codec.getRecordFileSearchParam().setEndTime(4294967295UL);
    RecordFileSearchParamXml reader;
    ASSERT_TRUE(reads(reader, written(codec)));
    EXPECT_EQ(2147483648UL, reader.getRecordFileSearchParam().getStartTime());
    EXPECT_EQ(4294967295UL, reader.getRecordFileSearchParam().getEndTime());
}

TEST(RecordFileSearchParamXml, ReadsTimesSigned)
{
    RecordFileSearchParamXml codec;
    ASSERT_TRUE(reads(codec, "<RecordFileSearchParam StartTime='18446744073709551615' EndTime='soon' />"));
    EXPECT_EQ(static_cast<unsigned long>(9223372036854775807LL), codec.getRecordFileSearchParam().getStartTime());
    EXPECT_EQ(0UL, codec.getRecordFileSearchParam().getEndTime());
}
