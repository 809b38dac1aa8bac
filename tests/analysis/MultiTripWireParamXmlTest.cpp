#include "analysis/MultiTripWireParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

MultiTripWireRegionParam sampleRegion()
{
    MultiTripWireRegionParam region;
    region.setTargetTypeConstrain(true);
    region.setTargetType(31);
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setTimeInterval(35);
    region.setTriggerDirection1(90);
    region.setTriggerDirection2(180);
    region.setTripWireLine1(sampleLineCross());
    region.setTripWireLine2(otherLineCross());
    return region;
}

void expectRegion(const MultiTripWireRegionParam& expected, const MultiTripWireRegionParam& region)
{
    expectTarget(expected, region);
    EXPECT_EQ(expected.getTimeInterval(), region.getTimeInterval());
    EXPECT_EQ(expected.getTriggerDirection1(), region.getTriggerDirection1());
    EXPECT_EQ(expected.getTriggerDirection2(), region.getTriggerDirection2());
    expectLineCross(expected.getTripWireLine1(), region.getTripWireLine1());
    expectLineCross(expected.getTripWireLine2(), region.getTripWireLine2());
}

MultiTripWireParam sample()
{
    MultiTripWireParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setMultiTripWireRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const MultiTripWireParam& expected, const MultiTripWireParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getMultiTripWireRegionParamList().size(), rule.getMultiTripWireRegionParamList().size());
    for (std::size_t place = 0; place < rule.getMultiTripWireRegionParamList().size(); ++place)
        expectRegion(expected.getMultiTripWireRegionParamList()[place], rule.getMultiTripWireRegionParamList()[place]);
}

} // namespace

TEST(MultiTripWireParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MultiTripWireParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/MultiTripWireParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("MultiTripWireParam"));
    ASSERT_TRUE(MultiTripWireParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/MultiTripWireParamXml.node.xml"));
}

