#include "media/VideoOSDFontXml.h"

#include "tests/support/Documents.h"

#include <array>

namespace
{

VideoOSDFont font(int camera, int stream, bool inverse, int id, std::array<int, 8> colors)
{
    VideoOSDFont font;
    font.setCameraID(camera);
    font.setStreamID(stream);
    font.setInverseFlag(inverse);
    font.setFontID(id);
    font.setFontColorRGB(colors[0], colors[1], colors[2], colors[3], colors[4], colors[5], colors[6], colors[7]);
    return font;
}

VideoOSDFont sample()
{
    return font(11, 12, true, 13, {1, 2, 3, 4, 5, 6, 7, 8});
}

std::array<int, 8> colorsOf(const VideoOSDFont& font)
{
    std::array<int, 8> colors = {};
    font.getFontColorRGB(colors[0], colors[1], colors[2], colors[3], colors[4], colors[5], colors[6], colors[7]);
    return colors;
}

void expectFont(const VideoOSDFont& expected, const VideoOSDFont& font)
{
    EXPECT_EQ(expected.getCameraID(), font.getCameraID());
    EXPECT_EQ(expected.getStreamID(), font.getStreamID());
    EXPECT_EQ(expected.getInverseFlag(), font.getInverseFlag());
    EXPECT_EQ(expected.getFontID(), font.getFontID());
    EXPECT_EQ(colorsOf(expected), colorsOf(font));
}

bool readsNodes(const std::string& text, std::vector<VideoOSDFont>& fonts)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, node) && VideoOSDFontXml().parseDomainXmlNode(node, fonts);
}

} // namespace

TEST(VideoOSDFontXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(VideoOSDFontXml().createXmlString({sample(), VideoOSDFont()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/VideoOSDFontXml.list.xml"));
    ASSERT_TRUE(VideoOSDFontXml().createXmlString(std::vector<VideoOSDFont>(), text));
    EXPECT_EQ("<OSDFontList />\n", text);
}

TEST(VideoOSDFontXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<VideoOSDFont> list(1, sample());
    ASSERT_TRUE(VideoOSDFontXml().parseXmlString(golden("media/VideoOSDFontXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectFont(sample(), list[0]);
    expectFont(sample(), list[1]);
    expectFont(VideoOSDFont(), list[2]);
}

TEST(VideoOSDFontXml, ReadsNodesBehindWhatTheListHolds)
{
    std::vector<VideoOSDFont> list(1, sample());
    ASSERT_TRUE(readsNodes(golden("media/VideoOSDFontXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectFont(sample(), list[1]);
    expectFont(VideoOSDFont(), list[2]);
}

TEST(VideoOSDFontXml, TakesTheFirstCameraAndStreamForATextWithoutThem)
{
    CapturedOutput output;
    std::vector<VideoOSDFont> list;
    ASSERT_TRUE(VideoOSDFontXml().parseXmlString("<OSDFontList><OSDFont /></OSDFontList>", list));
    ASSERT_EQ(1U, list.size());
    expectFont(font(1, 1, true, 0, {0, 0, 0, 100, 0, 0, 0, 100}), list[0]);
    EXPECT_EQ("VideoOSDFontXml::parseXmlString node = CONST_ATTR_CAMERAID failed \n"
              "VideoOSDFontXml::parseXmlString node = CONST_ATTR_STREAMID failed \n",
              output.text());
}

TEST(VideoOSDFontXml, StopsAtANodeWithoutANumber)
{
    CapturedOutput output;
    const std::string good = "<OSDFont CameraID='1' StreamID='2' FontID='3' Alpha1='4' />";
    for (const std::string bad : {"<OSDFont StreamID='2' FontID='3' />", "<OSDFont CameraID='1' FontID='3' />",
                                  "<OSDFont CameraID='1' StreamID='2' />"})
    {
        std::vector<VideoOSDFont> list(1, sample());
        EXPECT_FALSE(readsNodes("<OSDFontList>" + good + bad + good + "</OSDFontList>", list)) << bad;
        ASSERT_EQ(2U, list.size());
        expectFont(sample(), list[0]);
        expectFont(font(1, 2, true, 3, {0, 0, 0, 100, 0, 0, 0, 4}), list[1]);
    }
    EXPECT_EQ("", output.text());
}

TEST(VideoOSDFontXml, ReadsItemsOfAnyName)
{
    const std::string text =
        "<OSDFontList>text<!--OSDFont--><Other CameraID='1' StreamID='2' FontID='3' /></OSDFontList>";
    std::vector<VideoOSDFont> list;
    ASSERT_TRUE(VideoOSDFontXml().parseXmlString(text, list));
    ASSERT_TRUE(readsNodes(text, list));
    ASSERT_EQ(2U, list.size());
    EXPECT_EQ(3, list[0].getFontID());
    EXPECT_EQ(3, list[1].getFontID());
}

TEST(VideoOSDFontXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<VideoOSDFont> list(1, sample());
    EXPECT_FALSE(VideoOSDFontXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(VideoOSDFontXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
