#include "record/RecordFileExXml.h"

#include "tests/record/RecordSample.h"
#include "tests/support/Documents.h"

namespace
{

RecordFileEx sample()
{
    RecordFileEx file;
    file.setDeviceId("D-17");
    file.setDeviceIP("192.0.2.17");
    file.setCameraId(2);
    file.setRecordFileBeginTime(1425283747);
    file.setRecordFileName("0815.rec");
    file.setRecordDirInfo(sampleDisk());
    file.setStructRecordFileBeginTime(sampleTime(2015));
    return file;
}

void expectFile(const RecordFileEx& expected, const RecordFileEx& file)
{
    EXPECT_EQ(expected.getDeviceId(), file.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), file.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), file.getCameraId());
    EXPECT_EQ(expected.getRecordFileBeginTime(), file.getRecordFileBeginTime());
    EXPECT_EQ(expected.getRecordFileName(), file.getRecordFileName());
    expectDisk(expected.getRecordDirInfo(), file.getRecordDirInfo());
    expectTime(expected.getStructRecordFileBeginTime(), file.getStructRecordFileBeginTime());
}

} // namespace

TEST(RecordFileExXml, Writes)
{
    RecordFileExXml codec;
    codec.setRecordFileList({sample(), RecordFileEx()});
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordFileExXml.document.xml"));
}

TEST(RecordFileExXml, WritesAnEmptyList)
{
    RecordFileExXml codec;
    EXPECT_EQ("<RecordFileList />\n", written(codec));
}

TEST(RecordFileExXml, ReadsBehindWhatTheListHolds)
{
    RecordFileEx before;
    before.setDeviceId("before");
    RecordFileExXml codec;
    codec.setRecordFileList({before});
    ASSERT_TRUE(reads(codec, golden("record/RecordFileExXml.document.xml")));
    ASSERT_EQ(3U, codec.getRecordFileList().size());
    expectFile(before, codec.getRecordFileList()[0]);
    expectFile(sample(), codec.getRecordFileList()[1]);
    expectFile(RecordFileEx(), codec.getRecordFileList()[2]);
}

TEST(RecordFileExXml, GivesFreshValuesForWhatIsMissing)
{
    RecordFileExXml codec;
    ASSERT_TRUE(reads(codec, "<RecordFileList><!--RecordFile--><Other CameraId='1' /><RecordFile /><!-- -->text"
                             "<Other CameraId='x' /></RecordFileList>"));
    ASSERT_EQ(2U, codec.getRecordFileList().size());
    expectFile(RecordFileEx(), codec.getRecordFileList()[0]);
    expectFile(RecordFileEx(), codec.getRecordFileList()[1]);
}

TEST(RecordFileExXml, KeepsAFreshDiskBesideAListWithoutOne)
{
    RecordFileExXml codec;
    ASSERT_TRUE(reads(codec, "<RecordFileList><RecordFile><RecordDirInfoList><!--RecordDirInfo--><Other DiskType='1' />"
                             "</RecordDirInfoList></RecordFile></RecordFileList>"));
    ASSERT_EQ(1U, codec.getRecordFileList().size());
    expectFile(RecordFileEx(), codec.getRecordFileList()[0]);
}

TEST(RecordFileExXml, TakesTheFirstOfSeveralDisks)
{
    RecordFileExXml codec;
    ASSERT_TRUE(reads(codec, "<RecordFileList><RecordFile><RecordDirInfoList><RecordDirInfo DiskName='a' />"
                             "<RecordDirInfo DiskName='b' /></RecordDirInfoList></RecordFile></RecordFileList>"));
    ASSERT_EQ(1U, codec.getRecordFileList().size());
    EXPECT_EQ("a", codec.getRecordFileList()[0].getRecordDirInfo().getDiskName());
}
