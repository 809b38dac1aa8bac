#include "analysis/MultiLoiterParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

MultiLoiterRegionParam sampleRegion()
{
    MultiLoiterRegionParam region;
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setMinTime(34);
    region.setAnalysisPath(true);
    region.setForbiddenType(true);
    region.setMinimum(37);
    region.setMaximum(38);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const MultiLoiterRegionParam& expected, const MultiLoiterRegionParam& region)
{
    expectLinger(expected, region);
    EXPECT_EQ(expected.getTargetSizeConstrain(), region.getTargetSizeConstrain());
    EXPECT_EQ(expected.getAnalysisPath(), region.getAnalysisPath());
    EXPECT_EQ(expected.getForbiddenType(), region.getForbiddenType());
    EXPECT_EQ(expected.getMinimum(), region.getMinimum());
    EXPECT_EQ(expected.getMaximum(), region.getMaximum());
}

MultiLoiterParam sample()
{
    MultiLoiterParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setMultiLoiterRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const MultiLoiterParam& expected, const MultiLoiterParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getMultiLoiterRegionParamList().size(), rule.getMultiLoiterRegionParamList().size());
    for (std::size_t place = 0; place < rule.getMultiLoiterRegionParamList().size(); ++place)
        expectRegion(expected.getMultiLoiterRegionParamList()[place], rule.getMultiLoiterRegionParamList()[place]);
}

} // namespace

TEST(MultiLoiterParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MultiLoiterParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/MultiLoiterParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("MultiLoiterParam"));
    ASSERT_TRUE(MultiLoiterParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/MultiLoiterParamXml.node.xml"));
}

TEST(MultiLoiterParamXml, ReadsNodes)
{
    CapturedOutput output;
    MultiLoiterParam read;
    ASSERT_TRUE(MultiLoiterParamXml().parseXmlString(golden("analysis/MultiLoiterParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(MultiLoiterParamXml, TellsTheFlagsOfARegionApart)
{
    const std::vector<std::string> flags = {"TargetSizeConstrain", "IsAnalysisPath", "ForbiddenType"};
    for (const std::string& flag : flags)
    {
        MultiLoiterParam rule = sample();
        MultiLoiterRegionParam& region = rule.getMultiLoiterRegionParamList()[0];
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");
        region.setAnalysisPath(flag == "IsAnalysisPath");
        region.setForbiddenType(flag == "ForbiddenType");

        std::string text;
        ASSERT_TRUE(MultiLoiterParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/MultiLoiterParamXml.node.xml"), flags, flag), text);
        MultiLoiterParam read;
        ASSERT_TRUE(MultiLoiterParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(MultiLoiterParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    MultiLoiterParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/MultiLoiterParamXml.node.xml"), node));
    ASSERT_TRUE(MultiLoiterParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(MultiLoiterParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    MultiLoiterParam read = sample();
    ASSERT_TRUE(MultiLoiterParamXml().parseXmlString("<MultiLoiterParam />", read));
    expectRule(MultiLoiterParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(MultiLoiterParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    MultiLoiterParam read;
    ASSERT_TRUE(MultiLoiterParamXml().parseXmlString(
        "<MultiLoiterParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' "
        "AttrYval='0.5' /><ZTPoint AttrXval='0.75' AttrYval='-3' "
        "/></PolygonArealist></Region></RegionList></MultiLoiterParam>",
        read));
    ASSERT_EQ(1U, read.getMultiLoiterRegionParamList().size());
    MultiLoiterRegionParam expected;
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getMultiLoiterRegionParamList()[0]);
}

TEST(MultiLoiterParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        MultiLoiterParam read = sample();
        EXPECT_FALSE(
            MultiLoiterParamXml().parseXmlString(std::string("<MultiLoiterParam IsGetDetail='false'><RegionList>") +
                                                     region + "</RegionList></MultiLoiterParam>",
                                                 read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(MultiLoiterParamXml, CarriesTheBasePartThroughAReference)
{
    MultiLoiterParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(MultiLoiterParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MultiLoiterParam read = sample();
    EXPECT_FALSE(MultiLoiterParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MultiLoiterParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(MultiLoiterParamXml().createMultiLoiterRegionParamListToDomainXmlNode(
        read.getMultiLoiterRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(MultiLoiterParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(MultiLoiterParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
