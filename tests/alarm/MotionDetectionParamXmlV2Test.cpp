#include "alarm/MotionDetectionParamXmlV2.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/alarm/MotionDetectionParamSample.h"
#include "tests/support/Documents.h"

TEST(MotionDetectionParamXmlV2, Writes)
{
    MotionDetectionParamXmlV2 codec;
    codec.setMotionDetectionParamV2(sampleMotionDetectionParamV2());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/MotionDetectionParamXmlV2.document.xml"));
}

TEST(MotionDetectionParamXmlV2, Reads)
{
    MotionDetectionParamXmlV2 codec;
    ASSERT_TRUE(reads(codec, golden("alarm/MotionDetectionParamXmlV2.document.xml")));
    expectMotionDetectionParamV2(sampleMotionDetectionParamV2(), codec.getMotionDetectionParamV2());
}

TEST(MotionDetectionParamXmlV2, ResetsAttributesAndLeavesTheAreaThatAreMissing)
{
    MotionDetectionParamXmlV2 codec;
    codec.setMotionDetectionParamV2(sampleMotionDetectionParamV2());
    ASSERT_TRUE(reads(codec, "<MotionDetectionParamV2 />"));
    MotionDetectionParamV2 expected;
    expected.setDetectionArea(sampleDetectionAreaV2());
    expectMotionDetectionParamV2(expected, codec.getMotionDetectionParamV2());
}

TEST(MotionDetectionParamXmlV2, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MotionDetectionParamXmlV2().createXmlString(sampleMotionDetectionParamV2(), text));
    EXPECT_TRUE(matchesGolden(text, "alarm/MotionDetectionParamXmlV2.node.xml"));
}

TEST(MotionDetectionParamXmlV2, ReadsNodes)
{
    CapturedOutput output;
    MotionDetectionParamV2 read;
    ASSERT_TRUE(MotionDetectionParamXmlV2().parseXmlString(golden("alarm/MotionDetectionParamXmlV2.node.xml"), read));
    expectMotionDetectionParamV2(sampleMotionDetectionParamV2(), read);
    EXPECT_EQ("", output.text());
}

TEST(MotionDetectionParamXmlV2, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    MotionDetectionParamV2 read = sampleMotionDetectionParamV2();
    ASSERT_TRUE(MotionDetectionParamXmlV2().parseXmlString("<DetectionAreaV2 />", read));
    expectMotionDetectionParamV2(MotionDetectionParamV2(), read);
    EXPECT_EQ(" MotionDetectionParamXmlV2::parseDomainXmlNode node = NODE_DETECTION_AREA failed \n", output.text());
}

TEST(MotionDetectionParamXmlV2, KnowsItsNodesByTheNameOfTheirChildOnly)
{
    MotionDetectionParamV2 read;
    EXPECT_FALSE(
        MotionDetectionParamXmlV2().parseXmlString(golden("alarm/MotionDetectionParamXmlV2.document.xml"), read));
    MotionDetectionParamXmlV2 codec;
    EXPECT_FALSE(reads(codec, golden("alarm/MotionDetectionParamXmlV2.node.xml")));
}

TEST(MotionDetectionParamXmlV2, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MotionDetectionParamV2 read = sampleMotionDetectionParamV2();
    EXPECT_FALSE(MotionDetectionParamXmlV2().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MotionDetectionParamXmlV2().parseDomainXmlNode(empty, read));
    expectMotionDetectionParamV2(sampleMotionDetectionParamV2(), read);
}
