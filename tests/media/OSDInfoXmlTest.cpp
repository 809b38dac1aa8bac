#include "media/OSDInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

OSDInfo sample()
{
    OSDInfo info;
    info.setOSDType(3);
    info.setOSDEnableFlag(true);
    info.setTopX(16);
    info.setTopY(-8);
    info.setInfo("North & gate");
    return info;
}

void expectInfo(const OSDInfo& expected, const OSDInfo& info)
{
    EXPECT_EQ(expected.getOSDType(), info.getOSDType());
    EXPECT_EQ(expected.getOSDEnableFlag(), info.getOSDEnableFlag());
    EXPECT_EQ(expected.getTopX(), info.getTopX());
    EXPECT_EQ(expected.getTopY(), info.getTopY());
    EXPECT_EQ(expected.getInfo(), info.getInfo());
}

} // namespace

TEST(OSDInfoXml, Writes)
{
    OSDInfoXml codec;
    codec.setOSDInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "media/OSDInfoXml.document.xml"));
}

TEST(OSDInfoXml, Reads)
{
    OSDInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("media/OSDInfoXml.document.xml")));
    expectInfo(sample(), codec.getOSDInfo());
}

TEST(OSDInfoXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    OSDInfoXml codec;
    codec.setOSDInfo(sample());
    ASSERT_TRUE(reads(codec, "<OSDInfo />"));
    expectInfo(OSDInfo(), codec.getOSDInfo());
    EXPECT_EQ("", output.text());
}

TEST(OSDInfoXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(OSDInfoXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/OSDInfoXml.node.xml"));
}

TEST(OSDInfoXml, ReadsNodes)
{
    OSDInfo read;
    ASSERT_TRUE(OSDInfoXml().parseXmlString(golden("media/OSDInfoXml.node.xml"), read));
    expectInfo(sample(), read);
}

TEST(OSDInfoXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    OSDInfo read = sample();
    ASSERT_TRUE(OSDInfoXml().parseXmlString("<OSDInfo />", read));
    expectInfo(OSDInfo(), read);
    EXPECT_EQ("OSDInfoXml::parseDomainXmlNode get Info failed\n"
              "OSDInfoXml::parseDomainXmlNode get OSDEnableFlag failed\n"
              "OSDInfoXml::parseDomainXmlNode get OSDType failed\n"
              "OSDInfoXml::parseDomainXmlNode get TopX failed\n"
              "OSDInfoXml::parseDomainXmlNode get TopY failed\n",
              output.text());
}

TEST(OSDInfoXml, FindsNoPositionInTheFractionalDocument)
{
    CapturedOutput output;
    const std::string fractional = "<OSDInfo OSDType='3' OSDEnableFlag='true' X='1.5' Y='2.5' Info='North' />";
    OSDInfoXml codec;
    codec.setOSDInfo(sample());
    ASSERT_TRUE(reads(codec, fractional));
    EXPECT_EQ("North", codec.getOSDInfo().getInfo());
    EXPECT_EQ(0, codec.getOSDInfo().getTopX());
    EXPECT_EQ(0, codec.getOSDInfo().getTopY());

    OSDInfo read = sample();
    ASSERT_TRUE(OSDInfoXml().parseXmlString(fractional, read));
    EXPECT_EQ("North", read.getInfo());
    EXPECT_EQ(0, read.getTopX());
    EXPECT_EQ(0, read.getTopY());
}

TEST(OSDInfoXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    OSDInfo read = sample();
    EXPECT_FALSE(OSDInfoXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(OSDInfoXml().parseDomainXmlNode(empty, read));
    expectInfo(sample(), read);
}
