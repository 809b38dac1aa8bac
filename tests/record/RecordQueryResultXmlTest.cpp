#include "record/RecordQueryResultXml.h"

#include "tests/record/RecordSample.h"
#include "tests/support/Documents.h"

namespace
{

RecordTimeSegment segment(unsigned long begin, unsigned long end, bool lock, bool alarm, unsigned long length)
{
    RecordTimeSegment segment;
    segment.setRecordBeginTime(begin);
    segment.setRecordEndTime(end);
    segment.setRecordLockFlag(lock);
    segment.setRecordAlarmFlag(alarm);
    segment.setRecordDataLength(length);
    return segment;
}

RecordQueryResult sample()
{
    RecordTimeSegment first = segment(1425283747, 1425373808, true, false, 4096);
    first.setStructRecordBeginTime(sampleTime(2015));
    first.setStructRecordEndTime(sampleTime(2016));

    RecordQueryResult result;
    result.setDeviceID("D-17");
    result.setDeviceIP("192.0.2.17");
    result.setCameraID(2);
    result.addRecordTimeSegment(first);
    result.addRecordTimeSegment(segment(0, 1, false, true, 0));
    return result;
}

void expectResult(const RecordQueryResult& expected, const RecordQueryResult& result)
{
    EXPECT_EQ(expected.getDeviceID(), result.getDeviceID());
    EXPECT_EQ(expected.getDeviceIP(), result.getDeviceIP());
    EXPECT_EQ(expected.getCameraID(), result.getCameraID());
    ASSERT_EQ(expected.getRecordTimeSegment().size(), result.getRecordTimeSegment().size());
    for (std::size_t number = 0; number < result.getRecordTimeSegment().size(); ++number)
    {
        const RecordTimeSegment& wanted = expected.getRecordTimeSegment()[number];
        const RecordTimeSegment& read = result.getRecordTimeSegment()[number];
        EXPECT_EQ(wanted.getRecordBeginTime(), read.getRecordBeginTime());
        EXPECT_EQ(wanted.getRecordEndTime(), read.getRecordEndTime());
        EXPECT_EQ(wanted.getRecordLockFlag(), read.getRecordLockFlag());
        EXPECT_EQ(wanted.getRecordAlarmFlag(), read.getRecordAlarmFlag());
        EXPECT_EQ(wanted.getRecordDataLength(), read.getRecordDataLength());
        expectTime(wanted.getStructRecordBeginTime(), read.getStructRecordBeginTime());
        expectTime(wanted.getStructRecordEndTime(), read.getStructRecordEndTime());
    }
}

} // namespace

TEST(RecordQueryResultXml, Writes)
{
    RecordQueryResultXml codec;
    codec.setRecordQueryResultList({sample(), RecordQueryResult()});
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordQueryResultXml.document.xml"));
}

TEST(RecordQueryResultXml, WritesAnEmptyList)
{
    RecordQueryResultXml codec;
    EXPECT_EQ("<RecordQueryResultList />\n", written(codec));
}

TEST(RecordQueryResultXml, ReadsBehindWhatTheListHolds)
{
    RecordQueryResult before;
    before.setDeviceID("before");
    RecordQueryResultXml codec;
    codec.setRecordQueryResultList({before});
    ASSERT_TRUE(reads(codec, golden("record/RecordQueryResultXml.document.xml")));
    ASSERT_EQ(3U, codec.getRecordQueryResultList().size());
    expectResult(before, codec.getRecordQueryResultList()[0]);
    expectResult(sample(), codec.getRecordQueryResultList()[1]);
    expectResult(RecordQueryResult(), codec.getRecordQueryResultList()[2]);
}

TEST(RecordQueryResultXml, GivesFreshValuesForWhatIsMissing)
{
    RecordQueryResult expected;
    expected.addRecordTimeSegment(RecordTimeSegment());
    RecordQueryResultXml codec;
    ASSERT_TRUE(reads(codec, "<RecordQueryResultList><RecordQueryResult><RecordTimeSegmentList><RecordTimeSegment />"
                             "</RecordTimeSegmentList></RecordQueryResult></RecordQueryResultList>"));
    ASSERT_EQ(1U, codec.getRecordQueryResultList().size());
    expectResult(expected, codec.getRecordQueryResultList()[0]);
}

TEST(RecordQueryResultXml, ReadsTheSegmentsOfEveryList)
{
    RecordQueryResultXml codec;
    ASSERT_TRUE(reads(codec, "<RecordQueryResultList><RecordQueryResult>"
                             "<RecordTimeSegmentList><RecordTimeSegment RecordDataLen='1' /></RecordTimeSegmentList>"
                             "<Other><RecordTimeSegment RecordDataLen='9' /></Other><RecordTimeSegmentList />"
                             "<RecordTimeSegmentList><RecordTimeSegment RecordDataLen='2' /><!-- -->"
                             "<Other RecordDataLen='3' /></RecordTimeSegmentList>"
                             "</RecordQueryResult></RecordQueryResultList>"));
    ASSERT_EQ(1U, codec.getRecordQueryResultList().size());
    const std::vector<RecordTimeSegment>& segments = codec.getRecordQueryResultList()[0].getRecordTimeSegment();
    ASSERT_EQ(3U, segments.size());
    EXPECT_EQ(1UL, segments[0].getRecordDataLength());
    EXPECT_EQ(2UL, segments[1].getRecordDataLength());
    EXPECT_EQ(3UL, segments[2].getRecordDataLength());
}

TEST(RecordQueryResultXml, WalksOnFromTheFirstResultOverElementsOfAnyName)
{
    RecordQueryResultXml codec;
    ASSERT_TRUE(reads(codec, "<RecordQueryResultList><!--RecordQueryResult--><Other CameraID='1' />"
                             "<RecordQueryResult CameraID='2' />text<Other CameraID='3' /></RecordQueryResultList>"));
    ASSERT_EQ(2U, codec.getRecordQueryResultList().size());
    EXPECT_EQ(2, codec.getRecordQueryResultList()[0].getCameraID());
    EXPECT_EQ(3, codec.getRecordQueryResultList()[1].getCameraID());
}

TEST(RecordQueryResultXml, IsEmptyWithoutResults)
{
    RecordQueryResultXml codec;
    ASSERT_TRUE(reads(codec, "<RecordQueryResultList />"));
    EXPECT_TRUE(codec.getRecordQueryResultList().empty());
}
