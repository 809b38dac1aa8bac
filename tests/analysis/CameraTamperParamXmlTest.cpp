#include "analysis/CameraTamperParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

CameraTamperParam sample()
{
    CameraTamperParam rule;
    setBasePart(rule);
    rule.setMinTime(34);
    return rule;
}

void expectRule(const CameraTamperParam& expected, const CameraTamperParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getMinTime(), rule.getMinTime());
}

} // namespace

TEST(CameraTamperParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CameraTamperParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/CameraTamperParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("CameraTamperParam"));
    ASSERT_TRUE(CameraTamperParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/CameraTamperParamXml.node.xml"));
}

TEST(CameraTamperParamXml, ReadsNodes)
{
    CapturedOutput output;
    CameraTamperParam read;
    ASSERT_TRUE(CameraTamperParamXml().parseXmlString(golden("analysis/CameraTamperParamXml.node.xml"), read));
    expectRule(sample(), read);
    ASSERT_TRUE(CameraTamperParamXml().parseXmlString(golden("analysis/CameraTamperParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(CameraTamperParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    CameraTamperParam read = sample();
    ASSERT_TRUE(CameraTamperParamXml().parseXmlString("<CameraTamperParam></CameraTamperParam>", read));
    CameraTamperParam expected;
    expectRule(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(CameraTamperParamXml, CarriesTheBasePartThroughAReference)
{
    CameraTamperParamXml codec;
    IntelligeBaseParamXml& base = codec;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(CameraTamperParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CameraTamperParam read = sample();
    EXPECT_FALSE(CameraTamperParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CameraTamperParamXml().parseDomainXmlNode(empty, read));
    expectRule(sample(), read);
}
