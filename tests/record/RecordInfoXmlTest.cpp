#include "record/RecordInfoXml.h"

#include "tests/record/RecordSample.h"
#include "tests/support/Documents.h"

namespace
{

RecordInfo sample()
{
    RecordInfo info;
    info.setDeviceId("D-17");
    info.setDeviceIP("192.0.2.17");
    info.setCameraId(2);
    info.setRecordBeginTime(1425283747);
    info.setRecordEndTime(1425373808);
    info.setLockFlag(true);
    info.setStructRecordBeginTime(sampleTime(2015));
    info.setStructRecordEndTime(sampleTime(2016));
    return info;
}

RecordInfo other()
{
    RecordInfo info;
    info.setAlarmFlag(true);
    return info;
}

void expectInfo(const RecordInfo& expected, const RecordInfo& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), info.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), info.getCameraId());
    EXPECT_EQ(expected.getRecordBeginTime(), info.getRecordBeginTime());
    EXPECT_EQ(expected.getRecordEndTime(), info.getRecordEndTime());
    EXPECT_EQ(expected.getLockFlag(), info.getLockFlag());
    EXPECT_EQ(expected.getAlarmFlag(), info.getAlarmFlag());
    expectTime(expected.getStructRecordBeginTime(), info.getStructRecordBeginTime());
    expectTime(expected.getStructRecordEndTime(), info.getStructRecordEndTime());
}

} // namespace

TEST(RecordInfoXml, Writes)
{
    RecordInfoXml codec;
    codec.setExtendField(7);
    codec.setRecordInfoList({sample(), other()});
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordInfoXml.document.xml"));
}

TEST(RecordInfoXml, WritesAnEmptyList)
{
    RecordInfoXml codec;
    EXPECT_EQ("<RecordInfoList ExtendField=\"0\" />\n", written(codec));
}

TEST(RecordInfoXml, ReadsBehindWhatTheListHolds)
{
    RecordInfoXml codec;
    codec.setRecordInfoList({RecordInfo()});
    ASSERT_TRUE(reads(codec, golden("record/RecordInfoXml.document.xml")));
    EXPECT_EQ(7, codec.getExtendField());
    ASSERT_EQ(3U, codec.getRecordInfoList().size());
    expectInfo(RecordInfo(), codec.getRecordInfoList()[0]);
    expectInfo(sample(), codec.getRecordInfoList()[1]);
    expectInfo(other(), codec.getRecordInfoList()[2]);
}

TEST(RecordInfoXml, LeavesAMissingExtendField)
{
    RecordInfoXml codec;
    codec.setExtendField(5);
    ASSERT_TRUE(reads(codec, "<RecordInfoList><RecordInfo /></RecordInfoList>"));
    EXPECT_EQ(5, codec.getExtendField());
    ASSERT_EQ(1U, codec.getRecordInfoList().size());
    expectInfo(RecordInfo(), codec.getRecordInfoList()[0]);
}

TEST(RecordInfoXml, WalksOnFromTheFirstItemOverElementsOfAnyName)
{
    RecordInfoXml codec;
    ASSERT_TRUE(reads(codec, "<RecordInfoList><Other CameraId='1' /><RecordInfo CameraId='2' /><!-- -->"
                             "<Other CameraId='3' /></RecordInfoList>"));
    ASSERT_EQ(2U, codec.getRecordInfoList().size());
    EXPECT_EQ(2, codec.getRecordInfoList()[0].getCameraId());
    EXPECT_EQ(3, codec.getRecordInfoList()[1].getCameraId());
}

// Older readers take minute and second of a calendar time for granted.
TEST(RecordInfoXml, ReadsACalendarWithoutMinuteAndSecond)
{
    TimeStruct expected;
    expected.setYear(2015);
    RecordInfoXml codec;
    ASSERT_TRUE(reads(codec, "<RecordInfoList><RecordInfo BeginTime='noon'><BeginTimeStruct Year='2015' />"
                             "</RecordInfo></RecordInfoList>"));
    ASSERT_EQ(1U, codec.getRecordInfoList().size());
    EXPECT_EQ(0UL, codec.getRecordInfoList()[0].getRecordBeginTime());
    expectTime(expected, codec.getRecordInfoList()[0].getStructRecordBeginTime());
    expectTime(TimeStruct(), codec.getRecordInfoList()[0].getStructRecordEndTime());
}
