#include "alarm/DetectionAreaXml.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/support/Documents.h"

TEST(DetectionAreaXml, Writes)
{
    DetectionAreaXml codec;
    codec.setDetectionArea(sampleDetectionArea());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/DetectionAreaXml.document.xml"));
}

TEST(DetectionAreaXml, Reads)
{
    DetectionAreaXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/DetectionAreaXml.document.xml")));
    expectDetectionArea(sampleDetectionArea(), codec.getDetectionArea());
}

TEST(DetectionAreaXml, ResetsWhatIsMissing)
{
    DetectionAreaXml codec;
    codec.setDetectionArea(sampleDetectionArea());
    ASSERT_TRUE(reads(codec, "<DetectionArea />"));
    expectDetectionArea(DetectionArea(), codec.getDetectionArea());
}

TEST(DetectionAreaXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(
        DetectionAreaXml().createXmlString(std::vector<DetectionArea>{sampleDetectionArea(), DetectionArea()}, text));
    EXPECT_TRUE(matchesGolden(text, "alarm/DetectionAreaXml.list.xml"));
    ASSERT_TRUE(DetectionAreaXml().createXmlString(std::vector<DetectionArea>(), text));
    EXPECT_EQ("<DetectionAreaList />\n", text);
}

TEST(DetectionAreaXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DetectionArea> list(1, DetectionArea());
    ASSERT_TRUE(DetectionAreaXml().parseXmlString(golden("alarm/DetectionAreaXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectDetectionArea(DetectionArea(), list[0]);
    expectDetectionArea(sampleDetectionArea(), list[1]);
    expectDetectionArea(DetectionArea(), list[2]);
}

TEST(DetectionAreaXml, ResetsWhatAnItemLacksInSilence)
{
    CapturedOutput output;
    std::vector<DetectionArea> list;
    ASSERT_TRUE(DetectionAreaXml().parseXmlString(
        "<DetectionAreaList>text<!-- --><Other Width='5' /></DetectionAreaList>", list));
    DetectionArea expected;
    expected.setWidth(5);
    expectDetectionAreas({expected}, list);
    EXPECT_EQ("", output.text());
}

TEST(DetectionAreaXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<DetectionArea> list(1, sampleDetectionArea());
    EXPECT_FALSE(DetectionAreaXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(DetectionAreaXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
