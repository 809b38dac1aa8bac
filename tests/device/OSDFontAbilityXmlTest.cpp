#include "device/OSDFontAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

namespace
{

OSDColor color(int red, int green, int blue)
{
    OSDColor color;
    color.setColorR(red);
    color.setColorG(green);
    color.setColorB(blue);
    return color;
}

OSDFontAbility sample()
{
    OSDFontType font;
    font.setFontId(5);
    font.setDescription("Sans, large");
    OSDAlpha alpha;
    alpha.setAlpha(96);

    OSDFontAbility ability;
    ability.getOSDFontTypeList().push_back(font);
    ability.getOSDColorList().push_back(color(255, 128, 64));
    ability.getOSDInverseColorList().push_back(color(1, 2, 3));
    ability.getOSDAlphaList().push_back(alpha);
    return ability;
}

void expectOSDFontType(const OSDFontType& expected, const OSDFontType& read)
{
    EXPECT_EQ(expected.getFontId(), read.getFontId());
    EXPECT_EQ(expected.getDescription(), read.getDescription());
}

void expectOSDColor(const OSDColor& expected, const OSDColor& read)
{
    EXPECT_EQ(expected.getColorR(), read.getColorR());
    EXPECT_EQ(expected.getColorG(), read.getColorG());
    EXPECT_EQ(expected.getColorB(), read.getColorB());
}

void expectOSDAlpha(const OSDAlpha& expected, const OSDAlpha& read)
{
    EXPECT_EQ(expected.getAlpha(), read.getAlpha());
}

void expectOSDFontAbility(const OSDFontAbility& expected, const OSDFontAbility& read)
{
    expectList(expected.getOSDFontTypeList(), read.getOSDFontTypeList(), expectOSDFontType);
    expectList(expected.getOSDColorList(), read.getOSDColorList(), expectOSDColor);
    expectList(expected.getOSDInverseColorList(), read.getOSDInverseColorList(), expectOSDColor);
    expectList(expected.getOSDAlphaList(), read.getOSDAlphaList(), expectOSDAlpha);
}

constexpr char emptyText[] = "<OSDFontAbility>\n\t<OSDFontTypeList />\n\t<OSDColorList />\n\t<OSDInverseColorList />\n"
                             "\t<OSDAlphaList />\n</OSDFontAbility>\n";

} // namespace

TEST(OSDFontAbilityXml, Writes)
{
    OSDFontAbilityXml codec;
    codec.setOSDFontAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/OSDFontAbilityXml.document.xml"));
}

TEST(OSDFontAbilityXml, Reads)
{
    CapturedOutput output;
    OSDFontAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/OSDFontAbilityXml.document.xml")));
    expectOSDFontAbility(sample(), codec.getOSDFontAbility());
    EXPECT_EQ("", output.text());
}

TEST(OSDFontAbilityXml, WritesAndReadsEmptyLists)
{
    OSDFontAbilityXml codec;
    EXPECT_EQ(emptyText, written(codec));

    OSDFontAbilityXml reader;
    reader.setOSDFontAbility(sample());
    ASSERT_TRUE(reads(reader, emptyText));
    expectOSDFontAbility(OSDFontAbility(), reader.getOSDFontAbility());
}

TEST(OSDFontAbilityXml, ReplacesItsListsByItemsOfAnyName)
{
    CapturedOutput output;
    OSDFontAbilityXml codec;
    codec.setOSDFontAbility(sample());
    ASSERT_TRUE(reads(codec,
                      "<OSDFontAbility><OSDFontTypeList><OSDFontType /><!-- -->text<Other fontId='9' />"
                      "</OSDFontTypeList><OSDColorList><Other colorG='8' /></OSDColorList><OSDInverseColorList>"
                      "<OSDColor colorB='7' /></OSDInverseColorList><OSDAlphaList><OSDAlpha /><Other alpha='6' />"
                      "</OSDAlphaList></OSDFontAbility>"));
    OSDFontAbility expected;
    expected.getOSDFontTypeList().resize(2);
    expected.getOSDFontTypeList()[1].setFontId(9);
    expected.getOSDColorList().push_back(color(0, 8, 0));
    expected.getOSDInverseColorList().push_back(color(0, 0, 7));
    expected.getOSDAlphaList().resize(2);
    expected.getOSDAlphaList()[1].setAlpha(6);
    expectOSDFontAbility(expected, codec.getOSDFontAbility());
    EXPECT_EQ("", output.text());
}

TEST(OSDFontAbilityXml, RefusesATextWithoutOneOfItsContainers)
{
    for (const char* container :
         {"<OSDFontTypeList />", "<OSDColorList />", "<OSDInverseColorList />", "<OSDAlphaList />"})
    {
        std::string text = emptyText;
        text.erase(text.find(container), std::string(container).size());
        CapturedOutput output;
        OSDFontAbilityXml codec;
        codec.setOSDFontAbility(sample());
        EXPECT_FALSE(reads(codec, text)) << container;
        expectOSDFontAbility(sample(), codec.getOSDFontAbility());
        EXPECT_EQ("", output.text());
    }
}

TEST(OSDFontAbilityXml, ReadsAnElementOfAParent)
{
    TiXmlDocument document;
    document.Parse(golden("device/OSDFontAbilityXml.document.xml").c_str());
    OSDFontAbilityXml codec;
    codec.setXmlNode(document.RootElement());
    EXPECT_EQ(document.RootElement(), codec.getXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    expectOSDFontAbility(sample(), codec.getOSDFontAbility());
}

TEST(OSDFontAbilityXml, RefusesToReadWithoutAnElement)
{
    OSDFontAbilityXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(OSDFontAbilityXml, ReplacesItsTreeWithEveryWrite)
{
    OSDFontAbilityXml codec;
    written(codec);
    codec.setOSDFontAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/OSDFontAbilityXml.document.xml"));
}

TEST(OSDFontAbilityXml, WritesBelowAParent)
{
    TiXmlDocument document;
    OSDFontAbilityXml::writeElement(document, sample());
    EXPECT_TRUE(matchesGolden(printed(document), "device/OSDFontAbilityXml.document.xml"));
}
