#include "media/DeviceVideoEncodeQualityXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

namespace
{

DeviceVideoEncodeQuality sample(int first)
{
    DeviceVideoEncodeQuality quality;
    quality.setCameraID(first);
    quality.setVideoEncodeQualityList({sampleVideoQuality(first + 10), sampleVideoQuality(first + 30)});
    return quality;
}

void expectQuality(const DeviceVideoEncodeQuality& expected, const DeviceVideoEncodeQuality& quality)
{
    EXPECT_EQ(expected.getCameraID(), quality.getCameraID());
    ASSERT_EQ(expected.getVideoEncodeQualityList().size(), quality.getVideoEncodeQualityList().size());
    for (std::size_t number = 0; number < quality.getVideoEncodeQualityList().size(); ++number)
        expectVideoQuality(expected.getVideoEncodeQualityList()[number], quality.getVideoEncodeQualityList()[number]);
}

} // namespace

TEST(DeviceVideoEncodeQualityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DeviceVideoEncodeQualityXml().createXmlString(sample(1), text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceVideoEncodeQualityXml.node.xml"));
}

TEST(DeviceVideoEncodeQualityXml, ReadsNodes)
{
    CapturedOutput output;
    DeviceVideoEncodeQuality read;
    ASSERT_TRUE(
        DeviceVideoEncodeQualityXml().parseXmlString(golden("media/DeviceVideoEncodeQualityXml.node.xml"), read));
    expectQuality(sample(1), read);
    EXPECT_EQ("", output.text());
}

TEST(DeviceVideoEncodeQualityXml, ResetsWhatANodeLacksAndPrintsALineForTheCamera)
{
    CapturedOutput output;
    DeviceVideoEncodeQuality read = sample(1);
    ASSERT_TRUE(DeviceVideoEncodeQualityXml().parseXmlString("<DeviceVideoEncodeQuality />", read));
    expectQuality(DeviceVideoEncodeQuality(), read);
    EXPECT_EQ("DeviceVideoEncodeQualityXml::parseDomainXmlNode get CameraID failed \n", output.text());
}

TEST(DeviceVideoEncodeQualityXml, ReplacesTheStreamsThatAreThere)
{
    CapturedOutput output;
    DeviceVideoEncodeQuality read = sample(1);
    ASSERT_TRUE(DeviceVideoEncodeQualityXml().parseXmlString(
        "<DeviceVideoEncodeQuality CameraID='1'><VideoEncodeQualityList>text<!-- --><Other Quality='9' />"
        "</VideoEncodeQualityList></DeviceVideoEncodeQuality>",
        read));
    ASSERT_EQ(1U, read.getVideoEncodeQualityList().size());
    EXPECT_EQ(9, read.getVideoEncodeQualityList()[0].getQuality());
}

TEST(DeviceVideoEncodeQualityXml, WritesTheContainerOfNoStreams)
{
    std::string text;
    ASSERT_TRUE(DeviceVideoEncodeQualityXml().createXmlString(DeviceVideoEncodeQuality(), text));
    EXPECT_EQ("<DeviceVideoEncodeQuality CameraID=\"0\">\n\t<VideoEncodeQualityList />\n</DeviceVideoEncodeQuality>\n",
              text);
}

TEST(DeviceVideoEncodeQualityXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DeviceVideoEncodeQualityXml().createXmlString({sample(1), sample(51)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/DeviceVideoEncodeQualityXml.list.xml"));
    ASSERT_TRUE(DeviceVideoEncodeQualityXml().createXmlString(std::vector<DeviceVideoEncodeQuality>(), text));
    EXPECT_EQ("<DeviceVideoEncodeQualityList />\n", text);
}

TEST(DeviceVideoEncodeQualityXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DeviceVideoEncodeQuality> list(1, sample(71));
    ASSERT_TRUE(
        DeviceVideoEncodeQualityXml().parseXmlString(golden("media/DeviceVideoEncodeQualityXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectQuality(sample(71), list[0]);
    expectQuality(sample(1), list[1]);
    expectQuality(sample(51), list[2]);
}

TEST(DeviceVideoEncodeQualityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DeviceVideoEncodeQuality read = sample(1);
    std::vector<DeviceVideoEncodeQuality> list(1, sample(1));
    EXPECT_FALSE(DeviceVideoEncodeQualityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DeviceVideoEncodeQualityXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(DeviceVideoEncodeQualityXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(DeviceVideoEncodeQualityXml().parseDomainXmlNode(empty, list));
    expectQuality(sample(1), read);
    EXPECT_EQ(1U, list.size());
}

TEST(DeviceVideoEncodeQualityXml, RefusesTheRootOfTheOtherKind)
{
    DeviceVideoEncodeQuality read;
    std::vector<DeviceVideoEncodeQuality> list;
    EXPECT_FALSE(
        DeviceVideoEncodeQualityXml().parseXmlString(golden("media/DeviceVideoEncodeQualityXml.list.xml"), read));
    EXPECT_FALSE(
        DeviceVideoEncodeQualityXml().parseXmlString(golden("media/DeviceVideoEncodeQualityXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
