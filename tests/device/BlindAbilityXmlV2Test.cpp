#include "device/BlindAbilityXmlV2.h"

#include "tests/support/Documents.h"

namespace
{

BlindAbilityV2 sample()
{
    BlindAbilityV2 ability;
    ability.setMaxBlindAreaNum(4);
    ability.setBlindAreaRate(50);
    ability.setTypeList({1, 2});
    RGBColor color;
    color.setR(255);
    color.setG(128);
    color.setB(64);
    ability.getRGBColorList().push_back(color);
    ability.setAlphaList({10, 20, 30});
    MosaicParam size;
    size.setWidth(16);
    size.setHeight(8);
    ability.getMosaicParamList().push_back(size);
    return ability;
}

void expectAbility(const BlindAbilityV2& expected, const BlindAbilityV2& ability)
{
    EXPECT_EQ(expected.getMaxBlindAreaNum(), ability.getMaxBlindAreaNum());
    EXPECT_EQ(expected.getBlindAreaRate(), ability.getBlindAreaRate());
    EXPECT_EQ(expected.getTypeList(), ability.getTypeList());
    EXPECT_EQ(expected.getAlphaList(), ability.getAlphaList());

    ASSERT_EQ(expected.getRGBColorList().size(), ability.getRGBColorList().size());
    for (std::size_t number = 0; number < ability.getRGBColorList().size(); ++number)
    {
        EXPECT_EQ(expected.getRGBColorList()[number].getR(), ability.getRGBColorList()[number].getR());
        EXPECT_EQ(expected.getRGBColorList()[number].getG(), ability.getRGBColorList()[number].getG());
        EXPECT_EQ(expected.getRGBColorList()[number].getB(), ability.getRGBColorList()[number].getB());
    }
    ASSERT_EQ(expected.getMosaicParamList().size(), ability.getMosaicParamList().size());
    for (std::size_t number = 0; number < ability.getMosaicParamList().size(); ++number)
    {
        EXPECT_EQ(expected.getMosaicParamList()[number].getWidth(), ability.getMosaicParamList()[number].getWidth());
        EXPECT_EQ(expected.getMosaicParamList()[number].getHeight(), ability.getMosaicParamList()[number].getHeight());
    }
}

constexpr char emptyText[] = "<BlindAreaAbility>\n\t<MaxArea maxBlindAreaNum=\"0\" sizeRate=\"0\" />\n\t<Type />\n"
                             "\t<Color />\n\t<Alpha />\n\t<MosaicSize />\n</BlindAreaAbility>\n";

} // namespace

TEST(BlindAbilityXmlV2, Writes)
{
    BlindAbilityXmlV2 codec;
    codec.setBlindAbilityV2(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/BlindAbilityXmlV2.document.xml"));
}

TEST(BlindAbilityXmlV2, Reads)
{
    CapturedOutput output;
    BlindAbilityXmlV2 codec;
    ASSERT_TRUE(reads(codec, golden("device/BlindAbilityXmlV2.document.xml")));
    expectAbility(sample(), codec.getBlindAbilityV2());
    EXPECT_EQ("", output.text());
}

TEST(BlindAbilityXmlV2, WritesAndReadsEmptyLists)
{
    BlindAbilityXmlV2 codec;
    EXPECT_EQ(emptyText, written(codec));

    BlindAbilityXmlV2 reader;
    reader.setBlindAbilityV2(sample());
    ASSERT_TRUE(reads(reader, emptyText));
    expectAbility(BlindAbilityV2(), reader.getBlindAbilityV2());
}

TEST(BlindAbilityXmlV2, GivesZeroForMissingAttributesAndTakesItemsOfAnyName)
{
    BlindAbilityXmlV2 codec;
    codec.setBlindAbilityV2(sample());
    ASSERT_TRUE(reads(codec, "<BlindAreaAbility><MaxArea /><Type><Other /><!-- -->text</Type><Color><Color G='7' />"
                             "</Color><Alpha /><MosaicSize><MosaicSize width='3' /></MosaicSize></BlindAreaAbility>"));
    BlindAbilityV2 expected;
    expected.setTypeList({0});
    RGBColor color;
    color.setG(7);
    expected.getRGBColorList().push_back(color);
    MosaicParam size;
    size.setWidth(3);
    expected.getMosaicParamList().push_back(size);
    expectAbility(expected, codec.getBlindAbilityV2());
}

TEST(BlindAbilityXmlV2, RefusesATextWithoutOneOfItsChildren)
{
    for (const char* child :
         {"<MaxArea maxBlindAreaNum=\"0\" sizeRate=\"0\" />", "<Type />", "<Color />", "<Alpha />", "<MosaicSize />"})
    {
        std::string text = emptyText;
        text.erase(text.find(child), std::string(child).size());
        CapturedOutput output;
        BlindAbilityXmlV2 codec;
        codec.setBlindAbilityV2(sample());
        EXPECT_FALSE(reads(codec, text)) << child;
        expectAbility(sample(), codec.getBlindAbilityV2());
        EXPECT_EQ("", output.text());
    }
}

TEST(BlindAbilityXmlV2, ReadsAnElementOfAParent)
{
    TiXmlDocument document;
    document.Parse(golden("device/BlindAbilityXmlV2.document.xml").c_str());
    BlindAbilityXmlV2 codec;
    codec.setXmlNode(document.RootElement());
    EXPECT_EQ(document.RootElement(), codec.getXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    expectAbility(sample(), codec.getBlindAbilityV2());
}

TEST(BlindAbilityXmlV2, RefusesToReadWithoutAnElement)
{
    BlindAbilityXmlV2 codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
    codec.setXmlNode(nullptr);
    EXPECT_FALSE(codec.parseXmlNode());
}

TEST(BlindAbilityXmlV2, KeepsTheElementThatItReadsFrom)
{
    BlindAbilityXmlV2 codec;
    ASSERT_TRUE(reads(codec, golden("device/BlindAbilityXmlV2.document.xml")));
    ASSERT_TRUE(codec.parseXmlNode());
    EXPECT_FALSE(reads(codec, "<BlindAreaAbility"));
    ASSERT_TRUE(codec.parseXmlNode());
    expectAbility(sample(), codec.getBlindAbilityV2());
}

TEST(BlindAbilityXmlV2, ReplacesItsTreeWithEveryWrite)
{
    BlindAbilityXmlV2 codec;
    EXPECT_EQ(emptyText, written(codec));
    codec.setBlindAbilityV2(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/BlindAbilityXmlV2.document.xml"));
}

TEST(BlindAbilityXmlV2, WritesBelowAParent)
{
    TiXmlDocument document;
    BlindAbilityXmlV2::writeElement(document, sample());
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    document.Accept(&printer);
    EXPECT_TRUE(matchesGolden(printer.Str(), "device/BlindAbilityXmlV2.document.xml"));
}
