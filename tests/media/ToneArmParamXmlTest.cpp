#include "media/ToneArmParamXml.h"

#include "tests/support/Documents.h"

namespace
{

ToneArmParam sample()
{
    ToneArmParam param;
    param.setCameraId(3);
    param.setToneArmEnableFlag(true);
    param.setToneArmType(2);
    param.setVolume(50);
    return param;
}

void expectParam(const ToneArmParam& expected, const ToneArmParam& param)
{
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getToneArmEnableFlag(), param.getToneArmEnableFlag());
    EXPECT_EQ(expected.getToneArmType(), param.getToneArmType());
    EXPECT_EQ(expected.getVolume(), param.getVolume());
}

} // namespace

TEST(ToneArmParamXml, Writes)
{
    ToneArmParamXml codec;
    codec.setToneArmParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "media/ToneArmParamXml.document.xml"));
}

TEST(ToneArmParamXml, Reads)
{
    ToneArmParamXml codec;
    ASSERT_TRUE(reads(codec, golden("media/ToneArmParamXml.document.xml")));
    expectParam(sample(), codec.getToneArmParam());
}

TEST(ToneArmParamXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    ToneArmParamXml codec;
    codec.setToneArmParam(sample());
    ASSERT_TRUE(reads(codec, "<ToneArmParam />"));
    expectParam(ToneArmParam(), codec.getToneArmParam());
    EXPECT_EQ("", output.text());
}

TEST(ToneArmParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ToneArmParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "media/ToneArmParamXml.node.xml"));
}

TEST(ToneArmParamXml, ReadsNodes)
{
    ToneArmParam read;
    ASSERT_TRUE(ToneArmParamXml().parseXmlString(golden("media/ToneArmParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(ToneArmParamXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    ToneArmParam read = sample();
    ASSERT_TRUE(ToneArmParamXml().parseXmlString("<ToneArmParam />", read));
    expectParam(ToneArmParam(), read);
    EXPECT_EQ("ToneArmParamXml::parseDomainXmlNode get CameraId failed \n"
              "ToneArmParamXml::parseDomainXmlNode get ToneArmEnableFlag failed \n"
              "ToneArmParamXml::parseDomainXmlNode get ToneArmType failed \n"
              "ToneArmParamXml::parseDomainXmlNode get Volume failed \n",
              output.text());
}

TEST(ToneArmParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ToneArmParamXml().createXmlString({sample(), ToneArmParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/ToneArmParamXml.list.xml"));
    ASSERT_TRUE(ToneArmParamXml().createXmlString(std::vector<ToneArmParam>(), text));
    EXPECT_EQ("<ToneArmParamList />\n", text);
}

TEST(ToneArmParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ToneArmParam> list(1, sample());
    ASSERT_TRUE(ToneArmParamXml().parseXmlString(golden("media/ToneArmParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(sample(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(ToneArmParam(), list[2]);
}

TEST(ToneArmParamXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<ToneArmParam> list;
    ASSERT_TRUE(ToneArmParamXml().parseXmlString(
        "<ToneArmParamList>text<!--ToneArmParam--><Other Volume='9' /></ToneArmParamList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getVolume());
}

TEST(ToneArmParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ToneArmParam read = sample();
    std::vector<ToneArmParam> list(1, sample());
    EXPECT_FALSE(ToneArmParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ToneArmParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ToneArmParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(ToneArmParamXml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(ToneArmParamXml, RefusesTheRootOfTheOtherKind)
{
    ToneArmParam read;
    std::vector<ToneArmParam> list;
    EXPECT_FALSE(ToneArmParamXml().parseXmlString(golden("media/ToneArmParamXml.list.xml"), read));
    EXPECT_FALSE(ToneArmParamXml().parseXmlString(golden("media/ToneArmParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
