#include "analysis/PerimeterParamXml.h"

#include "alarm/DetectionAreaXmlV2.h"
#include "core/PolygonAreaXml.h"
#include "tests/alarm/DetectionAreaSample.h"
#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

PerimeterRegionParam sampleRegion()
{
    PerimeterRegionParam region;
    region.setTargetTypeConstrain(true);
    region.setTargetType(31);
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setSensitivity(36);
    region.setRegion(samplePolygonArea());
    region.setDetectionAreaV2(sampleDetectionAreaV2());
    return region;
}

void expectRegion(const PerimeterRegionParam& expected, const PerimeterRegionParam& region)
{
    expectTarget(expected, region);
    EXPECT_EQ(expected.getSensitivity(), region.getSensitivity());
    expectPolygonArea(expected.getRegion(), region.getRegion());
    expectDetectionAreaV2(expected.getDetectionAreaV2(), region.getDetectionAreaV2());
}

PerimeterParam sample()
{
    PerimeterParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setPerimeterRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const PerimeterParam& expected, const PerimeterParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getPerimeterRegionParamList().size(), rule.getPerimeterRegionParamList().size());
    for (std::size_t place = 0; place < rule.getPerimeterRegionParamList().size(); ++place)
        expectRegion(expected.getPerimeterRegionParamList()[place], rule.getPerimeterRegionParamList()[place]);
}

} // namespace

TEST(PerimeterParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PerimeterParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/PerimeterParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("PerimeterParam"));
    ASSERT_TRUE(PerimeterParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/PerimeterParamXml.node.xml"));
}

