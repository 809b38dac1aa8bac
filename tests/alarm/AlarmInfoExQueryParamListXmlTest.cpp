#include "alarm/AlarmInfoExQueryParamListXml.h"

#include "tests/alarm/AlarmRecordSample.h"
#include "tests/support/Documents.h"

TEST(AlarmInfoExQueryParamListXml, Writes)
{
    AlarmInfoExQueryParamListXml codec;
    codec.setAlarmInfoExQueryParamList({sampleAlarmQuery(), AlarmInfoExQueryParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/AlarmInfoExQueryParamListXml.document.xml"));
}

TEST(AlarmInfoExQueryParamListXml, ReadsBehindTheItemsThatAreThere)
{
    AlarmInfoExQueryParamListXml codec;
    codec.getAlarmInfoExQueryParamList().push_back(sampleAlarmQuery());
    ASSERT_TRUE(reads(codec, golden("alarm/AlarmInfoExQueryParamListXml.document.xml")));
    ASSERT_EQ(3U, codec.getAlarmInfoExQueryParamList().size());
    expectAlarmQuery(sampleAlarmQuery(), codec.getAlarmInfoExQueryParamList()[0]);
    expectAlarmQuery(sampleAlarmQuery(), codec.getAlarmInfoExQueryParamList()[1]);
    expectAlarmQuery(AlarmInfoExQueryParam(), codec.getAlarmInfoExQueryParamList()[2]);
}

TEST(AlarmInfoExQueryParamListXml, WalksByElementsOfAnyName)
{
    AlarmInfoExQueryParamListXml codec;
    ASSERT_TRUE(reads(codec, "<AlarmInfoExQueryParamList><Other MajorType='1' /><!--AlarmInfoExQueryParam-->"
                             "<AlarmInfoExQueryParam MajorType='2' />text<Other MajorType='3' />"
                             "</AlarmInfoExQueryParamList>"));
    ASSERT_EQ(2U, codec.getAlarmInfoExQueryParamList().size());
    EXPECT_EQ(2, codec.getAlarmInfoExQueryParamList()[0].getMajorType());
    EXPECT_EQ(3, codec.getAlarmInfoExQueryParamList()[1].getMajorType());
}
