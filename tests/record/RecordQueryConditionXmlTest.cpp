#include "record/RecordQueryConditionXml.h"

#include "tests/record/RecordSample.h"
#include "tests/support/Documents.h"

namespace
{

RecordQueryCondition sample()
{
    RecordQueryCondition condition;
    condition.setDeviceId("D-17");
    condition.setDeviceIP("192.0.2.17");
    condition.setCameraId(2);
    condition.setRecordBeginTime(1425283747);
    condition.setRecordEndTime(1425373808);
    condition.setRecordSegmentInterval(30);
    condition.setRecordQueryTimePrecision(4);
    condition.setLockFlag(true);
    condition.setAlarmFlag(false);
    condition.setAlarmExTypeList({alarmType("Motion", 1, 2), alarmType("Line", 3, 4)});
    return condition;
}

void expectCondition(const RecordQueryCondition& expected, const RecordQueryCondition& condition)
{
    EXPECT_EQ(expected.getDeviceId(), condition.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), condition.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), condition.getCameraId());
    EXPECT_EQ(expected.getRecordBeginTime(), condition.getRecordBeginTime());
    EXPECT_EQ(expected.getRecordEndTime(), condition.getRecordEndTime());
    EXPECT_EQ(expected.getRecordSegmentInterval(), condition.getRecordSegmentInterval());
    EXPECT_EQ(expected.getRecordQueryTimePrecision(), condition.getRecordQueryTimePrecision());
    EXPECT_EQ(expected.getLockFlag(), condition.getLockFlag());
    EXPECT_EQ(expected.getAlarmFlag(), condition.getAlarmFlag());
    expectTime(expected.getStructRecordBeginTime(), condition.getStructRecordBeginTime());
    expectTime(expected.getStructRecordEndTime(), condition.getStructRecordEndTime());
    expectAlarmTypes(expected.getAlarmExTypeList(), condition.getAlarmExTypeList());
}

} // namespace

TEST(RecordQueryConditionXml, Writes)
{
    RecordQueryConditionXml codec;
    codec.setRecordQueryCondition(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordQueryConditionXml.document.xml"));
}

TEST(RecordQueryConditionXml, LosesNothing)
{
    RecordQueryConditionXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordQueryConditionXml.document.xml")));
    expectCondition(sample(), codec.getRecordQueryCondition());

    RecordQueryCondition other;
    other.setAlarmFlag(true);
    other.setRecordSegmentInterval(4294967295UL);
    RecordQueryConditionXml writer;
    writer.setRecordQueryCondition(other);
    RecordQueryConditionXml reader;
    ASSERT_TRUE(reads(reader, written(writer)));
    expectCondition(other, reader.getRecordQueryCondition());
}

TEST(RecordQueryConditionXml, LeavesWhatIsMissingButTheCamera)
{
    RecordQueryCondition expected = sample();
    expected.setAlarmFlag(true);
    RecordQueryConditionXml codec;
    codec.setRecordQueryCondition(expected);
    ASSERT_TRUE(reads(codec, "<RecordQueryCondition />"));
    expected.setCameraId(0);
    expectCondition(expected, codec.getRecordQueryCondition());
}

TEST(RecordQueryConditionXml, ReplacesTheAlarmTypesByAListThatIsThere)
{
    RecordQueryConditionXml codec;
    codec.setRecordQueryCondition(sample());
    ASSERT_TRUE(reads(codec, "<RecordQueryCondition><AlarmExTypeList><!--AlarmExType-->"
                             "<AlarmExType AlarmTypeName='a' /><Other AlarmTypeName='b' MajorAlarmType='x' />"
                             "</AlarmExTypeList></RecordQueryCondition>"));
    expectAlarmTypes({alarmType("a", 0, 0), alarmType("b", 0, 0)},
                     codec.getRecordQueryCondition().getAlarmExTypeList());

    RecordQueryConditionXml other;
    other.setRecordQueryCondition(sample());
    ASSERT_TRUE(reads(other, "<RecordQueryCondition><AlarmExTypeList /></RecordQueryCondition>"));
    EXPECT_TRUE(other.getRecordQueryCondition().getAlarmExTypeList().empty());
}

TEST(RecordQueryConditionXml, PassesOverTheCalendar)
{
    RecordQueryConditionXml codec;
    ASSERT_TRUE(reads(codec, "<RecordQueryCondition><StructRecordBeginTime Year='2015' Minute='1' Second='2' />"
                             "<StructRecordEndTime Year='2016' /></RecordQueryCondition>"));
    expectCondition(RecordQueryCondition(), codec.getRecordQueryCondition());
}

TEST(RecordQueryConditionXml, TakesBadValuesForZeroAndFalse)
{
    RecordQueryConditionXml codec;
    codec.setRecordQueryCondition(sample());
    ASSERT_TRUE(reads(codec, "<RecordQueryCondition CameraId='x' BeginTime='yesterday' EndTime='' SegmentInterval='x' "
                             "TimePrecision='x' LockFile='yes' />"));
    EXPECT_EQ(0, codec.getRecordQueryCondition().getCameraId());
    EXPECT_EQ(0UL, codec.getRecordQueryCondition().getRecordBeginTime());
    EXPECT_EQ(0UL, codec.getRecordQueryCondition().getRecordEndTime());
    EXPECT_EQ(0UL, codec.getRecordQueryCondition().getRecordSegmentInterval());
    EXPECT_EQ(0, codec.getRecordQueryCondition().getRecordQueryTimePrecision());
    EXPECT_FALSE(codec.getRecordQueryCondition().getLockFlag());
}

TEST(RecordQueryConditionXml, DerivesTheCalendar)
{
    TimeStruct expected;
    expected.setYear(2015);
    expected.setMonth(3);
    expected.setDay(2);
    expected.setDayOfWeek(1);
    expected.setHour(8);
    expected.setMinute(9);
    expected.setSecond(7);
    expectTime(expected, sample().getStructRecordBeginTime());
}
