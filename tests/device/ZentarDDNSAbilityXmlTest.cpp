#include "device/ZentarDDNSAbilityXml.h"

#include "tests/support/Documents.h"

namespace
{

ZentarDDNSAbility sample()
{
    ZentarDDNSAbility ability;
    ability.setZentarDDNSAbility(true);
    ability.setZentarDDNSHostName("ddns.example.org");
    return ability;
}

void expectZentarDDNSAbility(const ZentarDDNSAbility& expected, const ZentarDDNSAbility& read)
{
    EXPECT_EQ(expected.getZentarDDNSAbility(), read.getZentarDDNSAbility());
    EXPECT_EQ(expected.getZentarDDNSHostName(), read.getZentarDDNSHostName());
}

} // namespace

TEST(ZentarDDNSAbilityXml, Writes)
{
    ZentarDDNSAbilityXml codec;
    codec.setZentarDDNSAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/ZentarDDNSAbilityXml.document.xml"));
}

TEST(ZentarDDNSAbilityXml, Reads)
{
    ZentarDDNSAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/ZentarDDNSAbilityXml.document.xml")));
    expectZentarDDNSAbility(sample(), codec.getZentarDDNSAbility());
}

TEST(ZentarDDNSAbilityXml, ResetsWhatIsMissing)
{
    ZentarDDNSAbilityXml codec;
    codec.setZentarDDNSAbility(sample());
    ASSERT_TRUE(reads(codec, "<ZentarDDNSAbility />"));
    expectZentarDDNSAbility(ZentarDDNSAbility(), codec.getZentarDDNSAbility());
}

TEST(ZentarDDNSAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ZentarDDNSAbilityXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/ZentarDDNSAbilityXml.node.xml"));
}

TEST(ZentarDDNSAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    ZentarDDNSAbility read;
    ASSERT_TRUE(ZentarDDNSAbilityXml().parseXmlString(golden("device/ZentarDDNSAbilityXml.node.xml"), read));
    expectZentarDDNSAbility(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(ZentarDDNSAbilityXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ZentarDDNSAbility read = sample();
    ASSERT_TRUE(ZentarDDNSAbilityXml().parseXmlString("<ZentarDDNSAbility />", read));
    expectZentarDDNSAbility(ZentarDDNSAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(ZentarDDNSAbilityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ZentarDDNSAbility read = sample();
    EXPECT_FALSE(ZentarDDNSAbilityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ZentarDDNSAbilityXml().parseDomainXmlNode(empty, read));
    expectZentarDDNSAbility(sample(), read);
}
