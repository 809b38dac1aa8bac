#include "alarm/AlarmInfoExRecordSetXml.h"

#include "tests/alarm/AlarmRecordSample.h"
#include "tests/support/Documents.h"

namespace
{

AlarmInfoExRecordSet sample()
{
    AlarmInfoExRecordSet record;
    record.setDeviceId("D-17");
    record.setDeviceIP("192.0.2.17");
    record.setDeviceType(2);
    record.setMajorType(21);
    record.setMinorType(22);
    record.setSourceId("S-3");
    record.setSourceName("Door & gate");
    record.setAlarmBeginTime(1425254400);
    record.setAlarmEndTime(4294967295UL);
    record.setDescription("Door open");
    record.setStructAlarmBeginTime(sampleAlarmTime(20));
    record.setStructAlarmEndTime(sampleAlarmTime(21));
    return record;
}

void expectItem(const AlarmInfoExRecordSet& expected, const AlarmInfoExRecordSet& record)
{
    EXPECT_EQ(expected.getDeviceId(), record.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), record.getDeviceIP());
    EXPECT_EQ(expected.getDeviceType(), record.getDeviceType());
    EXPECT_EQ(expected.getMajorType(), record.getMajorType());
    EXPECT_EQ(expected.getMinorType(), record.getMinorType());
    EXPECT_EQ(expected.getSourceId(), record.getSourceId());
    EXPECT_EQ(expected.getSourceName(), record.getSourceName());
    EXPECT_EQ(expected.getAlarmBeginTime(), record.getAlarmBeginTime());
    EXPECT_EQ(expected.getAlarmEndTime(), record.getAlarmEndTime());
    EXPECT_EQ(expected.getDescription(), record.getDescription());
    expectAlarmTime(expected.getStructAlarmBeginTime(), record.getStructAlarmBeginTime());
    expectAlarmTime(expected.getStructAlarmEndTime(), record.getStructAlarmEndTime());
}

} // namespace

TEST(AlarmInfoExRecordSetXml, Writes)
{
    AlarmInfoExRecordSetXml codec;
    codec.setAlarmInfoExRecordSetList({sample(), AlarmInfoExRecordSet()});
    codec.setEndFlag(true);
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInfoExRecordSetXml.document.xml"));
}

TEST(AlarmInfoExRecordSetXml, ReadsBehindTheItemsThatAreThere)
{
    AlarmInfoExRecordSetXml codec;
    codec.getAlarmInfoExRecordSetList().push_back(sample());
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInfoExRecordSetXml.document.xml")));
    EXPECT_TRUE(codec.getEndFlag());
    ASSERT_EQ(3U, codec.getAlarmInfoExRecordSetList().size());
    expectItem(sample(), codec.getAlarmInfoExRecordSetList()[0]);
    expectItem(sample(), codec.getAlarmInfoExRecordSetList()[1]);
    expectItem(AlarmInfoExRecordSet(), codec.getAlarmInfoExRecordSetList()[2]);
}

TEST(AlarmInfoExRecordSetXml, ResetsTheEndFlag)
{
    AlarmInfoExRecordSetXml codec;
    codec.setEndFlag(true);
    ASSERT_TRUE(reads(codec, "<AlarmInfoExRecordSetList />"));
    EXPECT_FALSE(codec.getEndFlag());
}

TEST(AlarmInfoExRecordSetXml, LooksForTheEndFlagOnTheListOnly)
{
    AlarmInfoExRecordSetXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmInfoExRecordSetList><AlarmInfoExRecordSet SendEndFlag='true' />"
                             "</AlarmInfoExRecordSetList>"));
    EXPECT_FALSE(codec.getEndFlag());

    AlarmInfoExRecordSetXml writer;
    writer.setEndFlag(true);
    EXPECT_EQ("<AlarmInfoExRecordSetList SendEndFlag=\"true\" />\n", written(writer));
}

TEST(AlarmInfoExRecordSetXml, WalksByName)
{
    AlarmInfoExRecordSetXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmInfoExRecordSetList><!--AlarmInfoExRecordSet-->text<AlarmInfoExRecordSet />"
                             "<Other DeviceType='1' /><AlarmInfoExRecordSet DeviceType='2' />"
                             "</AlarmInfoExRecordSetList>"));
    ASSERT_EQ(2U, codec.getAlarmInfoExRecordSetList().size());
    expectItem(AlarmInfoExRecordSet(), codec.getAlarmInfoExRecordSetList()[0]);
    EXPECT_EQ(2, codec.getAlarmInfoExRecordSetList()[1].getDeviceType());
}
