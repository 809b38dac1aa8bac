#include "analysis/ObjectLeftParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

ObjectLeftRegionParam sampleRegion()
{
    ObjectLeftRegionParam region;
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setMinTime(34);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const ObjectLeftRegionParam& expected, const ObjectLeftRegionParam& region)
{
    expectLinger(expected, region);
}

ObjectLeftParam sample()
{
    ObjectLeftParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setObjectLeftRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const ObjectLeftParam& expected, const ObjectLeftParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getObjectLeftRegionParamList().size(), rule.getObjectLeftRegionParamList().size());
    for (std::size_t place = 0; place < rule.getObjectLeftRegionParamList().size(); ++place)
        expectRegion(expected.getObjectLeftRegionParamList()[place], rule.getObjectLeftRegionParamList()[place]);
}

} // namespace

TEST(ObjectLeftParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ObjectLeftParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/ObjectLeftParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("ObjectLeftParam"));
    ASSERT_TRUE(ObjectLeftParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/ObjectLeftParamXml.node.xml"));
}

TEST(ObjectLeftParamXml, ReadsNodes)
{
    CapturedOutput output;
    ObjectLeftParam read;
    ASSERT_TRUE(ObjectLeftParamXml().parseXmlString(golden("analysis/ObjectLeftParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ObjectLeftParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    ObjectLeftParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/ObjectLeftParamXml.node.xml"), node));
    ASSERT_TRUE(ObjectLeftParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ObjectLeftParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    ObjectLeftParam read = sample();
    ASSERT_TRUE(ObjectLeftParamXml().parseXmlString("<ObjectLeftParam />", read));
    expectRule(ObjectLeftParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ObjectLeftParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    ObjectLeftParam read;
    ASSERT_TRUE(ObjectLeftParamXml().parseXmlString(
        "<ObjectLeftParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' "
        "AttrYval='0.5' /><ZTPoint AttrXval='0.75' AttrYval='-3' "
        "/></PolygonArealist></Region></RegionList></ObjectLeftParam>",
        read));
    ASSERT_EQ(1U, read.getObjectLeftRegionParamList().size());
    ObjectLeftRegionParam expected;
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getObjectLeftRegionParamList()[0]);
}

TEST(ObjectLeftParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        ObjectLeftParam read = sample();
        EXPECT_FALSE(
            ObjectLeftParamXml().parseXmlString(std::string("<ObjectLeftParam IsGetDetail='false'><RegionList>") +
                                                    region + "</RegionList></ObjectLeftParam>",
                                                read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(ObjectLeftParamXml, CarriesTheBasePartThroughAReference)
{
    ObjectLeftParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(ObjectLeftParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ObjectLeftParam read = sample();
    EXPECT_FALSE(ObjectLeftParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ObjectLeftParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(ObjectLeftParamXml().createObjectLeftRegionParamListToDomainXmlNode(
        read.getObjectLeftRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(ObjectLeftParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(ObjectLeftParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
