#include "analysis/ObjectMovedParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

ObjectMovedRegionParam sampleRegion()
{
    ObjectMovedRegionParam region;
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setMinTime(34);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const ObjectMovedRegionParam& expected, const ObjectMovedRegionParam& region)
{
    expectLinger(expected, region);
}

ObjectMovedParam sample()
{
    ObjectMovedParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setObjectMovedRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const ObjectMovedParam& expected, const ObjectMovedParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getObjectMovedRegionParamList().size(), rule.getObjectMovedRegionParamList().size());
    for (std::size_t place = 0; place < rule.getObjectMovedRegionParamList().size(); ++place)
        expectRegion(expected.getObjectMovedRegionParamList()[place], rule.getObjectMovedRegionParamList()[place]);
}

} // namespace

TEST(ObjectMovedParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ObjectMovedParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/ObjectMovedParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("ObjectMovedParam"));
    ASSERT_TRUE(ObjectMovedParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/ObjectMovedParamXml.node.xml"));
}

TEST(ObjectMovedParamXml, ReadsNodes)
{
    CapturedOutput output;
    ObjectMovedParam read;
    ASSERT_TRUE(ObjectMovedParamXml().parseXmlString(golden("analysis/ObjectMovedParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ObjectMovedParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    ObjectMovedParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/ObjectMovedParamXml.node.xml"), node));
    ASSERT_TRUE(ObjectMovedParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ObjectMovedParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    ObjectMovedParam read = sample();
    ASSERT_TRUE(ObjectMovedParamXml().parseXmlString("<ObjectMovedParam />", read));
    expectRule(ObjectMovedParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ObjectMovedParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    ObjectMovedParam read;
    ASSERT_TRUE(ObjectMovedParamXml().parseXmlString(
        "<ObjectMovedParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' "
        "AttrYval='0.5' /><ZTPoint AttrXval='0.75' AttrYval='-3' "
        "/></PolygonArealist></Region></RegionList></ObjectMovedParam>",
        read));
    ASSERT_EQ(1U, read.getObjectMovedRegionParamList().size());
    ObjectMovedRegionParam expected;
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getObjectMovedRegionParamList()[0]);
}

TEST(ObjectMovedParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        ObjectMovedParam read = sample();
        EXPECT_FALSE(
            ObjectMovedParamXml().parseXmlString(std::string("<ObjectMovedParam IsGetDetail='false'><RegionList>") +
                                                     region + "</RegionList></ObjectMovedParam>",
                                                 read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(ObjectMovedParamXml, CarriesTheBasePartThroughAReference)
{
    ObjectMovedParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(ObjectMovedParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ObjectMovedParam read = sample();
    EXPECT_FALSE(ObjectMovedParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ObjectMovedParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(ObjectMovedParamXml().createObjectMovedRegionParamListToDomainXmlNode(
        read.getObjectMovedRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(ObjectMovedParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(ObjectMovedParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
