#include "device/OSDFormatAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

namespace
{

OSDFormatAbility sample()
{
    OSDFormatType type;
    type.setFormatId(4);
    type.setDescription("YYYY-MM-DD");
    OSDFormatAbility ability;
    ability.getOSDFormatTypeList().push_back(type);
    return ability;
}

void expectOSDFormatType(const OSDFormatType& expected, const OSDFormatType& read)
{
    EXPECT_EQ(expected.getFormatId(), read.getFormatId());
    EXPECT_EQ(expected.getDescription(), read.getDescription());
}

void expectOSDFormatAbility(const OSDFormatAbility& expected, const OSDFormatAbility& read)
{
    expectList(expected.getOSDFormatTypeList(), read.getOSDFormatTypeList(), expectOSDFormatType);
}

} // namespace

TEST(OSDFormatAbilityXml, Writes)
{
    OSDFormatAbilityXml codec;
    codec.setOSDFormatAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/OSDFormatAbilityXml.document.xml"));
}

TEST(OSDFormatAbilityXml, Reads)
{
    CapturedOutput output;
    OSDFormatAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/OSDFormatAbilityXml.document.xml")));
    expectOSDFormatAbility(sample(), codec.getOSDFormatAbility());
    EXPECT_EQ("", output.text());
}

TEST(OSDFormatAbilityXml, WritesAndReadsAnEmptyList)
{
    OSDFormatAbilityXml codec;
    EXPECT_EQ("<OSDFormatAbility>\n\t<OSDFormatTypeList />\n</OSDFormatAbility>\n", written(codec));

    OSDFormatAbilityXml reader;
    reader.setOSDFormatAbility(sample());
    ASSERT_TRUE(
        reads(reader,
              "<OSDFormatAbility><OSDFormatTypeList>text<!--OSDFormatType--></OSDFormatTypeList></OSDFormatAbility>"));
    expectOSDFormatAbility(OSDFormatAbility(), reader.getOSDFormatAbility());
}

TEST(OSDFormatAbilityXml, ReplacesTheListByItemsOfAnyName)
{
    CapturedOutput output;
    OSDFormatAbilityXml codec;
    codec.setOSDFormatAbility(sample());
    ASSERT_TRUE(reads(codec, "<OSDFormatAbility><OSDFormatTypeList><OSDFormatType /><!-- -->text<Other formatId='9' "
                             "/></OSDFormatTypeList></OSDFormatAbility>"));
    OSDFormatAbility expected;
    expected.getOSDFormatTypeList().resize(2);
    expected.getOSDFormatTypeList()[1].setFormatId(9);
    expectOSDFormatAbility(expected, codec.getOSDFormatAbility());
    EXPECT_EQ("", output.text());
}

TEST(OSDFormatAbilityXml, RefusesATextWithoutTheContainer)
{
    CapturedOutput output;
    OSDFormatAbilityXml codec;
    codec.setOSDFormatAbility(sample());
    EXPECT_FALSE(
        reads(codec, "<OSDFormatAbility><!--OSDFormatTypeList--><OSDFormatType formatId='9' /></OSDFormatAbility>"));
    expectOSDFormatAbility(sample(), codec.getOSDFormatAbility());
    EXPECT_EQ("", output.text());
}

TEST(OSDFormatAbilityXml, ReadsAnElementOfAParent)
{
    TiXmlDocument document;
    document.Parse(golden("device/OSDFormatAbilityXml.document.xml").c_str());
    OSDFormatAbilityXml codec;
    codec.setXmlNode(document.RootElement());
    EXPECT_EQ(document.RootElement(), codec.getXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    expectOSDFormatAbility(sample(), codec.getOSDFormatAbility());
}

TEST(OSDFormatAbilityXml, RefusesToReadWithoutAnElement)
{
    OSDFormatAbilityXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(OSDFormatAbilityXml, ReplacesItsTreeWithEveryWrite)
{
    OSDFormatAbilityXml codec;
    written(codec);
    codec.setOSDFormatAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/OSDFormatAbilityXml.document.xml"));
}

TEST(OSDFormatAbilityXml, WritesBelowAParent)
{
    TiXmlDocument document;
    OSDFormatAbilityXml::writeElement(document, sample());
    EXPECT_TRUE(matchesGolden(printed(document), "device/OSDFormatAbilityXml.document.xml"));
}
