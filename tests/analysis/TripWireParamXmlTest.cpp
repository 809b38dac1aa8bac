#include "analysis/TripWireParamXml.h"

#include "core/LineCrossXml.h"
#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

TripWireRegionParam sampleRegion()
{
    TripWireRegionParam region;
    region.setTargetTypeConstrain(true);
    region.setTargetType(31);
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setIsBidirection(true);
    region.setTriggerDirection(90);
    region.setLineCross(sampleLineCross());
    return region;
}

void expectRegion(const TripWireRegionParam& expected, const TripWireRegionParam& region)
{
    expectTarget(expected, region);
    EXPECT_EQ(expected.getIsBidirection(), region.getIsBidirection());
    EXPECT_EQ(expected.getTriggerDirection(), region.getTriggerDirection());
    expectLineCross(expected.getLineCross(), region.getLineCross());
}

TripWireParam sample()
{
    TripWireParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setTripWireRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const TripWireParam& expected, const TripWireParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getTripWireRegionParamList().size(), rule.getTripWireRegionParamList().size());
    for (std::size_t place = 0; place < rule.getTripWireRegionParamList().size(); ++place)
        expectRegion(expected.getTripWireRegionParamList()[place], rule.getTripWireRegionParamList()[place]);
}

} // namespace

TEST(TripWireParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(TripWireParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/TripWireParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("TripWireParam"));
    ASSERT_TRUE(TripWireParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/TripWireParamXml.node.xml"));
}

TEST(TripWireParamXml, ReadsNodes)
{
    CapturedOutput output;
    TripWireParam read;
    ASSERT_TRUE(TripWireParamXml().parseXmlString(golden("analysis/TripWireParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(TripWireParamXml, TellsTheFlagsOfARegionApart)
{
    const std::vector<std::string> flags = {"TargetTypeConstrain", "TargetSizeConstrain", "IsBidirection"};
    for (const std::string& flag : flags)
    {
        TripWireParam rule = sample();
        TripWireRegionParam& region = rule.getTripWireRegionParamList()[0];
        region.setTargetTypeConstrain(flag == "TargetTypeConstrain");
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");
        region.setIsBidirection(flag == "IsBidirection");

        std::string text;
        ASSERT_TRUE(TripWireParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/TripWireParamXml.node.xml"), flags, flag), text);
        TripWireParam read;
        ASSERT_TRUE(TripWireParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(TripWireParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    TripWireParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/TripWireParamXml.node.xml"), node));
    ASSERT_TRUE(TripWireParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(TripWireParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    TripWireParam read = sample();
    ASSERT_TRUE(TripWireParamXml().parseXmlString("<TripWireParam />", read));
    expectRule(TripWireParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(TripWireParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    TripWireParam read;
    ASSERT_TRUE(TripWireParamXml().parseXmlString(
        "<TripWireParam><RegionList><!-- --><Other /><Region><LineCross LineCrossStartX='0.1' LineCrossStartY='0.2' "
        "LineCrossEndX='0.8' LineCrossEndY='-0.9' /></Region></RegionList></TripWireParam>",
        read));
    ASSERT_EQ(1U, read.getTripWireRegionParamList().size());
    TripWireRegionParam expected;
    expected.setTargetType(1);
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setLineCross(sampleLineCross());
    expectRegion(expected, read.getTripWireRegionParamList()[0]);
}

TEST(TripWireParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        TripWireParam read = sample();
        EXPECT_FALSE(TripWireParamXml().parseXmlString(std::string("<TripWireParam IsGetDetail='false'><RegionList>") +
                                                           region + "</RegionList></TripWireParam>",
                                                       read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(TripWireParamXml, CutsAFractionOfADirection)
{
    for (const auto& each : {std::make_pair("45.9", 45), std::make_pair("90", 90), std::make_pair("-1.5", -1),
                             std::make_pair("1e20", 2147483647), std::make_pair("nan", 0)})
    {
        TripWireParam read;
        ASSERT_TRUE(TripWireParamXml().parseXmlString(
            std::string("<TripWireParam><RegionList><Region TriggerDirection='") + each.first +
                "'><LineCross LineCrossStartX='0.1' LineCrossStartY='0.2' LineCrossEndX='0.8' LineCrossEndY='-0.9' "
                "/></Region></RegionList></TripWireParam>",
            read));
        EXPECT_EQ(each.second, read.getTripWireRegionParamList().at(0).getTriggerDirection()) << each.first;
    }
}

// Peers print what a region embeds, parse that text and add the tree.
TEST(TripWireParamXml, EmbedsWhatAPassageThroughTextGives)
{
    TripWireParamXml codec;
    SafePointer<DomainXmlNode> expected(new DomainXmlNode("Region"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Region"));
    std::string text;
    ASSERT_TRUE(LineCrossXml().createXmlString(sampleLineCross(), text));
    addText(text, expected);
    ASSERT_TRUE(codec.createLineCrossToDomainXmlNode(sampleLineCross(), node));
    EXPECT_EQ(textOf(expected), textOf(node));
    LineCross line;
    ASSERT_TRUE(codec.parseLineCrossToDomainXmlNode(node, line));
    expectLineCross(sampleLineCross(), line);
}

TEST(TripWireParamXml, CarriesTheBasePartThroughAReference)
{
    TripWireParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(TripWireParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    TripWireParam read = sample();
    EXPECT_FALSE(TripWireParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(TripWireParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(
        TripWireParamXml().createTripWireRegionParamListToDomainXmlNode(read.getTripWireRegionParamList(), empty));
    expectRule(sample(), read);
    LineCross line;
    EXPECT_FALSE(TripWireParamXml().createLineCrossToDomainXmlNode(line, empty));
    EXPECT_FALSE(TripWireParamXml().parseLineCrossToDomainXmlNode(empty, line));
}
