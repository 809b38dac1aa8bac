#include "media/BlindAreaParamXml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

namespace
{

BlindAreaParam sample()
{
    BlindAreaParam area;
    area.setCameraId(4);
    area.setEnableFlag(true);
    area.setType(3);
    area.setColor(sampleColor());
    area.setMosaic(sampleMosaic());
    area.setAreaParam({sampleArea(), AreaParam()});
    return area;
}

void expectBlindArea(const BlindAreaParam& expected, const BlindAreaParam& area)
{
    EXPECT_EQ(expected.getCameraId(), area.getCameraId());
    EXPECT_EQ(expected.getEnableFlag(), area.getEnableFlag());
    EXPECT_EQ(expected.getType(), area.getType());
    expectColor(expected.getColor(), area.getColor());
    expectMosaic(expected.getMosaic(), area.getMosaic());
    ASSERT_EQ(expected.getAreaParam().size(), area.getAreaParam().size());
    for (std::size_t number = 0; number < area.getAreaParam().size(); ++number)
        expectArea(expected.getAreaParam()[number], area.getAreaParam()[number]);
}

} // namespace

TEST(BlindAreaParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(BlindAreaParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/BlindAreaParamXml.node.xml"));
}

TEST(BlindAreaParamXml, ReadsNodes)
{
    BlindAreaParam read;
    ASSERT_TRUE(BlindAreaParamXml().parseXmlString(golden("media/BlindAreaParamXml.node.xml"), read));
    expectBlindArea(sample(), read);
}

TEST(BlindAreaParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(BlindAreaParamXml().createXmlString({sample(), BlindAreaParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/BlindAreaParamXml.list.xml"));
    ASSERT_TRUE(BlindAreaParamXml().createXmlString(std::vector<BlindAreaParam>(), text));
    EXPECT_EQ("<BlindAreaParamList />\n", text);
}

TEST(BlindAreaParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<BlindAreaParam> list(1, sample());
    ASSERT_TRUE(BlindAreaParamXml().parseXmlString(golden("media/BlindAreaParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectBlindArea(sample(), list[0]);
    expectBlindArea(sample(), list[1]);
    expectBlindArea(BlindAreaParam(), list[2]);
}

TEST(BlindAreaParamXml, Writes)
{
    BlindAreaParamXml codec;
    codec.setBlindAreaParamList({sample(), BlindAreaParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "media/BlindAreaParamXml.document.xml"));
}

TEST(BlindAreaParamXml, ReadsBehindTheItemsThatAreThere)
{
    BlindAreaParamXml codec;
    codec.getBlindAreaParamList().push_back(sample());
    ASSERT_TRUE(reads(codec, golden("media/BlindAreaParamXml.document.xml")));
    ASSERT_EQ(3U, codec.getBlindAreaParamList().size());
    expectBlindArea(sample(), codec.getBlindAreaParamList()[0]);
    expectBlindArea(sample(), codec.getBlindAreaParamList()[1]);
    expectBlindArea(BlindAreaParam(), codec.getBlindAreaParamList()[2]);
}

TEST(BlindAreaParamXml, TakesType1ForADocumentWithoutIt)
{
    CapturedOutput output;
    BlindAreaParamXml codec;
    ASSERT_TRUE(reads(codec, "<BlindAreaParamList><BlindAreaParam /></BlindAreaParamList>"));
    ASSERT_EQ(1U, codec.getBlindAreaParamList().size());
    BlindAreaParam expected;
    expected.setType(1);
    expectBlindArea(expected, codec.getBlindAreaParamList()[0]);
    EXPECT_EQ("", output.text());
}

TEST(BlindAreaParamXml, ReadsWhatIsNoNumberAsZero)
{
    BlindAreaParamXml codec;
    ASSERT_TRUE(reads(codec, "<BlindAreaParamList><BlindAreaParam CameraId='x' Type='x' /></BlindAreaParamList>"));
    ASSERT_EQ(1U, codec.getBlindAreaParamList().size());
    expectBlindArea(BlindAreaParam(), codec.getBlindAreaParamList()[0]);
}

TEST(BlindAreaParamXml, WalksDocumentsByName)
{
    BlindAreaParamXml codec;
    ASSERT_TRUE(reads(codec, "<BlindAreaParamList><!--BlindAreaParam--><BlindAreaParam CameraId='1'><AreaParamList>"
                             "<AreaParam TopX='1' /><!-- --><Other TopX='2' /></AreaParamList></BlindAreaParam>"
                             "<Other CameraId='2' /><BlindAreaParam CameraId='3' /></BlindAreaParamList>"));
    ASSERT_EQ(2U, codec.getBlindAreaParamList().size());
    EXPECT_EQ(1, codec.getBlindAreaParamList()[0].getCameraId());
    ASSERT_EQ(2U, codec.getBlindAreaParamList()[0].getAreaParam().size());
    EXPECT_EQ(2, codec.getBlindAreaParamList()[0].getAreaParam()[1].getTopX());
    EXPECT_EQ(3, codec.getBlindAreaParamList()[1].getCameraId());
}

TEST(BlindAreaParamXml, TakesType0ForANodeWithoutIt)
{
    CapturedOutput output;
    BlindAreaParam read = sample();
    ASSERT_TRUE(BlindAreaParamXml().parseXmlString("<BlindAreaParam />", read));
    expectBlindArea(BlindAreaParam(), read);
    EXPECT_EQ("BlindAreaParamXml::parseDomainXmlNode get CameraId failed \n"
              "BlindAreaParamXml::parseDomainXmlNode get EnableFlag failed \n"
              "BlindAreaParamXml::parseDomainXmlNode get Type failed \n",
              output.text());
}

TEST(BlindAreaParamXml, ReplacesTheAreasOfTheRecord)
{
    BlindAreaParam read = sample();
    ASSERT_TRUE(BlindAreaParamXml().parseXmlString(golden("media/BlindAreaParamXml.node.xml"), read));
    expectBlindArea(sample(), read);
}

TEST(BlindAreaParamXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<BlindAreaParam> list;
    ASSERT_TRUE(BlindAreaParamXml().parseXmlString(
        "<BlindAreaParamList>text<!--BlindAreaParam--><Other CameraId='9' /></BlindAreaParamList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getCameraId());
}

TEST(BlindAreaParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    BlindAreaParam read = sample();
    std::vector<BlindAreaParam> list(1, sample());
    EXPECT_FALSE(BlindAreaParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(BlindAreaParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(BlindAreaParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(BlindAreaParamXml().parseDomainXmlNode(empty, list));
    expectBlindArea(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(BlindAreaParamXml, RefusesTheRootOfTheOtherKind)
{
    BlindAreaParam read;
    std::vector<BlindAreaParam> list;
    EXPECT_FALSE(BlindAreaParamXml().parseXmlString(golden("media/BlindAreaParamXml.list.xml"), read));
    EXPECT_FALSE(BlindAreaParamXml().parseXmlString(golden("media/BlindAreaParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
