#include "analysis/CameraMovedParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

CameraMovedParam sample()
{
    CameraMovedParam rule;
    setBasePart(rule);
    return rule;
}

void expectRule(const CameraMovedParam& expected, const CameraMovedParam& rule)
{
    expectBasePart(expected, rule);
}

} // namespace

TEST(CameraMovedParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CameraMovedParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/CameraMovedParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("CameraMovedParam"));
    ASSERT_TRUE(CameraMovedParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/CameraMovedParamXml.node.xml"));
}

TEST(CameraMovedParamXml, ReadsNodes)
{
    CapturedOutput output;
    CameraMovedParam read;
    ASSERT_TRUE(CameraMovedParamXml().parseXmlString(golden("analysis/CameraMovedParamXml.node.xml"), read));
    expectRule(sample(), read);
    ASSERT_TRUE(CameraMovedParamXml().parseXmlString(golden("analysis/CameraMovedParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(CameraMovedParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    CameraMovedParam read = sample();
    ASSERT_TRUE(CameraMovedParamXml().parseXmlString("<CameraMovedParam></CameraMovedParam>", read));
    CameraMovedParam expected;
    expectRule(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(CameraMovedParamXml, CarriesTheBasePartThroughAReference)
{
    CameraMovedParamXml codec;
    IntelligeBaseParamXml& base = codec;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(CameraMovedParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CameraMovedParam read = sample();
    EXPECT_FALSE(CameraMovedParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CameraMovedParamXml().parseDomainXmlNode(empty, read));
    expectRule(sample(), read);
}
