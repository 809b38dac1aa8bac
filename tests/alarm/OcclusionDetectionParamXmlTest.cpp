#include "alarm/OcclusionDetectionParamXml.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/alarm/OcclusionDetectionSample.h"
#include "tests/support/Documents.h"

TEST(OcclusionDetectionParamXml, Writes)
{
    OcclusionDetectionParamXml codec;
    codec.setOcclusionDetectionParam(sampleOcclusionDetectionParam());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/OcclusionDetectionParamXml.document.xml"));
}

TEST(OcclusionDetectionParamXml, Reads)
{
    OcclusionDetectionParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/OcclusionDetectionParamXml.document.xml")));
    expectOcclusionDetectionParam(sampleOcclusionDetectionParam(), codec.getOcclusionDetectionParam());
}

TEST(OcclusionDetectionParamXml, ResetsAttributesAndLeavesTheAreasThatAreMissing)
{
    OcclusionDetectionParamXml codec;
    codec.setOcclusionDetectionParam(sampleOcclusionDetectionParam());
    ASSERT_TRUE(reads(codec, "<OcclusionDetectionParam />"));
    OcclusionDetectionParam expected = sampleOcclusionDetectionParam();
    expected.setSensitivity(0);
    expectOcclusionDetectionParam(expected, codec.getOcclusionDetectionParam());
}

TEST(OcclusionDetectionParamXml, AddsAreasBehindThoseThatAreThere)
{
    OcclusionDetectionParamXml codec;
    codec.getOcclusionDetectionParam().getDetectionArea().resize(1);
    ASSERT_TRUE(reads(codec, golden("alarm/OcclusionDetectionParamXml.document.xml")));
    expectDetectionAreas({DetectionArea(), sampleDetectionArea()},
                         codec.getOcclusionDetectionParam().getDetectionArea());
}

TEST(OcclusionDetectionParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(OcclusionDetectionParamXml().createXmlString(sampleOcclusionDetectionParam(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/OcclusionDetectionParamXml.node.xml"));
}

TEST(OcclusionDetectionParamXml, ReadsNodes)
{
    CapturedOutput output;
    OcclusionDetectionParam read;
    ASSERT_TRUE(OcclusionDetectionParamXml().parseXmlString(golden("alarm/OcclusionDetectionParamXml.node.xml"), read));
    expectOcclusionDetectionParam(sampleOcclusionDetectionParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(OcclusionDetectionParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    OcclusionDetectionParam read = sampleOcclusionDetectionParam();
    ASSERT_TRUE(OcclusionDetectionParamXml().parseXmlString("<OcclusionDetectionParam />", read));
    expectOcclusionDetectionParam(OcclusionDetectionParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(OcclusionDetectionParamXml, PutsTheAreasOfANodeInPlaceOfOthers)
{
    OcclusionDetectionParam read = sampleOcclusionDetectionParam();
    ASSERT_TRUE(OcclusionDetectionParamXml().parseXmlString(golden("alarm/OcclusionDetectionParamXml.node.xml"), read));
    expectOcclusionDetectionParam(sampleOcclusionDetectionParam(), read);
}

TEST(OcclusionDetectionParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    OcclusionDetectionParam read = sampleOcclusionDetectionParam();
    EXPECT_FALSE(OcclusionDetectionParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(OcclusionDetectionParamXml().parseDomainXmlNode(empty, read));
    expectOcclusionDetectionParam(sampleOcclusionDetectionParam(), read);
}