TEST(PerimeterParamXml, ReadsNodes)
{
    CapturedOutput output;
    PerimeterParam read;
    ASSERT_TRUE(PerimeterParamXml().parseXmlString(golden("analysis/PerimeterParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("**************************************\n", output.text());
}

TEST(PerimeterParamXml, TellsTheFlagsOfARegionApart)
{
    CapturedOutput output;
    const std::vector<std::string> flags = {"TargetTypeConstrain", "TargetSizeConstrain"};
    for (const std::string& flag : flags)
    {
        PerimeterParam rule = sample();
        PerimeterRegionParam& region = rule.getPerimeterRegionParamList()[0];
        region.setTargetTypeConstrain(flag == "TargetTypeConstrain");
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");

        std::string text;
        ASSERT_TRUE(PerimeterParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/PerimeterParamXml.node.xml"), flags, flag), text);
        PerimeterParam read;
        ASSERT_TRUE(PerimeterParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(PerimeterParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    PerimeterParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/PerimeterParamXml.node.xml"), node));
    ASSERT_TRUE(PerimeterParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("**************************************\n", output.text());
}

TEST(PerimeterParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    PerimeterParam read = sample();
    ASSERT_TRUE(PerimeterParamXml().parseXmlString("<PerimeterParam />", read));
    expectRule(PerimeterParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(PerimeterParamXml, PrintsLinesForAMissingBasePartOfANode)
{
    CapturedOutput output;
    PerimeterParam read = sample();
    SafePointer<DomainXmlNode> node(new DomainXmlNode("PerimeterParam"));
    ASSERT_TRUE(PerimeterParamXml().parseDomainXmlNode(node, read));
    expectRule(PerimeterParam(), read);
    EXPECT_EQ("perimeter get IntelligeBaseParam node failed\n"
              "objIntelligeBaseParamXml.parseDomainXmlNode failed\n",
              output.text());
}

TEST(PerimeterParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    PerimeterParam read;
    ASSERT_TRUE(PerimeterParamXml().parseXmlString(
        "<PerimeterParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' AttrYval='0.5' "
        "/><ZTPoint AttrXval='0.75' AttrYval='-3' /></PolygonArealist><DetectionAreaV2 WidthCellNumber='24' "
        "HighCellNumber='25' Data='AQD/gA==' DataLength='4' /></Region></RegionList></PerimeterParam>",
        read));
    ASSERT_EQ(1U, read.getPerimeterRegionParamList().size());
    PerimeterRegionParam expected;
    expected.setTargetType(1);
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setRegion(samplePolygonArea());
    expected.setDetectionAreaV2(sampleDetectionAreaV2());
    expectRegion(expected, read.getPerimeterRegionParamList()[0]);
}

TEST(PerimeterParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />",
                               "<Region><PolygonArealist><ZTPoint AttrXval='0.25' AttrYval='0.5' /><ZTPoint "
                               "AttrXval='0.75' AttrYval='-3' /></PolygonArealist></Region>",
                               "<Region><DetectionAreaV2 WidthCellNumber='24' HighCellNumber='25' Data='AQD/gA==' "
                               "DataLength='4' /></Region>"})
    {
        PerimeterParam read = sample();
        EXPECT_FALSE(PerimeterParamXml().parseXmlString(
            std::string("<PerimeterParam IsGetDetail='false'><RegionList>") + region + "</RegionList></PerimeterParam>",
            read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(PerimeterParamXml, PrintsAsterisksForEachRegionInBothReaders)
{
    const std::string text =
        "<PerimeterParam><IntelligeBaseParam /><RegionList><Region><PolygonArealist><ZTPoint AttrXval='0.25' "
        "AttrYval='0.5' /><ZTPoint AttrXval='0.75' AttrYval='-3' /></PolygonArealist><DetectionAreaV2 "
        "WidthCellNumber='24' HighCellNumber='25' Data='AQD/gA==' DataLength='4' "
        "/></Region><Region><PolygonArealist><ZTPoint AttrXval='0.25' AttrYval='0.5' /><ZTPoint AttrXval='0.75' "
        "AttrYval='-3' /></PolygonArealist><DetectionAreaV2 WidthCellNumber='24' HighCellNumber='25' Data='AQD/gA==' "
        "DataLength='4' /></Region></RegionList></PerimeterParam>";
    const std::string twice = "**************************************\n**************************************\n";
    PerimeterParam read;
    {
        CapturedOutput output;
        ASSERT_TRUE(PerimeterParamXml().parseXmlString(text, read));
        EXPECT_EQ(twice, output.text());
    }
    CapturedOutput output;
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(text, node));
    ASSERT_TRUE(PerimeterParamXml().parseDomainXmlNode(node, read));
    EXPECT_EQ(twice, output.text());
    ASSERT_EQ(2U, read.getPerimeterRegionParamList().size());
    expectPolygonArea(samplePolygonArea(), read.getPerimeterRegionParamList()[1].getRegion());
}

TEST(PerimeterParamXml, TakesNoMoreCellsThanThereAre)
{
    CapturedOutput output;
    PerimeterParam read;
    ASSERT_TRUE(PerimeterParamXml().parseXmlString(
        "<PerimeterParam><RegionList><Region><PolygonArealist /><DetectionAreaV2 Data='AQD/gA==' DataLength='1000000' "
        "/></Region></RegionList></PerimeterParam>",
        read));
    EXPECT_EQ(4, read.getPerimeterRegionParamList().at(0).getDetectionAreaV2().getDataLength());
}

// Peers print what a region embeds, parse that text and add the tree.
TEST(PerimeterParamXml, EmbedsWhatAPassageThroughTextGives)
{
    PerimeterParamXml codec;
    SafePointer<DomainXmlNode> expected(new DomainXmlNode("Region"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Region"));
    std::string text;
    ASSERT_TRUE(PolygonAreaXml().createXmlString(samplePolygonArea(), text));
    addText(text, expected);
    DetectionAreaXmlV2 cells;
    cells.setDetectionArea(sampleDetectionAreaV2());
    ASSERT_TRUE(cells.createXmlString());
    addText(cells.getXmlString(), expected);
    ASSERT_TRUE(codec.createPolygonAreaToDomainXmlNode(samplePolygonArea(), node));
    ASSERT_TRUE(codec.createDetectionAreaV2ToDomainXmlNode(sampleDetectionAreaV2(), node));
    EXPECT_EQ(textOf(expected), textOf(node));
    PolygonArea area;
    ASSERT_TRUE(codec.parsePolygonAreaToDomainXmlNode(node, area));
    expectPolygonArea(samplePolygonArea(), area);
    DetectionAreaV2 map;
    ASSERT_TRUE(codec.parseDetectionAreaV2ToDomainXmlNode(node, map));
    expectDetectionAreaV2(sampleDetectionAreaV2(), map);
}

TEST(PerimeterParamXml, CarriesTheBasePartThroughAReference)
{
    PerimeterParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(PerimeterParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PerimeterParam read = sample();
    EXPECT_FALSE(PerimeterParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PerimeterParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(
        PerimeterParamXml().createPerimeterRegionParamListToDomainXmlNode(read.getPerimeterRegionParamList(), empty));
    expectRule(sample(), read);
    DetectionAreaV2 area;
    EXPECT_FALSE(PerimeterParamXml().createDetectionAreaV2ToDomainXmlNode(area, empty));
    EXPECT_FALSE(PerimeterParamXml().parseDetectionAreaV2ToDomainXmlNode(empty, area));
}
