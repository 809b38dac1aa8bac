#include "analysis/SignalBadParamXml.h"

#include "tests/analysis/RuleSample.h"
#include "tests/support/Documents.h"

namespace
{

SignalBadParam sample()
{
    SignalBadParam rule;
    setBasePart(rule);
    rule.setIsGetDetail(true);
    return rule;
}

void expectRule(const SignalBadParam& expected, const SignalBadParam& rule)
{
    expectBasePart(expected, rule);
    EXPECT_EQ(expected.getIsGetDetail(), rule.getIsGetDetail());
}

} // namespace

TEST(SignalBadParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SignalBadParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "analysis/SignalBadParamXml.node.xml"));

    SafePointer<DomainXmlNode> node(new DomainXmlNode("SignalBadParam"));
    ASSERT_TRUE(SignalBadParamXml().createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/SignalBadParamXml.node.xml"));
}

TEST(SignalBadParamXml, ReadsNodes)
{
    CapturedOutput output;
    SignalBadParam read;
    ASSERT_TRUE(SignalBadParamXml().parseXmlString(golden("analysis/SignalBadParamXml.node.xml"), read));
    expectRule(sample(), read);
    ASSERT_TRUE(SignalBadParamXml().parseXmlString(golden("analysis/SignalBadParamXml.node.xml"), read));
    expectRule(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(SignalBadParamXml, GivesDefaultsForWhatANodeLacks)
{
    CapturedOutput output;
    SignalBadParam read = sample();
    ASSERT_TRUE(SignalBadParamXml().parseXmlString("<SignalBadParam></SignalBadParam>", read));
    SignalBadParam expected;
    expectRule(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(SignalBadParamXml, CarriesTheBasePartThroughAReference)
{
    SignalBadParamXml codec;
    IntelligeBaseParamXml& base = codec;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("IntelligeBaseParam"));
    ASSERT_TRUE(base.createDomainXmlNode(sample(), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "analysis/IntelligeBaseParamXml.node.xml"));
}

TEST(SignalBadParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SignalBadParam read = sample();
    EXPECT_FALSE(SignalBadParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SignalBadParamXml().parseDomainXmlNode(empty, read));
    expectRule(sample(), read);
}
