#include "analysis/AbnormalSpeedParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

AbnormalSpeedRegionParam sampleRegion()
{
    AbnormalSpeedRegionParam region;
    region.setTargetTypeConstrain(true);
    region.setTargetType(31);
    region.setTargetSizeConstrain(true);
    region.setMinTargetSize(32);
    region.setMaxTargetSize(33);
    region.setRateLimitingType(39);
    region.setMinRate(40);
    region.setMaxRate(41);
    region.setRegion(samplePolygonArea());
    return region;
}

void expectRegion(const AbnormalSpeedRegionParam& expected, const AbnormalSpeedRegionParam& region)
{
    expectTarget(expected, region);
    EXPECT_EQ(expected.getRateLimitingType(), region.getRateLimitingType());
    EXPECT_EQ(expected.getMinRate(), region.getMinRate());
    EXPECT_EQ(expected.getMaxRate(), region.getMaxRate());
    expectPolygonArea(expected.getRegion(), region.getRegion());
}

AbnormalSpeedParam sample()
{
    AbnormalSpeedParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    rule.setAbnormalSpeedRegionParamList({sampleRegion()});
    return rule;
}

void expectRule(const AbnormalSpeedParam& expected, const AbnormalSpeedParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
    ASSERT_EQ(expected.getAbnormalSpeedRegionParamList().size(), rule.getAbnormalSpeedRegionParamList().size());
    for (std::size_t place = 0; place < rule.getAbnormalSpeedRegionParamList().size(); ++place)
        expectRegion(expected.getAbnormalSpeedRegionParamList()[place], rule.getAbnormalSpeedRegionParamList()[place]);
}

} // namespace

TEST(AbnormalSpeedParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AbnormalSpeedParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/AbnormalSpeedParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("AbnormalSpeedParam"));
    ASSERT_TRUE(AbnormalSpeedParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/AbnormalSpeedParamXml.node.xml"));
}

TEST(AbnormalSpeedParamXml, ReadsNodes)
{
    CapturedOutput output;
    AbnormalSpeedParam read;
    ASSERT_TRUE(AbnormalSpeedParamXml().parseXmlString(golden("analysis/AbnormalSpeedParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(AbnormalSpeedParamXml, TellsTheFlagsOfARegionApart)
{
    const std::vector<std::string> flags = {"TargetTypeConstrain", "TargetSizeConstrain"};
    for (const std::string& flag : flags)
    {
        AbnormalSpeedParam rule = sample();
        AbnormalSpeedRegionParam& region = rule.getAbnormalSpeedRegionParamList()[0];
        region.setTargetTypeConstrain(flag == "TargetTypeConstrain");
        region.setTargetSizeConstrain(flag == "TargetSizeConstrain");

        std::string text;
        ASSERT_TRUE(AbnormalSpeedParamXml().createXmlString(rule, text));
        EXPECT_EQ(withOneFlag(golden("analysis/AbnormalSpeedParamXml.node.xml"), flags, flag), text);
        AbnormalSpeedParam read;
        ASSERT_TRUE(AbnormalSpeedParamXml().parseXmlString(text, read));
        expectRule(rule, read);
    }
}

TEST(AbnormalSpeedParamXml, ReplacesWhatTheRecordHeld)
{
    CapturedOutput output;
    AbnormalSpeedParam read = sample();
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("analysis/AbnormalSpeedParamXml.node.xml"), node));
    ASSERT_TRUE(AbnormalSpeedParamXml().parseDomainXmlNode(node, read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(AbnormalSpeedParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    AbnormalSpeedParam read = sample();
    ASSERT_TRUE(AbnormalSpeedParamXml().parseXmlString("<AbnormalSpeedParam />", read));
    expectRule(AbnormalSpeedParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(AbnormalSpeedParamXml, GivesDefaultsForWhatARegionLacks)
{
    CapturedOutput output;
    AbnormalSpeedParam read;
    ASSERT_TRUE(AbnormalSpeedParamXml().parseXmlString(
        "<AbnormalSpeedParam><RegionList><!-- --><Other /><Region><PolygonArealist><ZTPoint AttrXval='0.25' "
        "AttrYval='0.5' /><ZTPoint AttrXval='0.75' AttrYval='-3' "
        "/></PolygonArealist></Region></RegionList></AbnormalSpeedParam>",
        read));
    ASSERT_EQ(1U, read.getAbnormalSpeedRegionParamList().size());
    AbnormalSpeedRegionParam expected;
    expected.setTargetType(1);
    expected.setMinTargetSize(1000);
    expected.setMaxTargetSize(100000);
    expected.setRegion(samplePolygonArea());
    expectRegion(expected, read.getAbnormalSpeedRegionParamList()[0]);
}

TEST(AbnormalSpeedParamXml, RefusesARegionThatIsNotWhole)
{
    for (const char* region : {"<Region />"})
    {
        AbnormalSpeedParam read = sample();
        EXPECT_FALSE(
            AbnormalSpeedParamXml().parseXmlString(std::string("<AbnormalSpeedParam IsGetDetail='false'><RegionList>") +
                                                       region + "</RegionList></AbnormalSpeedParam>",
                                                   read))
            << region;
        expectRule(sample(), read);
    }
}

TEST(AbnormalSpeedParamXml, CarriesTheBasePartThroughAReference)
{
    AbnormalSpeedParamXml codec;
    IntelligeBaseParamXml& base = codec;
    std::string text;
    ASSERT_TRUE(base.createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/IntelligeBaseParamXml.node.xml"));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(AbnormalSpeedParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AbnormalSpeedParam read = sample();
    EXPECT_FALSE(AbnormalSpeedParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AbnormalSpeedParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(AbnormalSpeedParamXml().createAbnormalSpeedRegionParamListToDomainXmlNode(
        read.getAbnormalSpeedRegionParamList(), empty));
    expectRule(sample(), read);
    PolygonArea area;
    EXPECT_FALSE(AbnormalSpeedParamXml().createPolygonAreaToDomainXmlNode(area, empty));
    EXPECT_FALSE(AbnormalSpeedParamXml().parsePolygonAreaToDomainXmlNode(empty, area));
}
