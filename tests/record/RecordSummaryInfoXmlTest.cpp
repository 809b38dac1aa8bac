#include "record/RecordSummaryInfoXml.h"

#include "tests/record/RecordSample.h"
#include "tests/support/Documents.h"

namespace
{

RecordSummaryInfo sample()
{
    RecordSummaryInfo info;
    info.setDeviceId("D-17");
    info.setDeviceIP("192.0.2.17");
    info.setCameraId(2);
    info.setRecordBeginTime(1425283747);
    info.setRecordEndTime(1425287347);
    info.setRecordBeginTimeStruct(sampleTime(2015));
    info.setRecordEndTimeStruct(sampleTime(2016));
    return info;
}

void expectInfo(const RecordSummaryInfo& expected, const RecordSummaryInfo& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceIP(), info.getDeviceIP());
    EXPECT_EQ(expected.getCameraId(), info.getCameraId());
    EXPECT_EQ(expected.getRecordBeginTime(), info.getRecordBeginTime());
    EXPECT_EQ(expected.getRecordEndTime(), info.getRecordEndTime());
    expectTime(expected.getRecordBeginTimeStruct(), info.getRecordBeginTimeStruct());
    expectTime(expected.getRecordEndTimeStruct(), info.getRecordEndTimeStruct());
}

} // namespace

TEST(RecordSummaryInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(RecordSummaryInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "record/RecordSummaryInfoXml.node.xml"));
}

TEST(RecordSummaryInfoXml, ReadsNodes)
{
    RecordSummaryInfo read;
    ASSERT_TRUE(RecordSummaryInfoXml().parseXmlString(golden("record/RecordSummaryInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(RecordSummaryInfoXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    RecordSummaryInfo read = sample();
    ASSERT_TRUE(RecordSummaryInfoXml().parseXmlString("<RecordSummaryInfo />", read));
    expectInfo(RecordSummaryInfo(), read);
    EXPECT_EQ("", output.text());
}

TEST(RecordSummaryInfoXml, TakesATimeThatIsNoNumberForZero)
{
    RecordSummaryInfo read = sample();
    ASSERT_TRUE(RecordSummaryInfoXml().parseXmlString("<RecordSummaryInfo RecordBeginTime='now' "
                                                      "RecordEndTime='4294967295' />",
                                                      read));
    EXPECT_EQ(0UL, read.getRecordBeginTime());
    EXPECT_EQ(4294967295UL, read.getRecordEndTime());
}

TEST(RecordSummaryInfoXml, LeavesTheRecordOfAFailedRead)
{
    RecordSummaryInfo read = sample();
    EXPECT_FALSE(RecordSummaryInfoXml().parseXmlString("<RecordSummaryInfo CameraId='1'", read));
    EXPECT_FALSE(RecordSummaryInfoXml().parseXmlString("<Other CameraId='1' />", read));
    expectInfo(sample(), read);
}
