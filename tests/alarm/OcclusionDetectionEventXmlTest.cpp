#include "alarm/OcclusionDetectionEventXml.h"

#include "tests/alarm/ActionSample.h"
#include "tests/alarm/OcclusionDetectionSample.h"
#include "tests/support/Documents.h"

TEST(OcclusionDetectionEventXml, Writes)
{
    OcclusionDetectionEventXml codec;
    codec.setOcclusionDetectionEvent(sampleOcclusionDetectionEvent());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/OcclusionDetectionEventXml.document.xml"));
}

TEST(OcclusionDetectionEventXml, Reads)
{
    OcclusionDetectionEventXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/OcclusionDetectionEventXml.document.xml")));
    expectOcclusionDetectionEvent(sampleOcclusionDetectionEvent(), codec.getOcclusionDetectionEvent());
}

TEST(OcclusionDetectionEventXml, LeavesWhatIsMissing)
{
    OcclusionDetectionEventXml codec;
    codec.setOcclusionDetectionEvent(sampleOcclusionDetectionEvent());
    ASSERT_TRUE(reads(codec, "<OcclusionDetectionEvent />"));
    expectOcclusionDetectionEvent(sampleOcclusionDetectionEvent(), codec.getOcclusionDetectionEvent());
}

TEST(OcclusionDetectionEventXml, AddsActionsBehindThoseThatAreThere)
{
    OcclusionDetectionEventXml codec;
    codec.getOcclusionDetectionEvent().getAlarmOutAction().resize(1);
    codec.getOcclusionDetectionEvent().getAlarmPTZAction().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/OcclusionDetectionEventXml.document.xml")));
    expectAlarmOutActions({AlarmOutAction(), sampleAlarmOutAction()},
                          codec.getOcclusionDetectionEvent().getAlarmOutAction());
    expectAlarmPTZActions({AlarmPTZAction(), sampleAlarmPTZAction()},
                          codec.getOcclusionDetectionEvent().getAlarmPTZAction());
}

TEST(OcclusionDetectionEventXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(OcclusionDetectionEventXml().createXmlString(
        std::vector<OcclusionDetectionEvent>{sampleOcclusionDetectionEvent(), OcclusionDetectionEvent()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/OcclusionDetectionEventXml.list.xml"));
    ASSERT_TRUE(OcclusionDetectionEventXml().createXmlString(std::vector<OcclusionDetectionEvent>(), text));
    EXPECT_EQ("<OcclusionDetectionEventList />\n", text);
}

TEST(OcclusionDetectionEventXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<OcclusionDetectionEvent> list(1, OcclusionDetectionEvent());
    ASSERT_TRUE(OcclusionDetectionEventXml().parseXmlString(golden("alarm/OcclusionDetectionEventXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectOcclusionDetectionEvent(OcclusionDetectionEvent(), list[0]);
    expectOcclusionDetectionEvent(sampleOcclusionDetectionEvent(), list[1]);
    expectOcclusionDetectionEvent(OcclusionDetectionEvent(), list[2]);
}

TEST(OcclusionDetectionEventXml, ResetsWhatAnItemLacksInSilence)
{
    CapturedOutput output;
    std::vector<OcclusionDetectionEvent> list;
    ASSERT_TRUE(OcclusionDetectionEventXml().parseXmlString(
        "<OcclusionDetectionEventList>text<!-- --><Other /></OcclusionDetectionEventList>", list));
    ASSERT_EQ(1U, list.size());
    expectOcclusionDetectionEvent(OcclusionDetectionEvent(), list[0]);
    EXPECT_EQ("", output.text());
}

TEST(OcclusionDetectionEventXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<OcclusionDetectionEvent> list(1, sampleOcclusionDetectionEvent());
    EXPECT_FALSE(OcclusionDetectionEventXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(OcclusionDetectionEventXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
