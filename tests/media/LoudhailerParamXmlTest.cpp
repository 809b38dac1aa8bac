#include "media/LoudhailerParamXml.h"

#include "tests/support/Documents.h"

namespace
{

LoudhailerParam sample()
{
    LoudhailerParam param;
    param.setCameraId(3);
    param.setLoudhailerEnableFlag(true);
    param.setLoudhailerType(2);
    param.setVolume(50);
    return param;
}

void expectParam(const LoudhailerParam& expected, const LoudhailerParam& param)
{
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getLoudhailerEnableFlag(), param.getLoudhailerEnableFlag());
    EXPECT_EQ(expected.getLoudhailerType(), param.getLoudhailerType());
    EXPECT_EQ(expected.getVolume(), param.getVolume());
}

} // namespace

TEST(LoudhailerParamXml, Writes)
{
    LoudhailerParamXml codec;
    codec.setLoudhailerParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "media/LoudhailerParamXml.document.xml"));
}

TEST(LoudhailerParamXml, Reads)
{
    LoudhailerParamXml codec;
    ASSERT_TRUE(reads(codec, golden("media/LoudhailerParamXml.document.xml")));
    expectParam(sample(), codec.getLoudhailerParam());
}

TEST(LoudhailerParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    LoudhailerParamXml codec;
    codec.setLoudhailerParam(sample());
    ASSERT_TRUE(reads(codec, "<LoudhailerParam />"));
    expectParam(LoudhailerParam(), codec.getLoudhailerParam());
    EXPECT_EQ("", output.text());
}

TEST(LoudhailerParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(LoudhailerParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/LoudhailerParamXml.node.xml"));
}

TEST(LoudhailerParamXml, ReadsNodes)
{
    LoudhailerParam read;
    ASSERT_TRUE(LoudhailerParamXml().parseXmlString(golden("media/LoudhailerParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(LoudhailerParamXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    LoudhailerParam read = sample();
    ASSERT_TRUE(LoudhailerParamXml().parseXmlString("<LoudhailerParam />", read));
    expectParam(LoudhailerParam(), read);
    EXPECT_EQ("LoudhailerParamXml::parseDomainXmlNode get CameraId failed \n"
              "LoudhailerParamXml::parseDomainXmlNode get LoudhailerEnableFlag failed \n"
              "LoudhailerParamXml::parseDomainXmlNode get LoudhailerType failed \n"
              "LoudhailerParamXml::parseDomainXmlNode get Volume failed \n",
              output.text());
}

TEST(LoudhailerParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(LoudhailerParamXml().createXmlString({sample(), LoudhailerParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/LoudhailerParamXml.list.xml"));
    ASSERT_TRUE(LoudhailerParamXml().createXmlString(std::vector<LoudhailerParam>(), text));
    EXPECT_EQ("<LoudhailerParamList />\n", text);
}

TEST(LoudhailerParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<LoudhailerParam> list(1, sample());
    ASSERT_TRUE(LoudhailerParamXml().parseXmlString(golden("media/LoudhailerParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(sample(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(LoudhailerParam(), list[2]);
}

TEST(LoudhailerParamXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<LoudhailerParam> list;
    ASSERT_TRUE(LoudhailerParamXml().parseXmlString(
        "<LoudhailerParamList>text<!--LoudhailerParam--><Other Volume='9' /></LoudhailerParamList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getVolume());
}

TEST(LoudhailerParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    LoudhailerParam read = sample();
    std::vector<LoudhailerParam> list(1, sample());
    EXPECT_FALSE(LoudhailerParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(LoudhailerParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(LoudhailerParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(LoudhailerParamXml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(LoudhailerParamXml, RefusesTheRootOfTheOtherKind)
{
    LoudhailerParam read;
    std::vector<LoudhailerParam> list;
    EXPECT_FALSE(LoudhailerParamXml().parseXmlString(golden("media/LoudhailerParamXml.list.xml"), read));
    EXPECT_FALSE(LoudhailerParamXml().parseXmlString(golden("media/LoudhailerParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
