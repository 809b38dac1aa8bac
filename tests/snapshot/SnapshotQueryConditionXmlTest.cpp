#include "snapshot/SnapshotQueryConditionXml.h"

#include "tests/snapshot/SnapshotSample.h"
#include "tests/support/Documents.h"

#include <limits>

namespace
{

SnapshotQueryCondition sample()
{
    SnapshotQueryCondition condition;
    condition.setDeviceId("D-17");
    condition.setDeviceIP("192.0.2.17");
    condition.setCameraId(2);
    condition.setQueryBeginTime(1425283747045);
    condition.setQueryEndTime(1425373808046);
    condition.setSnapshotType(3);
    condition.setLockFlag(true);
    condition.setAlarmExTypeList({alarmType("Motion", 1, 2), alarmType("Line", 3, 4)});
    return condition;
}

void expectCondition(const SnapshotQueryCondition& expected, const SnapshotQueryCondition& condition)
{
    EXPECT_EQ(expected.getDeviceId(), condition.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), condition.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), condition.getCameraId());
    EXPECT_EQ(expected.getQueryBeginTime(), condition.getQueryBeginTime());
    EXPECT_EQ(expected.getQueryEndTime(), condition.getQueryEndTime());
    EXPECT_EQ(expected.getSnapshotType(), condition.getSnapshotType());
    EXPECT_EQ(expected.getLockFlag(), condition.getLockFlag());
    expectTime(expected.getStructQueryBeginTime(), condition.getStructQueryBeginTime());
    expectTime(expected.getStructQueryEndTime(), condition.getStructQueryEndTime());
    expectAlarmTypes(expected.getAlarmExTypeList(), condition.getAlarmExTypeList());
}

} // namespace

TEST(SnapshotQueryConditionXml, Writes)
{
    SnapshotQueryConditionXml codec;
    codec.setSnapshotQueryCondition(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotQueryConditionXml.document.xml"));
}

TEST(SnapshotQueryConditionXml, Reads)
{
    SnapshotQueryConditionXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotQueryConditionXml.document.xml")));
    expectCondition(sample(), codec.getSnapshotQueryCondition());
}

TEST(SnapshotQueryConditionXml, LeavesWhatIsMissingButTheCamera)
{
    SnapshotQueryCondition expected = sample();
    SnapshotQueryConditionXml codec;
    codec.setSnapshotQueryCondition(expected);
    ASSERT_TRUE(reads(codec, "<SnapshotQueryCondition />"));
    expected.setCameraId(0);
    expectCondition(expected, codec.getSnapshotQueryCondition());
}

TEST(SnapshotQueryConditionXml, ReplacesTheAlarmTypesByAListThatIsThere)
{
    SnapshotQueryConditionXml codec;
    codec.setSnapshotQueryCondition(sample());
    ASSERT_TRUE(reads(codec, "<SnapshotQueryCondition><AlarmExTypeList><!--AlarmExType-->"
                             "<AlarmExType AlarmTypeName='a' /><Other AlarmTypeName='b' />"
                             "</AlarmExTypeList></SnapshotQueryCondition>"));
    expectAlarmTypes({alarmType("a", 0, 0), alarmType("b", 0, 0)},
                     codec.getSnapshotQueryCondition().getAlarmExTypeList());

    SnapshotQueryConditionXml other;
    other.setSnapshotQueryCondition(sample());
    ASSERT_TRUE(reads(other, "<SnapshotQueryCondition><AlarmExTypeList /></SnapshotQueryCondition>"));
    EXPECT_TRUE(other.getSnapshotQueryCondition().getAlarmExTypeList().empty());
}

TEST(SnapshotQueryConditionXml, PassesOverTheCalendar)
{
    SnapshotQueryConditionXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotQueryCondition><QueryBeginTimeStruct Year='2015' /><QueryEndTimeStruct />"
                             "</SnapshotQueryCondition>"));
    expectCondition(SnapshotQueryCondition(), codec.getSnapshotQueryCondition());
}

TEST(SnapshotQueryConditionXml, DerivesTheCalendar)
{
    TimeStruct expected;
    expected.setYear(2015);
    expected.setMonth(3);
    expected.setDay(2);
    expected.setDayOfWeek(1);
    expected.setHour(8);
    expected.setMinute(9);
    expected.setSecond(7);
    expected.setMilliseconds(45);
    expectTime(expected, sample().getStructQueryBeginTime());
}

TEST(SnapshotQueryConditionXml, ReadsTimesThroughADouble)
{
    SnapshotQueryConditionXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotQueryCondition BeginTime='9007199254740993' EndTime='-1e300' />"));
    EXPECT_EQ(9007199254740992, codec.getSnapshotQueryCondition().getQueryBeginTime());
    EXPECT_EQ(std::numeric_limits<long long>::min(), codec.getSnapshotQueryCondition().getQueryEndTime());

    // No calendar reaches that far back; it is written all the same.
    EXPECT_NE(std::string::npos, written(codec).find(" EndTime=\"-9223372036854775808\""));
}

TEST(SnapshotQueryConditionXml, ConvertsNumbers)
{
    std::string text;
    EXPECT_TRUE(SnapshotQueryConditionXml().Int642Str(-1, text));
    EXPECT_EQ("-1", text);
    long long value = 7;
    EXPECT_TRUE(SnapshotQueryConditionXml().str2Int64("1.5e3", value));
    EXPECT_EQ(1500, value);
}
