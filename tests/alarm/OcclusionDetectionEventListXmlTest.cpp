#include "alarm/OcclusionDetectionEventListXml.h"

#include "tests/alarm/OcclusionDetectionSample.h"
#include "tests/support/Documents.h"

TEST(OcclusionDetectionEventListXml, Writes)
{
    OcclusionDetectionEventListXml codec;
    codec.setOcclusionDetectionEvent({sampleOcclusionDetectionEvent(), OcclusionDetectionEvent()});
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/OcclusionDetectionEventListXml.document.xml"));
}

TEST(OcclusionDetectionEventListXml, WritesAnEmptyList)
{
    OcclusionDetectionEventListXml codec;
    EXPECT_EQ("<OcclusionDetectionEventList />\n", written(codec));
}

TEST(OcclusionDetectionEventListXml, ReadsBehindWhatTheListHolds)
{
    OcclusionDetectionEventListXml codec;
    codec.getOcclusionDetectionEvent().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/OcclusionDetectionEventListXml.document.xml")));
    const std::vector<OcclusionDetectionEvent>& events = codec.getOcclusionDetectionEvent();
    ASSERT_EQ(3U, events.size());
    expectOcclusionDetectionEvent(OcclusionDetectionEvent(), events[0]);
    expectOcclusionDetectionEvent(sampleOcclusionDetectionEvent(), events[1]);
    expectOcclusionDetectionEvent(OcclusionDetectionEvent(), events[2]);
}

TEST(OcclusionDetectionEventListXml, WalksOnFromTheFirstEventOverElementsOfAnyName)
{
    OcclusionDetectionEventListXml codec;
    ASSERT_TRUE(reads(codec,
                      "<OcclusionDetectionEventList><Other CameraId='1' /><OcclusionDetectionEvent CameraId='2' />"
                      "<!-- -->text<Other CameraId='3' /></OcclusionDetectionEventList>"));
    ASSERT_EQ(2U, codec.getOcclusionDetectionEvent().size());
    EXPECT_EQ(2, codec.getOcclusionDetectionEvent()[0].getCameraId());
    EXPECT_EQ(3, codec.getOcclusionDetectionEvent()[1].getCameraId());
}

TEST(OcclusionDetectionEventListXml, ReadsTheListsOfTheNodeForm)
{
    OcclusionDetectionEventListXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/OcclusionDetectionEventXml.list.xml")));
    EXPECT_EQ(2U, codec.getOcclusionDetectionEvent().size());
}
