#include "device/VideoSystemXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(VideoSystemXml, Writes)
{
    VideoSystemXml codec;
    codec.setVideoSystem(sampleVideoSystem());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoSystemXml.document.xml"));
}

TEST(VideoSystemXml, Reads)
{
    VideoSystemXml codec;
    ASSERT_TRUE(reads(codec, golden("device/VideoSystemXml.document.xml")));
    expectVideoSystem(sampleVideoSystem(), codec.getVideoSystem());
}

TEST(VideoSystemXml, ResetsWhatIsMissing)
{
    VideoSystemXml codec;
    codec.setVideoSystem(sampleVideoSystem());
    ASSERT_TRUE(reads(codec, "<VideoSystem />"));
    expectVideoSystem(VideoSystem(), codec.getVideoSystem());
}

TEST(VideoSystemXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(VideoSystemXml().createXmlString(sampleVideoSystem(), text));
    EXPECT_TRUE(matchesGolden(text, "device/VideoSystemXml.node.xml"));
}

TEST(VideoSystemXml, ReadsNodes)
{
    CapturedOutput output;
    VideoSystem read;
    ASSERT_TRUE(VideoSystemXml().parseXmlString(golden("device/VideoSystemXml.node.xml"), read));
    expectVideoSystem(sampleVideoSystem(), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoSystemXml, PrintsALineForEveryMissingProperty)
{
    CapturedOutput output;
    VideoSystem read = sampleVideoSystem();
    ASSERT_TRUE(VideoSystemXml().parseXmlString("<VideoSystem />", read));
    expectVideoSystem(VideoSystem(), read);
    EXPECT_EQ("VideoSystemXml::parseDomainXmlNode get VideoSystemId failed \n"
              "VideoSystemXml::parseDomainXmlNode get VideoSystemName failed \n",
              output.text());
}

TEST(VideoSystemXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(VideoSystemXml().createXmlString({sampleVideoSystem(), VideoSystem()}, text));
    EXPECT_TRUE(matchesGolden(text, "device/VideoSystemXml.list.xml"));
    ASSERT_TRUE(VideoSystemXml().createXmlString(std::vector<VideoSystem>(), text));
    EXPECT_EQ("<VideoSystemList />\n", text);
}

TEST(VideoSystemXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<VideoSystem> list(1);
    ASSERT_TRUE(VideoSystemXml().parseXmlString(golden("device/VideoSystemXml.list.xml"), list));
    expectList({VideoSystem(), sampleVideoSystem(), VideoSystem()}, list, expectVideoSystem);
}

TEST(VideoSystemXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    VideoSystem read = sampleVideoSystem();
    std::vector<VideoSystem> list(1);
    EXPECT_FALSE(VideoSystemXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(VideoSystemXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(VideoSystemXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(VideoSystemXml().parseDomainXmlNode(empty, list));
    expectVideoSystem(sampleVideoSystem(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(VideoSystemXml, RefusesTheRootOfTheOtherKind)
{
    VideoSystem read;
    std::vector<VideoSystem> list;
    EXPECT_FALSE(VideoSystemXml().parseXmlString(golden("device/VideoSystemXml.list.xml"), read));
    EXPECT_FALSE(VideoSystemXml().parseXmlString(golden("device/VideoSystemXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
