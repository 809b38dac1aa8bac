#include "media/OSDInfoExXml.h"

#include "tests/media/OverlaySample.h"
#include "tests/support/Documents.h"

#include <limits>

TEST(OSDInfoExXml, Writes)
{
    OSDInfoExXml codec;
    codec.setOSDInfo(sampleText());
    EXPECT_TRUE(matchesGolden(written(codec), "media/OSDInfoExXml.document.xml"));
}

TEST(OSDInfoExXml, Reads)
{
    OSDInfoExXml codec;
    ASSERT_TRUE(reads(codec, golden("media/OSDInfoExXml.document.xml")));
    expectText(sampleText(), codec.getOSDInfo());
}

TEST(OSDInfoExXml, ResetsWhatIsMissing)
{
    OSDInfoExXml codec;
    codec.setOSDInfo(sampleText());
    ASSERT_TRUE(reads(codec, "<OSDInfo />"));
    expectText(OSDInfoEx(), codec.getOSDInfo());
}

TEST(OSDInfoExXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(OSDInfoExXml().createXmlString(sampleText(), text));
    EXPECT_TRUE(matchesGolden(text, "media/OSDInfoExXml.node.xml"));
}

TEST(OSDInfoExXml, ReadsNodes)
{
    OSDInfoEx read;
    ASSERT_TRUE(OSDInfoExXml().parseXmlString(golden("media/OSDInfoExXml.node.xml"), read));
    expectText(sampleText(), read);
}

TEST(OSDInfoExXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    OSDInfoEx read = sampleText();
    ASSERT_TRUE(OSDInfoExXml().parseXmlString("<OSDInfo />", read));
    expectText(OSDInfoEx(), read);
    EXPECT_EQ("", output.text());
}

TEST(OSDInfoExXml, FindsNoPositionInTheDocumentOfWholeNumbers)
{
    const std::string whole = "<OSDInfo OSDType='3' OSDEnableFlag='true' TopX='1' TopY='2' Info='North' />";
    OSDInfoExXml codec;
    codec.setOSDInfo(sampleText());
    ASSERT_TRUE(reads(codec, whole));
    EXPECT_EQ("North", codec.getOSDInfo().getInfo());
    EXPECT_EQ(0, codec.getOSDInfo().getX());
    EXPECT_EQ(0, codec.getOSDInfo().getY());

    OSDInfoEx read = sampleText();
    ASSERT_TRUE(OSDInfoExXml().parseXmlString(whole, read));
    EXPECT_EQ("North", read.getInfo());
    EXPECT_EQ(0, read.getX());
    EXPECT_EQ(0, read.getY());
}

TEST(OSDInfoExXml, ReadsAPositionOutOfRangeAsInfinity)
{
    const std::string far = "<OSDInfo X='1e300' Y='-1e300' />";
    OSDInfoExXml codec;
    ASSERT_TRUE(reads(codec, far));
    EXPECT_EQ(std::numeric_limits<float>::infinity(), codec.getOSDInfo().getX());
    EXPECT_EQ(-std::numeric_limits<float>::infinity(), codec.getOSDInfo().getY());

    OSDInfoEx read;
    ASSERT_TRUE(OSDInfoExXml().parseXmlString(far, read));
    EXPECT_EQ(std::numeric_limits<float>::infinity(), read.getX());
    EXPECT_EQ(-std::numeric_limits<float>::infinity(), read.getY());
}

TEST(OSDInfoExXml, KeepsAPositionThatIsNoRoundNumber)
{
    OSDInfoExXml codec;
    codec.setOSDInfo(sampleText());
    codec.getOSDInfo().setX(0.1F);
    const std::string document = written(codec);
    EXPECT_NE(std::string::npos, document.find(" X=\"0.10000000149011612\"")); // not the float's own shortest text
    std::string node;
    ASSERT_TRUE(OSDInfoExXml().createXmlString(codec.getOSDInfo(), node));
    EXPECT_EQ(document, node);

    OSDInfoExXml reader;
    ASSERT_TRUE(reads(reader, document));
    expectText(codec.getOSDInfo(), reader.getOSDInfo());
}

TEST(OSDInfoExXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    OSDInfoEx read = sampleText();
    EXPECT_FALSE(OSDInfoExXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(OSDInfoExXml().parseDomainXmlNode(empty, read));
    expectText(sampleText(), read);
}
