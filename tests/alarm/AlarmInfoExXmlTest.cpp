#include "alarm/AlarmInfoExXml.h"

#include "tests/alarm/AlarmRecordSample.h"
#include "tests/support/Documents.h"

namespace
{

AlarmInfoEx sample()
{
    AlarmInfoEx info;
    info.setDeviceId("D-17");
    info.setDeviceIP("192.0.2.17");
    info.setDeviceType(2);
    info.setMajorType(21);
    info.setMinorType(22);
    info.setSourceId("S-3");
    info.setSourceName("Door & gate");
    info.setAlarmFlag(1);
    info.setAlarmTime(4294967295UL);
    info.setDescription("Door open");
    info.setStructAlarmTime(sampleAlarmTime(20));
    return info;
}

void expectItem(const AlarmInfoEx& expected, const AlarmInfoEx& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), info.getDeviceIP());
    EXPECT_EQ(expected.getDeviceType(), info.getDeviceType());
    EXPECT_EQ(expected.getMajorType(), info.getMajorType());
    EXPECT_EQ(expected.getMinorType(), info.getMinorType());
    EXPECT_EQ(expected.getSourceId(), info.getSourceId());
    EXPECT_EQ(expected.getSourceName(), info.getSourceName());
    EXPECT_EQ(expected.getAlarmFlag(), info.getAlarmFlag());
    EXPECT_EQ(expected.getAlarmTime(), info.getAlarmTime());
    EXPECT_EQ(expected.getDescription(), info.getDescription());
    expectAlarmTime(expected.getStructAlarmTime(), info.getStructAlarmTime());
}

} // namespace

TEST(AlarmInfoExXml, Writes)
{
    AlarmInfoExXml codec;
    codec.setAlarmInfoExList({sample(), AlarmInfoEx()});
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInfoExXml.document.xml"));
}

TEST(AlarmInfoExXml, ReadsBehindTheItemsThatAreThere)
{
    AlarmInfoExXml codec;
    codec.getAlarmInfoExList().push_back(sample());
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInfoExXml.document.xml")));
    ASSERT_EQ(3U, codec.getAlarmInfoExList().size());
    expectItem(sample(), codec.getAlarmInfoExList()[0]);
    expectItem(sample(), codec.getAlarmInfoExList()[1]);
    expectItem(AlarmInfoEx(), codec.getAlarmInfoExList()[2]);
}

TEST(AlarmInfoExXml, WalksByName)
{
    AlarmInfoExXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmInfoExList><!--AlarmInfoEx-->text<AlarmInfoEx />"
                             "<Other DeviceType='1' /><AlarmInfoEx DeviceType='2' /></AlarmInfoExList>"));
    ASSERT_EQ(2U, codec.getAlarmInfoExList().size());
    expectItem(AlarmInfoEx(), codec.getAlarmInfoExList()[0]);
    EXPECT_EQ(2, codec.getAlarmInfoExList()[1].getDeviceType());
}

TEST(AlarmInfoExXml, ReadsATimeThatLacksMinuteAndSecond)
{
    AlarmInfoExXml codec;
    ASSERT_TRUE(
        reads(codec, "<AlarmInfoExList><AlarmInfoEx><AlarmTimeStruct Hour='7' /></AlarmInfoEx></AlarmInfoExList>"));
    ASSERT_EQ(1U, codec.getAlarmInfoExList().size());
    AlarmInfoEx expected;
    expected.getStructAlarmTime().setHour(7);
    expectItem(expected, codec.getAlarmInfoExList()[0]);
}
