#include "device/LanguageAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

namespace
{

std::vector<LanguageType> sample()
{
    return {sampleLanguageType()};
}

void expectLanguages(const std::vector<LanguageType>& expected, const std::vector<LanguageType>& read)
{
    expectList(expected, read, expectLanguageType);
}

} // namespace

TEST(LanguageAbilityXml, Writes)
{
    LanguageAbilityXml codec;
    codec.setLanguageAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/LanguageAbilityXml.document.xml"));
}

TEST(LanguageAbilityXml, Reads)
{
    CapturedOutput output;
    LanguageAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/LanguageAbilityXml.document.xml")));
    expectLanguages(sample(), codec.getLanguageAbility());
    EXPECT_EQ("", output.text());
}

TEST(LanguageAbilityXml, WritesAndReadsAnEmptyList)
{
    LanguageAbilityXml codec;
    EXPECT_EQ("<LanguageAbility>\n\t<LanguageTypeList />\n</LanguageAbility>\n", written(codec));

    LanguageAbilityXml reader;
    reader.setLanguageAbility(sample());
    ASSERT_TRUE(reads(
        reader, "<LanguageAbility><LanguageTypeList>text<!--LanguageType--></LanguageTypeList></LanguageAbility>"));
    expectLanguages({}, reader.getLanguageAbility());
}

TEST(LanguageAbilityXml, ReplacesTheListByItemsOfAnyName)
{
    CapturedOutput output;
    LanguageAbilityXml codec;
    codec.setLanguageAbility(sample());
    ASSERT_TRUE(reads(codec, "<LanguageAbility><LanguageTypeList><LanguageType /><!-- -->text<Other LanguageID='9' "
                             "/></LanguageTypeList></LanguageAbility>"));
    std::vector<LanguageType> expected(2);
    expected[1].setLanguageID(9);
    expectLanguages(expected, codec.getLanguageAbility());
    EXPECT_EQ("", output.text());
}

TEST(LanguageAbilityXml, RefusesATextWithoutTheContainer)
{
    CapturedOutput output;
    LanguageAbilityXml codec;
    codec.setLanguageAbility(sample());
    EXPECT_FALSE(
        reads(codec, "<LanguageAbility><!--LanguageTypeList--><LanguageType LanguageID='9' /></LanguageAbility>"));
    expectLanguages(sample(), codec.getLanguageAbility());
    EXPECT_EQ("", output.text());
}

TEST(LanguageAbilityXml, ReadsAnElementOfAParent)
{
    TiXmlDocument document;
    document.Parse(golden("device/LanguageAbilityXml.document.xml").c_str());
    LanguageAbilityXml codec;
    codec.setXmlNode(document.RootElement());
    EXPECT_EQ(document.RootElement(), codec.getXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    expectLanguages(sample(), codec.getLanguageAbility());
}

TEST(LanguageAbilityXml, RefusesToReadWithoutAnElement)
{
    LanguageAbilityXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(LanguageAbilityXml, ReplacesItsTreeWithEveryWrite)
{
    LanguageAbilityXml codec;
    written(codec);
    codec.setLanguageAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/LanguageAbilityXml.document.xml"));
}

TEST(LanguageAbilityXml, WritesBelowAParent)
{
    TiXmlDocument document;
    LanguageAbilityXml::writeElement(document, sample());
    EXPECT_TRUE(matchesGolden(printed(document), "device/LanguageAbilityXml.document.xml"));
}
