#include "media/EncodeQualityXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

namespace
{

EncodeQuality sample(int first)
{
    EncodeQuality quality;
    quality.setCameraId(first);
    quality.setVideoEncodeQuality(sampleVideoQuality(first + 10));
    quality.setAudioEncodeQuality(sampleAudioQuality(first + 30));
    return quality;
}

void expectQuality(const EncodeQuality& expected, const EncodeQuality& quality)
{
    EXPECT_EQ(expected.getCameraId(), quality.getCameraId());
    expectVideoQuality(expected.getVideoEncodeQuality(), quality.getVideoEncodeQuality());
    expectAudioQuality(expected.getAudioEncodeQuality(), quality.getAudioEncodeQuality());
}

} // namespace

TEST(EncodeQualityXml, Writes)
{
    EncodeQualityXml codec;
    codec.setEncodeQuality(sample(1));
    EXPECT_TRUE(matchesGolden(written(codec), "media/EncodeQualityXml.document.xml"));
}

TEST(EncodeQualityXml, Reads)
{
    EncodeQualityXml codec;
    ASSERT_TRUE(reads(codec, golden("media/EncodeQualityXml.document.xml")));
    expectQuality(sample(1), codec.getEncodeQuality());
}

TEST(EncodeQualityXml, ResetsTheCameraAndLeavesChildrenThatAreMissing)
{
    EncodeQualityXml codec;
    codec.setEncodeQuality(sample(1));
    ASSERT_TRUE(reads(codec, "<EncodeQuality />"));
    EncodeQuality expected = sample(1);
    expected.setCameraId(0);
    expectQuality(expected, codec.getEncodeQuality());
}

TEST(EncodeQualityXml, ReplacesAChildByTheOneThatIsThere)
{
    EncodeQualityXml codec;
    codec.setEncodeQuality(sample(1));
    ASSERT_TRUE(reads(codec, "<EncodeQuality CameraId='1'><AudioEncodeQuality CBSize='9' /></EncodeQuality>"));
    EncodeQuality expected = sample(1);
    expected.setAudioEncodeQuality(AudioEncodeQuality());
    expected.getAudioEncodeQuality().setCBSize(9);
    expectQuality(expected, codec.getEncodeQuality());
}

TEST(EncodeQualityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(EncodeQualityXml().createXmlString(sample(1), text));
    EXPECT_TRUE(matchesGolden(text, "media/EncodeQualityXml.node.xml"));
}

TEST(EncodeQualityXml, ReadsNodes)
{
    CapturedOutput output;
    EncodeQuality read;
    ASSERT_TRUE(EncodeQualityXml().parseXmlString(golden("media/EncodeQualityXml.node.xml"), read));
    expectQuality(sample(1), read);
    EXPECT_EQ("", output.text());
}

TEST(EncodeQualityXml, ReplacesWhatANodeLacksAndPrintsItsLines)
{
    CapturedOutput output;
    EncodeQuality read = sample(1);
    ASSERT_TRUE(EncodeQualityXml().parseXmlString("<EncodeQuality />", read));
    expectQuality(EncodeQuality(), read);
    EXPECT_EQ("EncodeQualityXml::parseDomainXmlNode get CameraId failed \n"
              "EncodeQualityXml::parseDomainXmlNode get objVideoEncodeQualityNode failed \n"
              "EncodeQualityXml::parseDomainXmlNode parse objVideoEncodeQualityNodefailed \n"
              "EncodeQualityXml::parseDomainXmlNode get objAudioEncodeQualityNode failed \n"
              "EncodeQualityXml::parseDomainXmlNode parse objAudioEncodeQualityNodefailed \n",
              output.text());
}

TEST(EncodeQualityXml, PrintsTheLinesOfAChildBetweenItsOwn)
{
    CapturedOutput output;
    EncodeQuality read = sample(1);
    ASSERT_TRUE(EncodeQualityXml().parseXmlString(
        "<EncodeQuality><VideoEncodeQuality VideoSystem='1' FrameRate='2' ImageFormatId='3' BitRateType='4' BitRate='5'"
        " Quant='6' IFrameInterval='7' EncoderType='8' CodingFlag='9' /></EncodeQuality>",
        read));
    EXPECT_EQ("EncodeQualityXml::parseDomainXmlNode get CameraId failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get Quality failed \n"
              "EncodeQualityXml::parseDomainXmlNode get objAudioEncodeQualityNode failed \n"
              "EncodeQualityXml::parseDomainXmlNode parse objAudioEncodeQualityNodefailed \n",
              output.text());
    EXPECT_EQ(9, read.getVideoEncodeQuality().getCodingFlag());
    EXPECT_EQ(0, read.getVideoEncodeQuality().getQuality());
}

TEST(EncodeQualityXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(EncodeQualityXml().createXmlString({sample(1), sample(51)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/EncodeQualityXml.list.xml"));
    ASSERT_TRUE(EncodeQualityXml().createXmlString(std::vector<EncodeQuality>(), text));
    EXPECT_EQ("<EncodeQualityList />\n", text);
}

TEST(EncodeQualityXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<EncodeQuality> list(1, sample(71));
    ASSERT_TRUE(EncodeQualityXml().parseXmlString(golden("media/EncodeQualityXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectQuality(sample(71), list[0]);
    expectQuality(sample(1), list[1]);
    expectQuality(sample(51), list[2]);
}

TEST(EncodeQualityXml, ReadsItemsOfAnyName)
{
    CapturedOutput output;
    std::vector<EncodeQuality> list;
    ASSERT_TRUE(EncodeQualityXml().parseXmlString(
        "<EncodeQualityList>text<!-- --><Other CameraId='9' /></EncodeQualityList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getCameraId());
}

TEST(EncodeQualityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    EncodeQuality read = sample(1);
    std::vector<EncodeQuality> list(1, sample(1));
    EXPECT_FALSE(EncodeQualityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(EncodeQualityXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(EncodeQualityXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(EncodeQualityXml().parseDomainXmlNode(empty, list));
    expectQuality(sample(1), read);
    EXPECT_EQ(1U, list.size());
}

TEST(EncodeQualityXml, RefusesTheRootOfTheOtherKind)
{
    EncodeQuality read;
    std::vector<EncodeQuality> list;
    EXPECT_FALSE(EncodeQualityXml().parseXmlString(golden("media/EncodeQualityXml.list.xml"), read));
    EXPECT_FALSE(EncodeQualityXml().parseXmlString(golden("media/EncodeQualityXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