TEST(MultiTripWireParamXml, ReadsNodes)
{
    CapturedOutput output;
    MultiTripWireParam read;
    ASSERT_TRUE(MultiTripWireParamXml().parseXmlString(golden("analysis/MultiTripWireParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(MultiTripWireParamXml, TellsTheFlagsOfARegionApart)
{
    const std::vector<std::string> flags = {"TargetTypeConstrain", "TargetSizeConstrain"};
    for (const std::string& flag : flags)
    {
        MultiTripWireParam rule = sample();
        MultiTripWireRegionParam& region = rule.getMultiTripWireRegionParamList()[0];
        region.setTargetTypeConstrain(flag == "TargetTypeConstrain");
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");

        std::string text;
        ASSERT_TRUE(MultiTripWireParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/MultiTripWireParamXml.node.xml"), flags, flag), text);
        MultiTripWireParam read;
        ASSERT_TRUE(MultiTripWireParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(MultiTripWireParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    MultiTripWireParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/MultiTripWireParamXml.node.xml"), node));
    ASSERT_TRUE(MultiTripWireParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(MultiTripWireParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    MultiTripWireParam read = sample();
    ASSERT_TRUE(MultiTripWireParamXml().parseXmlString("<MultiTripWireParam />", read));
    expectRule(MultiTripWireParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(MultiTripWireParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    MultiTripWireParam read;
    ASSERT_TRUE(MultiTripWireParamXml().parseXmlString(
        "<MultiTripWireParam><RegionList><!-- --><Other /><Region><LineList><LineCross LineCrossStartX='0.1' "
        "LineCrossStartY='0.2' LineCrossEndX='0.8' LineCrossEndY='-0.9' /><LineCross LineCrossStartX='1.5' "
        "LineCrossStartY='1.25' LineCrossEndX='2.5' LineCrossEndY='3.5' "
        "/></LineList></Region></RegionList></MultiTripWireParam>",
        read));
    ASSERT_EQ(1U, read.getMultiTripWireRegionParamList().size());
    MultiTripWireRegionParam expected;
    expected.setTargetType(1);
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setTripWireLine1(sampleLineCross());
    expected.setTripWireLine2(otherLineCross());
    expectRegion(expected, read.getMultiTripWireRegionParamList()[0]);
}

TEST(MultiTripWireParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />", "<Region><LineList /></Region>",
                               "<Region><LineList><LineCross LineCrossStartX='0.1' LineCrossStartY='0.2' "
                               "LineCrossEndX='0.8' LineCrossEndY='-0.9' /></LineList></Region>"})
    {
        MultiTripWireParam read = sample();
        EXPECT_FALSE(
            MultiTripWireParamXml().parseXmlString(std::string("<MultiTripWireParam IsGetDetail='false'><RegionList>") +
                                                       region + "</RegionList></MultiTripWireParam>",
                                                   read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(MultiTripWireParamXml, RefusesALineOfAnotherName)
{
    MultiTripWireParam read = sample();
    EXPECT_FALSE(MultiTripWireParamXml().parseXmlString(
        "<MultiTripWireParam><RegionList><Region><LineList><LineCross /><Other /><LineCross /></LineList></Region>"
        "</RegionList></MultiTripWireParam>",
        read));
    expectRule(sample(), read);
}

TEST(MultiTripWireParamXml, TakesTheFirstTwoLines)
{
    MultiTripWireParam read;
    ASSERT_TRUE(MultiTripWireParamXml().parseXmlString(
        "<MultiTripWireParam><RegionList><Region><LineList><LineCross LineCrossStartX='0.1' LineCrossStartY='0.2' "
        "LineCrossEndX='0.8' LineCrossEndY='-0.9' /><LineCross LineCrossStartX='1.5' LineCrossStartY='1.25' "
        "LineCrossEndX='2.5' LineCrossEndY='3.5' /><LineCross LineCrossStartX='9' "
        "/></LineList></Region></RegionList></MultiTripWireParam>",
        read));
    ASSERT_EQ(1U, read.getMultiTripWireRegionParamList().size());
    expectLineCross(sampleLineCross(), read.getMultiTripWireRegionParamList()[0].getTripWireLine1());
    expectLineCross(otherLineCross(), read.getMultiTripWireRegionParamList()[0].getTripWireLine2());
}

TEST(MultiTripWireParamXml, CutsAFractionOfADirection)
{
    for (const auto& each : {std::make_pair("45.9", 45), std::make_pair("90", 90), std::make_pair("-1.5", -1),
                             std::make_pair("1e20", 2147483647), std::make_pair("nan", 0)})
    {
        MultiTripWireParam read;
        ASSERT_TRUE(MultiTripWireParamXml().parseXmlString(
            std::string("<MultiTripWireParam><RegionList><Region TriggerDirection1='") + each.first +
                "'><LineList><LineCross LineCrossStartX='0.1' LineCrossStartY='0.2' LineCrossEndX='0.8' "
                "LineCrossEndY='-0.9' /><LineCross LineCrossStartX='1.5' LineCrossStartY='1.25' LineCrossEndX='2.5' "
                "LineCrossEndY='3.5' /></LineList></Region></RegionList></MultiTripWireParam>",
            read));
        EXPECT_EQ(each.second, read.getMultiTripWireRegionParamList().at(0).getTriggerDirection1()) << each.first;
    }
}

TEST(MultiTripWireParamXml, CarriesTheBasePartThroughAReference)
{
    MultiTripWireParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(MultiTripWireParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MultiTripWireParam read = sample();
    EXPECT_FALSE(MultiTripWireParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MultiTripWireParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(MultiTripWireParamXml().createMultiTripWireRegionParamListToDomainXmlNode(
        read.getMultiTripWireRegionParamList(), empty));
    expectRule(sample(), read);
    std::vector<LineCross> lines;
    EXPECT_FALSE(MultiTripWireParamXml().createLineCrossToDomainXmlNode(LineCross(), LineCross(), empty));
    EXPECT_FALSE(MultiTripWireParamXml().parseLineCrossToDomainXmlNode(empty, lines));
}
