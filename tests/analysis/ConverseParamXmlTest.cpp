#include "analysis/ConverseParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

ConverseRegionParam sampleRegion()
{
    ConverseRegionParam region;
    region.setTargetTypeConstrain(true);
    region.setTargetType(31);
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setConverseAngle(45.5F);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const ConverseRegionParam& expected, const ConverseRegionParam& region)
{
    expectTarget(expected, region);
    EXPECT_EQ(expected.getConverseAngle(), region.getConverseAngle());
    expectPolygonArea(expected.getRegion(), region.getRegion());
}

ConverseParam sample()
{
    ConverseParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setConverseRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const ConverseParam& expected, const ConverseParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getConverseRegionParamList().size(), rule.getConverseRegionParamList().size());
    for (std::size_t place = 0; place < rule.getConverseRegionParamList().size(); ++place)
        expectRegion(expected.getConverseRegionParamList()[place], rule.getConverseRegionParamList()[place]);
}

} // namespace

TEST(ConverseParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ConverseParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/ConverseParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("ConverseParam"));
    ASSERT_TRUE(ConverseParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/ConverseParamXml.node.xml"));
}

TEST(ConverseParamXml, ReadsNodes)
{
    CapturedOutput output;
    ConverseParam read;
    ASSERT_TRUE(ConverseParamXml().parseXmlString(golden("analysis/ConverseParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ConverseParamXml, TellsTheFlagsOfARegionApart)
{
    const std::vector<std::string> flags = {"TargetTypeConstrain", "TargetSizeConstrain"};
    for (const std::string& flag : flags)
    {
        ConverseParam rule = sample();
        ConverseRegionParam& region = rule.getConverseRegionParamList()[0];
        region.setTargetTypeConstrain(flag == "TargetTypeConstrain");
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");

        std::string text;
        ASSERT_TRUE(ConverseParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/ConverseParamXml.node.xml"), flags, flag), text);
        ConverseParam read;
        ASSERT_TRUE(ConverseParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(ConverseParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    ConverseParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/ConverseParamXml.node.xml"), node));
    ASSERT_TRUE(ConverseParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ConverseParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    ConverseParam read = sample();
    ASSERT_TRUE(ConverseParamXml().parseXmlString("<ConverseParam />", read));
    expectRule(ConverseParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ConverseParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    ConverseParam read;
    ASSERT_TRUE(ConverseParamXml().parseXmlString(
        "<ConverseParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' AttrYval='0.5' "
        "/><ZTPoint AttrXval='0.75' AttrYval='-3' /></PolygonArealist></Region></RegionList></ConverseParam>",
        read));
    ASSERT_EQ(1U, read.getConverseRegionParamList().size());
    ConverseRegionParam expected;
    expected.setTargetType(1);
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getConverseRegionParamList()[0]);
}

TEST(ConverseParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        ConverseParam read = sample();
        EXPECT_FALSE(ConverseParamXml().parseXmlString(std::string("<ConverseParam IsGetDetail='false'><RegionList>") +
                                                           region + "</RegionList></ConverseParam>",
                                                       read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(ConverseParamXml, CarriesTheBasePartThroughAReference)
{
    ConverseParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(ConverseParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ConverseParam read = sample();
    EXPECT_FALSE(ConverseParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ConverseParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(
        ConverseParamXml().createConverseRegionParamListToDomainXmlNode(read.getConverseRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(ConverseParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(ConverseParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
