#include "device/BlindAbilityConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

BlindAbilityConfigure sample()
{
    BlindAbilityConfigure ability;
    ability.setMaxBlindAreaNum(4);
    ability.setBlindWidth(352);
    ability.setBlindHeight(288);
    ability.setBlindType(2);
    return ability;
}

void expectBlindAbilityConfigure(const BlindAbilityConfigure& expected, const BlindAbilityConfigure& read)
{
    EXPECT_EQ(expected.getMaxBlindAreaNum(), read.getMaxBlindAreaNum());
    EXPECT_EQ(expected.getBlindWidth(), read.getBlindWidth());
    EXPECT_EQ(expected.getBlindHeight(), read.getBlindHeight());
    EXPECT_EQ(expected.getBlindType(), read.getBlindType());
}

} // namespace

TEST(BlindAbilityConfigureXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(BlindAbilityConfigureXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/BlindAbilityConfigureXml.node.xml"));
}

TEST(BlindAbilityConfigureXml, ReadsNodes)
{
    CapturedOutput output;
    BlindAbilityConfigure read;
    ASSERT_TRUE(BlindAbilityConfigureXml().parseXmlString(golden("device/BlindAbilityConfigureXml.node.xml"), read));
    expectBlindAbilityConfigure(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(BlindAbilityConfigureXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    BlindAbilityConfigure read = sample();
    ASSERT_TRUE(BlindAbilityConfigureXml().parseXmlString("<BlindAbility />", read));
    expectBlindAbilityConfigure(BlindAbilityConfigure(), read);
    EXPECT_EQ("", output.text());
}

TEST(BlindAbilityConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    BlindAbilityConfigure read = sample();
    EXPECT_FALSE(BlindAbilityConfigureXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(BlindAbilityConfigureXml().parseDomainXmlNode(empty, read));
    expectBlindAbilityConfigure(sample(), read);
}
