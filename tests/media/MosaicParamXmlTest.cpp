#include "media/MosaicParamXml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

TEST(MosaicParamXml, Writes)
{
    MosaicParamXml codec;
    codec.setMosaicParam(sampleMosaic());
    EXPECT_TRUE(matchesGolden(written(codec), "media/MosaicParamXml.document.xml"));
}

TEST(MosaicParamXml, Reads)
{
    MosaicParamXml codec;
    ASSERT_TRUE(reads(codec, golden("media/MosaicParamXml.document.xml")));
    expectMosaic(sampleMosaic(), codec.getMosaicParam());
}

TEST(MosaicParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    MosaicParamXml codec;
    codec.setMosaicParam(sampleMosaic());
    ASSERT_TRUE(reads(codec, "<MosaicParam />"));
    expectMosaic(MosaicParam(), codec.getMosaicParam());
    EXPECT_EQ("", output.text());
}

TEST(MosaicParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(MosaicParamXml().createXmlString(sampleMosaic(), text));
    EXPECT_TRUE(matchesGolden(text, "media/MosaicParamXml.node.xml"));
}

TEST(MosaicParamXml, ReadsNodes)
{
    MosaicParam read;
    ASSERT_TRUE(MosaicParamXml().parseXmlString(golden("media/MosaicParamXml.node.xml"), read));
    expectMosaic(sampleMosaic(), read);
}

TEST(MosaicParamXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    MosaicParam read = sampleMosaic();
    ASSERT_TRUE(MosaicParamXml().parseXmlString("<MosaicParam />", read));
    expectMosaic(MosaicParam(), read);
    EXPECT_EQ("MosaicParamXml::parseDomainXmlNode get Width failed \n"
              "MosaicParamXml::parseDomainXmlNode get Height failed \n",
              output.text());
}

TEST(MosaicParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(MosaicParamXml().createXmlString({sampleMosaic(), MosaicParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/MosaicParamXml.list.xml"));
    ASSERT_TRUE(MosaicParamXml().createXmlString(std::vector<MosaicParam>(), text));
    EXPECT_EQ("<MosaicParamList />\n", text);
}

TEST(MosaicParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<MosaicParam> list(1, sampleMosaic());
    ASSERT_TRUE(MosaicParamXml().parseXmlString(golden("media/MosaicParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectMosaic(sampleMosaic(), list[0]);
    expectMosaic(sampleMosaic(), list[1]);
    expectMosaic(MosaicParam(), list[2]);
}

TEST(MosaicParamXml, CarriesTheHighestSizeAsASignedNumber)
{
    MosaicParamXml codec;
    codec.getMosaicParam().setWidth(4294967295U);
    codec.getMosaicParam().setHeight(2147483648U);
    const std::string text = written(codec);
    EXPECT_EQ("<MosaicParam Width=\"-1\" Height=\"-2147483648\" />\n", text);
    std::string node;
    ASSERT_TRUE(MosaicParamXml().createXmlString(codec.getMosaicParam(), node));
    EXPECT_EQ(text, node);

    MosaicParamXml reader;
    ASSERT_TRUE(reads(reader, text));
    expectMosaic(codec.getMosaicParam(), reader.getMosaicParam());
    MosaicParam read;
    ASSERT_TRUE(MosaicParamXml().parseXmlString(text, read));
    expectMosaic(codec.getMosaicParam(), read);
}

TEST(MosaicParamXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<MosaicParam> list;
    ASSERT_TRUE(MosaicParamXml().parseXmlString(
        "<MosaicParamList>text<!--MosaicParam--><Other Width='9' /></MosaicParamList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9U, list[0].getWidth());
}

TEST(MosaicParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    MosaicParam read = sampleMosaic();
    std::vector<MosaicParam> list(1, sampleMosaic());
    EXPECT_FALSE(MosaicParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(MosaicParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(MosaicParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(MosaicParamXml().parseDomainXmlNode(empty, list));
    expectMosaic(sampleMosaic(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(MosaicParamXml, RefusesTheRootOfTheOtherKind)
{
    MosaicParam read;
    std::vector<MosaicParam> list;
    EXPECT_FALSE(MosaicParamXml().parseXmlString(golden("media/MosaicParamXml.list.xml"), read));
    EXPECT_FALSE(MosaicParamXml().parseXmlString(golden("media/MosaicParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
