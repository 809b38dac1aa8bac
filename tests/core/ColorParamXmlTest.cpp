#include "core/ColorParamXml.h"

#include "tests/support/Documents.h"

namespace
{

ColorParam color(std::uint32_t red, std::uint32_t green, std::uint32_t blue, std::uint32_t alpha)
{
    ColorParam color;
    color.setRed(red);
    color.setGreen(green);
    color.setBlue(blue);
    color.setAlpha(alpha);
    return color;
}

void expectColor(const ColorParam& expected, const ColorParam& color)
{
    EXPECT_EQ(expected.getRed(), color.getRed());
    EXPECT_EQ(expected.getGreen(), color.getGreen());
    EXPECT_EQ(expected.getBlue(), color.getBlue());
    EXPECT_EQ(expected.getAlpha(), color.getAlpha());
}

} // namespace

TEST(ColorParamXml, Writes)
{
    ColorParamXml codec;
    codec.setColorParam(color(255, 128, 64, 32));
    EXPECT_TRUE(matchesGolden(written(codec), "core/ColorParamXml.document.xml"));
}

TEST(ColorParamXml, Reads)
{
    ColorParamXml codec;
    ASSERT_TRUE(reads(codec, golden("core/ColorParamXml.document.xml")));
    expectColor(color(255, 128, 64, 32), codec.getColorParam());
}

TEST(ColorParamXml, LeavesWhatIsMissing)
{
    ColorParamXml codec;
    codec.setColorParam(color(1, 2, 3, 4));
    ASSERT_TRUE(reads(codec, "<ColorParam Green='9' />"));
    expectColor(color(1, 9, 3, 4), codec.getColorParam());
}

TEST(ColorParamXml, CarriesTheHighestShareAsASignedNumber)
{
    ColorParamXml codec;
    codec.setColorParam(color(4294967295U, 2147483648U, 0, 0));
    const std::string text = written(codec);
    EXPECT_EQ("<ColorParam Red=\"-1\" Green=\"-2147483648\" Blue=\"0\" Alpha=\"0\" />\n", text);

    ColorParamXml reader;
    ASSERT_TRUE(reads(reader, text));
    expectColor(color(4294967295U, 2147483648U, 0, 0), reader.getColorParam());

    ColorParam read;
    ASSERT_TRUE(ColorParamXml().parseXmlString(text, read));
    expectColor(color(4294967295U, 2147483648U, 0, 0), read);
}

TEST(ColorParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ColorParamXml().createXmlString(color(255, 128, 64, 32), text));
    EXPECT_TRUE(matchesGolden(text, "core/ColorParamXml.node.xml"));
}

TEST(ColorParamXml, ReadsNodes)
{
    ColorParam read;
    ASSERT_TRUE(ColorParamXml().parseXmlString(golden("core/ColorParamXml.node.xml"), read));
    expectColor(color(255, 128, 64, 32), read);
}

TEST(ColorParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ColorParam read = color(1, 2, 3, 4);
    ASSERT_TRUE(ColorParamXml().parseXmlString("<ColorParam Green='9' />", read));
    expectColor(color(0, 9, 0, 0), read);
    EXPECT_EQ("", output.text());
}

TEST(ColorParamXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<ColorParam Old='1'><Child /></ColorParam>", node));
    ASSERT_TRUE(ColorParamXml().createDomainXmlNode(color(1, 2, 3, 4), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<ColorParam Old=\"1\" Red=\"1\" Green=\"2\" Blue=\"3\" Alpha=\"4\" />\n", text);
}

TEST(ColorParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ColorParam read = color(1, 2, 3, 4);
    EXPECT_FALSE(ColorParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ColorParamXml().parseDomainXmlNode(empty, read));
    expectColor(color(1, 2, 3, 4), read);
}
