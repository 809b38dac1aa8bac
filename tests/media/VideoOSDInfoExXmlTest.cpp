#include "media/VideoOSDInfoExXml.h"

#include "tests/media/OverlaySample.h"
#include "tests/support/Documents.h"

TEST(VideoOSDInfoExXml, Writes)
{
    VideoOSDInfoExXml codec;
    codec.setVideoOSDInfoExList(sampleVideos());
    EXPECT_TRUE(matchesGolden(written(codec), "media/VideoOSDInfoExXml.document.xml"));
}

TEST(VideoOSDInfoExXml, Reads)
{
    VideoOSDInfoExXml codec;
    ASSERT_TRUE(reads(codec, golden("media/VideoOSDInfoExXml.document.xml")));
    expectVideos(sampleVideos(), codec.getVideoOSDInfoExList());
}

TEST(VideoOSDInfoExXml, ReadsBehindTheItemsThatAreThere)
{
    VideoOSDInfoExXml codec;
    codec.setVideoOSDInfoExList(sampleVideos());
    ASSERT_TRUE(reads(codec, "<VideoOSDInfoExList><VideoOSDInfoEx CameraId='9' /></VideoOSDInfoExList>"));
    ASSERT_EQ(3U, codec.getVideoOSDInfoExList().size());
    expectVideo(sampleVideos()[0], codec.getVideoOSDInfoExList()[0]);
    EXPECT_EQ(9, codec.getVideoOSDInfoExList()[2].getCameraId());
}

TEST(VideoOSDInfoExXml, WalksByElementsOfAnyName)
{
    const std::string text = "<VideoOSDInfoExList><!--VideoOSDInfoEx-->text"
                             "<VideoOSDInfoEx><OSDInfoList><!--OSDInfo-->"
                             "<OSDInfo Info='1' />text<Other Info='2' /></OSDInfoList></VideoOSDInfoEx>"
                             "<!-- --><Other CameraId='2'><OSDInfoList><!-- --></OSDInfoList></Other>"
                             "</VideoOSDInfoExList>";
    std::vector<VideoOSDInfoEx> expected(2);
    expected[0].setOSDInfoList(std::vector<OSDInfoEx>(2));
    expected[0].getOSDInfoList()[0].setInfo("1");
    expected[0].getOSDInfoList()[1].setInfo("2");
    expected[1].setCameraId(2);

    VideoOSDInfoExXml codec;
    ASSERT_TRUE(reads(codec, text));
    expectVideos(expected, codec.getVideoOSDInfoExList());

    std::vector<VideoOSDInfoEx> list;
    ASSERT_TRUE(VideoOSDInfoExXml().parseXmlString(text, list));
    expectVideos(expected, list);
}

TEST(VideoOSDInfoExXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(VideoOSDInfoExXml().createXmlString(sampleVideos(), text));
    EXPECT_TRUE(matchesGolden(text, "media/VideoOSDInfoExXml.list.xml"));
    ASSERT_TRUE(VideoOSDInfoExXml().createXmlString(std::vector<VideoOSDInfoEx>(), text));
    EXPECT_EQ("<VideoOSDInfoExList />\n", text);
}

TEST(VideoOSDInfoExXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<VideoOSDInfoEx> list(1, sampleVideos()[1]);
    ASSERT_TRUE(VideoOSDInfoExXml().parseXmlString(golden("media/VideoOSDInfoExXml.list.xml"), list));
    expectVideos({sampleVideos()[1], sampleVideos()[0], sampleVideos()[1]}, list);
}

TEST(VideoOSDInfoExXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    std::vector<VideoOSDInfoEx> list;
    ASSERT_TRUE(
        VideoOSDInfoExXml().parseXmlString("<VideoOSDInfoExList><VideoOSDInfoEx /></VideoOSDInfoExList>", list));
    expectVideos(std::vector<VideoOSDInfoEx>(1), list);
    EXPECT_EQ("", output.text());
}

TEST(VideoOSDInfoExXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<VideoOSDInfoEx> list(1, sampleVideos()[0]);
    EXPECT_FALSE(VideoOSDInfoExXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(VideoOSDInfoExXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
