#include "analysis/LoiterParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

LoiterRegionParam sampleRegion()
{
    LoiterRegionParam region;
    region.setTargetTypeConstrain(true);
    region.setTargetType(31);
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setMinTime(34);
    region.setAnalysisPath(true);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const LoiterRegionParam& expected, const LoiterRegionParam& region)
{
    expectTarget(expected, region);
    EXPECT_EQ(expected.getMinTime(), region.getMinTime());
    EXPECT_EQ(expected.getAnalysisPath(), region.getAnalysisPath());
    expectPolygonArea(expected.getRegion(), region.getRegion());
}

LoiterParam sample()
{
    LoiterParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setLoiterRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const LoiterParam& expected, const LoiterParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getLoiterRegionParamList().size(), rule.getLoiterRegionParamList().size());
    for (std::size_t place = 0; place < rule.getLoiterRegionParamList().size(); ++place)
        expectRegion(expected.getLoiterRegionParamList()[place], rule.getLoiterRegionParamList()[place]);
}

} // namespace

TEST(LoiterParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(LoiterParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/LoiterParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("LoiterParam"));
    ASSERT_TRUE(LoiterParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/LoiterParamXml.node.xml"));
}

TEST(LoiterParamXml, ReadsNodes)
{
    CapturedOutput output;
    LoiterParam read;
    ASSERT_TRUE(LoiterParamXml().parseXmlString(golden("analysis/LoiterParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(LoiterParamXml, TellsTheFlagsOfARegionApart)
{
    const std::vector<std::string> flags = {"TargetTypeConstrain", "TargetSizeConstrain", "IsAnalysisPath"};
    for (const std::string& flag : flags)
    {
        LoiterParam rule = sample();
        LoiterRegionParam& region = rule.getLoiterRegionParamList()[0];
        region.setTargetTypeConstrain(flag == "TargetTypeConstrain");
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");
        region.setAnalysisPath(flag == "IsAnalysisPath");

        std::string text;
        ASSERT_TRUE(LoiterParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/LoiterParamXml.node.xml"), flags, flag), text);
        LoiterParam read;
        ASSERT_TRUE(LoiterParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(LoiterParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    LoiterParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/LoiterParamXml.node.xml"), node));
    ASSERT_TRUE(LoiterParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(LoiterParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    LoiterParam read = sample();
    ASSERT_TRUE(LoiterParamXml().parseXmlString("<LoiterParam />", read));
    expectRule(LoiterParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(LoiterParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    LoiterParam read;
    ASSERT_TRUE(LoiterParamXml().parseXmlString(
        "<LoiterParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' AttrYval='0.5' "
        "/><ZTPoint AttrXval='0.75' AttrYval='-3' /></PolygonArealist></Region></RegionList></LoiterParam>",
        read));
    ASSERT_EQ(1U, read.getLoiterRegionParamList().size());
    LoiterRegionParam expected;
    expected.setTargetType(1);
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getLoiterRegionParamList()[0]);
}

TEST(LoiterParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        LoiterParam read = sample();
        EXPECT_FALSE(LoiterParamXml().parseXmlString(std::string("<LoiterParam IsGetDetail='false'><RegionList>") +
                                                         region + "</RegionList></LoiterParam>",
                                                     read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(LoiterParamXml, CarriesTheBasePartThroughAReference)
{
    LoiterParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(LoiterParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    LoiterParam read = sample();
    EXPECT_FALSE(LoiterParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(LoiterParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(LoiterParamXml().createLoiterRegionParamListToDomainXmlNode(read.getLoiterRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(LoiterParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(LoiterParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
