#include "media/VideoCaptureConfigureXml.h"

#include "tests/support/Documents.h"

namespace
{

VideoCaptureConfigure sample(int first)
{
    VideoCaptureConfigure capture;
    capture.setResolutionId(first);
    capture.setMode(first + 1);
    capture.setCaptureId(first + 2);
    capture.setVIPId(first + 3);
    capture.setVideoWidth(first + 4);
    capture.setVideoHeight(first + 5);
    capture.setUserVideoHeight(first + 6);
    capture.setUserVideoWidth(first + 7);
    capture.setInterlace(first + 8);
    capture.setDeviceName("input " + std::to_string(first + 9));
    capture.setBufferNumber(first + 10);
    capture.setReserve("reserve " + std::to_string(first + 11));
    capture.setCaptureNum(first + 12);
    return capture;
}

void expectCapture(const VideoCaptureConfigure& expected, const VideoCaptureConfigure& capture)
{
    EXPECT_EQ(expected.getResolutionId(), capture.getResolutionId());
    EXPECT_EQ(expected.getMode(), capture.getMode());
    EXPECT_EQ(expected.getCaptureId(), capture.getCaptureId());
    EXPECT_EQ(expected.getVIPId(), capture.getVIPId());
    EXPECT_EQ(expected.getVideoWidth(), capture.getVideoWidth());
    EXPECT_EQ(expected.getVideoHeight(), capture.getVideoHeight());
    EXPECT_EQ(expected.getUserVideoHeight(), capture.getUserVideoHeight());
    EXPECT_EQ(expected.getUserVideoWidth(), capture.getUserVideoWidth());
    EXPECT_EQ(expected.getInterlace(), capture.getInterlace());
    EXPECT_EQ(expected.getDeviceName(), capture.getDeviceName());
    EXPECT_EQ(expected.getBufferNumber(), capture.getBufferNumber());
    EXPECT_EQ(expected.getReserve(), capture.getReserve());
    EXPECT_EQ(expected.getCaptureNum(), capture.getCaptureNum());
}

} // namespace

TEST(VideoCaptureConfigureXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(VideoCaptureConfigureXml().createXmlString(sample(11), text));
    EXPECT_TRUE(matchesGolden(text, "media/VideoCaptureConfigureXml.node.xml"));
}

TEST(VideoCaptureConfigureXml, ReadsNodes)
{
    CapturedOutput output;
    VideoCaptureConfigure read;
    ASSERT_TRUE(VideoCaptureConfigureXml().parseXmlString(golden("media/VideoCaptureConfigureXml.node.xml"), read));
    expectCapture(sample(11), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoCaptureConfigureXml, ResetsWhatANodeLacksAndPrintsALineForEach)
{
    CapturedOutput output;
    VideoCaptureConfigure read = sample(11);
    ASSERT_TRUE(VideoCaptureConfigureXml().parseXmlString("<VideoCaptureConfigure />", read));
    expectCapture(VideoCaptureConfigure(), read);
    EXPECT_EQ("VideoCaptureConfigureXml::parseDomainXmlNode get ResolutionId failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get Mode failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get CaptureId failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get VIPId failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get VideoWidth failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get VideoHeight failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get UserVideoHeight failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get UserVideoWidth failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get Interlace failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get DeviceName failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get BufferNumber failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get Reserve failed \n"
              "VideoCaptureConfigureXml::parseDomainXmlNode get CaptureNum failed \n",
              output.text());
}

TEST(VideoCaptureConfigureXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(VideoCaptureConfigureXml().createXmlString({sample(11), sample(31)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/VideoCaptureConfigureXml.list.xml"));
    ASSERT_TRUE(VideoCaptureConfigureXml().createXmlString(std::vector<VideoCaptureConfigure>(), text));
    EXPECT_EQ("<VideoCaptureConfigureList />\n", text);
}

TEST(VideoCaptureConfigureXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<VideoCaptureConfigure> list(1, sample(71));
    ASSERT_TRUE(VideoCaptureConfigureXml().parseXmlString(golden("media/VideoCaptureConfigureXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectCapture(sample(71), list[0]);
    expectCapture(sample(11), list[1]);
    expectCapture(sample(31), list[2]);
}

TEST(VideoCaptureConfigureXml, ReadsItemsOfItsNameOnly)
{
    CapturedOutput output;
    std::vector<VideoCaptureConfigure> list;
    ASSERT_TRUE(VideoCaptureConfigureXml().parseXmlString(
        "<VideoCaptureConfigureList>text<!-- --><Other Mode='8' /><VideoCaptureConfigure Mode='9' /><Other />"
        "</VideoCaptureConfigureList>",
        list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getMode());
}

TEST(VideoCaptureConfigureXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    VideoCaptureConfigure read = sample(11);
    std::vector<VideoCaptureConfigure> list(1, sample(11));
    EXPECT_FALSE(VideoCaptureConfigureXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(VideoCaptureConfigureXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(VideoCaptureConfigureXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(VideoCaptureConfigureXml().parseDomainXmlNode(empty, list));
    expectCapture(sample(11), read);
    EXPECT_EQ(1U, list.size());
}

TEST(VideoCaptureConfigureXml, RefusesTheRootOfTheOtherKind)
{
    VideoCaptureConfigure read;
    std::vector<VideoCaptureConfigure> list;
    EXPECT_FALSE(VideoCaptureConfigureXml().parseXmlString(golden("media/VideoCaptureConfigureXml.list.xml"), read));
    EXPECT_FALSE(VideoCaptureConfigureXml().parseXmlString(golden("media/VideoCaptureConfigureXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
