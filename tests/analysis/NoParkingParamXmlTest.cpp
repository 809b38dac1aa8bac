#include "analysis/NoParkingParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

NoParkingRegionParam sampleRegion()
{
    NoParkingRegionParam region;
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setMinTime(34);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const NoParkingRegionParam& expected, const NoParkingRegionParam& region)
{
    expectLinger(expected, region);
}

NoParkingParam sample()
{
    NoParkingParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setNoParkingRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const NoParkingParam& expected, const NoParkingParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getNoParkingRegionParamList().size(), rule.getNoParkingRegionParamList().size());
    for (std::size_t place = 0; place < rule.getNoParkingRegionParamList().size(); ++place)
        expectRegion(expected.getNoParkingRegionParamList()[place], rule.getNoParkingRegionParamList()[place]);
}

} // namespace

TEST(NoParkingParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(NoParkingParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/NoParkingParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("NoParkingParam"));
    ASSERT_TRUE(NoParkingParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/NoParkingParamXml.node.xml"));
}

TEST(NoParkingParamXml, ReadsNodes)
{
    CapturedOutput output;
    NoParkingParam read;
    ASSERT_TRUE(NoParkingParamXml().parseXmlString(golden("analysis/NoParkingParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(NoParkingParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    NoParkingParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/NoParkingParamXml.node.xml"), node));
    ASSERT_TRUE(NoParkingParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(NoParkingParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    NoParkingParam read = sample();
    ASSERT_TRUE(NoParkingParamXml().parseXmlString("<NoParkingParam />", read));
    expectRule(NoParkingParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(NoParkingParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    NoParkingParam read;
    ASSERT_TRUE(NoParkingParamXml().parseXmlString(
        "<NoParkingParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' AttrYval='0.5' "
        "/><ZTPoint AttrXval='0.75' AttrYval='-3' /></PolygonArealist></Region></RegionList></NoParkingParam>",
        read));
    ASSERT_EQ(1U, read.getNoParkingRegionParamList().size());
    NoParkingRegionParam expected;
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getNoParkingRegionParamList()[0]);
}

TEST(NoParkingParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        NoParkingParam read = sample();
        EXPECT_FALSE(NoParkingParamXml().parseXmlString(
            std::string("<NoParkingParam IsGetDetail='false'><RegionList>") + region + "</RegionList></NoParkingParam>",
            read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(NoParkingParamXml, CarriesTheBasePartThroughAReference)
{
    NoParkingParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(NoParkingParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    NoParkingParam read = sample();
    EXPECT_FALSE(NoParkingParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(NoParkingParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(
        NoParkingParamXml().createNoParkingRegionParamListToDomainXmlNode(read.getNoParkingRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(NoParkingParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(NoParkingParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
