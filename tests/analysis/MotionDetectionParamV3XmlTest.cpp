#include "analysis/MotionDetectionParamV3Xml.h"

#include "tests/alarm/DetectionAreaSample.h"
#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

MotionDetectionParamV3 sample()
{
    MotionDetectionParamV3 rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setDetectionAreaV2(sampleDetectionAreaV2());
    return rule;
}

void expectRule(const MotionDetectionParamV3& expected, const MotionDetectionParamV3& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    expectDetectionAreaV2(expected.getDetectionAreaV2(), rule.getDetectionAreaV2());
}

} // namespace

TEST(MotionDetectionParamV3Xml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MotionDetectionParamV3Xml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/MotionDetectionParamV3Xml.node.xml"));
}

TEST(MotionDetectionParamV3Xml, ReadsNodes)
{
    CapturedOutput output;
    MotionDetectionParamV3 read;
    ASSERT_TRUE(
        MotionDetectionParamV3Xml().parseXmlString(golden("analysis/MotionDetectionParamV3Xml.node.xml"), read));
    expectRule(sample(), read);
    ASSERT_TRUE(
        MotionDetectionParamV3Xml().parseXmlString(golden("analysis/MotionDetectionParamV3Xml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(MotionDetectionParamV3Xml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    MotionDetectionParamV3 read = sample();
    ASSERT_TRUE(MotionDetectionParamV3Xml().parseXmlString(
        "<MotionDetectionParamV3><DetectionAreaV2 WidthCellNumber='24' HighCellNumber='25' Data='AQD/gA==' "
        "DataLength='4' /></MotionDetectionParamV3>",
        read));
    MotionDetectionParamV3 expected;
    expected.setDetectionAreaV2(sampleDetectionAreaV2());
    expectRule(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(MotionDetectionParamV3Xml, RefusesARuleWithoutItsCells)
{
    MotionDetectionParamV3 read = sample();
    EXPECT_FALSE(MotionDetectionParamV3Xml().parseXmlString("<MotionDetectionParamV3 IsGetDetail='false' />", read));
    expectRule(sample(), read);
}

// The rule has no node operations of its own: those of the base part stay in sight.
TEST(MotionDetectionParamV3Xml, CarriesTheBasePartInNodes)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(MotionDetectionParamV3Xml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
    MotionDetectionParamV3 read;
    ASSERT_TRUE(MotionDetectionParamV3Xml().parseDomainXmlNode(node, read));
    expectBasePart(sample(), read);
    EXPECT_FALSE(read.getIsGetDetail());
}

TEST(MotionDetectionParamV3Xml, CarriesTheBasePartThroughAReference)
{
    MotionDetectionParamV3Xml codec;
    IntelligeBaseParamXml& base = codec;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(MotionDetectionParamV3Xml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MotionDetectionParamV3 read = sample();
    DetectionAreaV2 area;
    EXPECT_FALSE(MotionDetectionParamV3Xml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MotionDetectionParamV3Xml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(MotionDetectionParamV3Xml().createDetectionAreaV2ToDomainXmlNode(area, empty));
    EXPECT_FALSE(MotionDetectionParamV3Xml().parseDetectionAreaV2ToDomainXmlNode(empty, area));
    expectRule(sample(), read);
}
