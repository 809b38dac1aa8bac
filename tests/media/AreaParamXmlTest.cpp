#include "media/AreaParamXml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

TEST(AreaParamXml, Writes)
{
    AreaParamXml codec;
    codec.setAreaParam(sampleArea());
    EXPECT_TRUE(matchesGolden(written(codec), "media/AreaParamXml.document.xml"));
}

TEST(AreaParamXml, Reads)
{
    AreaParamXml codec;
    ASSERT_TRUE(reads(codec, golden("media/AreaParamXml.document.xml")));
    expectArea(sampleArea(), codec.getAreaParam());
}

TEST(AreaParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AreaParamXml codec;
    codec.setAreaParam(sampleArea());
    ASSERT_TRUE(reads(codec, "<AreaParam />"));
    expectArea(AreaParam(), codec.getAreaParam());
    EXPECT_EQ("", output.text());
}

TEST(AreaParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AreaParamXml().createXmlString(sampleArea(), text));
    EXPECT_TRUE(matchesGolden(text, "media/AreaParamXml.node.xml"));
}

TEST(AreaParamXml, ReadsNodes)
{
    AreaParam read;
    ASSERT_TRUE(AreaParamXml().parseXmlString(golden("media/AreaParamXml.node.xml"), read));
    expectArea(sampleArea(), read);
}

TEST(AreaParamXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    AreaParam read = sampleArea();
    ASSERT_TRUE(AreaParamXml().parseXmlString("<AreaParam />", read));
    expectArea(AreaParam(), read);
    EXPECT_EQ("AreaParamXml::parseDomainXmlNode get TopX failed \n"
              "AreaParamXml::parseDomainXmlNode get TopY failed \n"
              "AreaParamXml::parseDomainXmlNode get Width failed \n"
              "AreaParamXml::parseDomainXmlNode get Height failed \n",
              output.text());
}

TEST(AreaParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AreaParam read = sampleArea();
    EXPECT_FALSE(AreaParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AreaParamXml().parseDomainXmlNode(empty, read));
    expectArea(sampleArea(), read);
}
