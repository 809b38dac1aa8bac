#include "record/RecordFileXml.h"

#include "tests/support/Documents.h"

namespace
{

RecordFile sample()
{
    RecordFile file;
    file.setId(1);
    file.setDeviceId("D-17");
    file.setDeviceName("Gate recorder");
    file.setCameraId(2);
    file.setCameraName("North");
    file.setDeviceIp("192.0.2.17");
    file.setRecordFileName("0815.rec");
    file.setRecordTime(1425283747);
    file.setRecordType(3);
    file.setAlarmId(4);
    file.setAlarmType(5);
    file.setFileByteLength(1048576);
    file.setFileTimeLength(60);
    return file;
}

void expectFile(const RecordFile& expected, const RecordFile& file)
{
    EXPECT_EQ(expected.getId(), file.getId());
    EXPECT_EQ(expected.getDeviceId(), file.getDeviceId());
    EXPECT_EQ(expected.getDeviceName(), file.getDeviceName());
    EXPECT_EQ(expected.getCameraId(), file.getCameraId());
    EXPECT_EQ(expected.getCameraName(), file.getCameraName());
    EXPECT_EQ(expected.getDeviceIp(), file.getDeviceIp());
    EXPECT_EQ(expected.getRecordFileName(), file.getRecordFileName());
    EXPECT_EQ(expected.getRecordTime(), file.getRecordTime());
    EXPECT_EQ(expected.getRecordType(), file.getRecordType());
    EXPECT_EQ(expected.getAlarmId(), file.getAlarmId());
    EXPECT_EQ(expected.getAlarmType(), file.getAlarmType());
    EXPECT_EQ(expected.getFileByteLength(), file.getFileByteLength());
    EXPECT_EQ(expected.getFileTimeLength(), file.getFileTimeLength());
}

} // namespace

TEST(RecordFileXml, Writes)
{
    RecordFileXml codec;
    codec.setRecordFile(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordFileXml.document.xml"));
}

TEST(RecordFileXml, Reads)
{
    RecordFileXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordFileXml.document.xml")));
    expectFile(sample(), codec.getRecordFile());
}

TEST(RecordFileXml, ResetsWhatIsMissing)
{
    RecordFileXml codec;
    codec.setRecordFile(sample());
    ASSERT_TRUE(reads(codec, "<RecordFile />"));
    expectFile(RecordFile(), codec.getRecordFile());
}

TEST(RecordFileXml, CarriesATimeBefore1970)
{
    RecordFileXml codec;
    codec.getRecordFile().setRecordTime(-60);
    RecordFileXml reader;
    ASSERT_TRUE(reads(reader, written(codec)));
    EXPECT_EQ(-60, reader.getRecordFile().getRecordTime());
}

TEST(RecordFileXml, WritesTheLow32BitsOfTheSize)
{
    RecordFileXml codec;
    codec.getRecordFile().setFileByteLength(static_cast<long>(2147483648LL));
    EXPECT_NE(std::string::npos, written(codec).find("FileByteLength=\"-2147483648\""));
}

TEST(RecordFileXml, ReadsASizeInFull)
{
    RecordFileXml codec;
    ASSERT_TRUE(reads(codec, "<RecordFile FileByteLength='4294967297' />"));
    EXPECT_EQ(static_cast<long>(4294967297LL), codec.getRecordFile().getFileByteLength());
}
