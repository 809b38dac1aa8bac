#include "alarm/AlarmLogRecordSetXml.h"

#include "tests/support/Documents.h"

namespace
{

AlarmLogRecordSet sample()
{
    AlarmLogRecordSet record;
    record.setDeviceId("D-17");
    record.setDeviceIp("192.0.2.17");
    record.setAlarmTime(4294967295UL);
    record.setAlarmType(13);
    record.setAlarmSourceId(12);
    record.setAlarmSourceName("Door & gate");
    return record;
}

void expectRecord(const AlarmLogRecordSet& expected, const AlarmLogRecordSet& record)
{
    EXPECT_EQ(expected.getDeviceId(), record.getDeviceId());
    EXPECT_EQ(expected.getDeviceIp(), record.getDeviceIp());
    EXPECT_EQ(expected.getAlarmTime(), record.getAlarmTime());
    EXPECT_EQ(expected.getAlarmType(), record.getAlarmType());
    EXPECT_EQ(expected.getAlarmSourceId(), record.getAlarmSourceId());
    EXPECT_EQ(expected.getAlarmSourceName(), record.getAlarmSourceName());
}

} // namespace

TEST(AlarmLogRecordSetXml, Writes)
{
    AlarmLogRecordSetXml codec;
    codec.setAlarmLogRecordSet(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmLogRecordSetXml.document.xml"));
}

TEST(AlarmLogRecordSetXml, Reads)
{
    AlarmLogRecordSetXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmLogRecordSetXml.document.xml")));
    expectRecord(sample(), codec.getAlarmLogRecordSet());
}

TEST(AlarmLogRecordSetXml, ResetsWhatIsMissing)
{
    AlarmLogRecordSetXml codec;
    codec.setAlarmLogRecordSet(sample());
    ASSERT_TRUE(reads(codec, "<AlarmLogRecordSet />"));
    expectRecord(AlarmLogRecordSet(), codec.getAlarmLogRecordSet());
}
