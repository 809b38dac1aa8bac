#include "alarm/AlarmInfoExQueryParamXml.h"

#include "tests/alarm/AlarmRecordSample.h"
#include "tests/support/Documents.h"

TEST(AlarmInfoExQueryParamXml, Writes)
{
    AlarmInfoExQueryParamXml codec;
    codec.setAlarmInfoExQueryParam(sampleAlarmQuery());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInfoExQueryParamXml.document.xml"));
}

TEST(AlarmInfoExQueryParamXml, Reads)
{
    AlarmInfoExQueryParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInfoExQueryParamXml.document.xml")));
    expectAlarmQuery(sampleAlarmQuery(), codec.getAlarmInfoExQueryParam());
}

TEST(AlarmInfoExQueryParamXml, ResetsWhatIsMissingButTheTimesByTheCalendar)
{
    AlarmInfoExQueryParamXml codec;
    codec.setAlarmInfoExQueryParam(sampleAlarmQuery());
    ASSERT_TRUE(reads(codec, "<AlarmInfoExQueryParam />"));
    AlarmInfoExQueryParam expected;
    expected.setStructAlarmBeginTime(sampleAlarmTime(20));
    expected.setStructAlarmEndTime(sampleAlarmTime(21));
    expectAlarmQuery(expected, codec.getAlarmInfoExQueryParam());
}

TEST(AlarmInfoExQueryParamXml, ReadsATimeByTheCalendarIntoANewOne)
{
    AlarmInfoExQueryParamXml codec;
    codec.setAlarmInfoExQueryParam(sampleAlarmQuery());
    ASSERT_TRUE(reads(codec, "<AlarmInfoExQueryParam><AlarmBeginTimeStruct Hour='7' /><AlarmEndTimeStruct Minute='8' />"
                             "</AlarmInfoExQueryParam>"));
    AlarmInfoExQueryParam expected;
    expected.getStructAlarmBeginTime().setHour(7);
    expected.getStructAlarmEndTime().setMinute(8);
    expectAlarmQuery(expected, codec.getAlarmInfoExQueryParam());
}

TEST(AlarmInfoExQueryParamXml, DoesNotKnowTheNamesOfTheAnswer)
{
    AlarmInfoExQueryParamXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmInfoExQueryParam AlarmSourceId='1' AlarmSourceName='2' AlarmBeginTime='3' "
                             "AlarmEndTime='4' MajorAlarmType='5' MinorAlarmType='6' />"));
    expectAlarmQuery(AlarmInfoExQueryParam(), codec.getAlarmInfoExQueryParam());
}
