#include "device/VideoResolutionXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(VideoResolutionXml, Writes)
{
    VideoResolutionXml codec;
    codec.setVideoResolution(sampleVideoResolution());
    EXPECT_TRUE(matchesGolden(written(codec), "device/VideoResolutionXml.document.xml"));
}

TEST(VideoResolutionXml, Reads)
{
    VideoResolutionXml codec;
    ASSERT_TRUE(reads(codec, golden("device/VideoResolutionXml.document.xml")));
    expectVideoResolution(sampleVideoResolution(), codec.getVideoResolution());
}

TEST(VideoResolutionXml, LeavesWhatIsMissing)
{
    VideoResolutionXml codec;
    codec.setVideoResolution(sampleVideoResolution());
    ASSERT_TRUE(reads(codec, "<VideoResolution />"));
    expectVideoResolution(sampleVideoResolution(), codec.getVideoResolution());
}

TEST(VideoResolutionXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(VideoResolutionXml().createXmlString(sampleVideoResolution(), text));
    EXPECT_TRUE(matchesGolden(text, "device/VideoResolutionXml.node.xml"));
}

TEST(VideoResolutionXml, ReadsNodes)
{
    CapturedOutput output;
    VideoResolution read;
    ASSERT_TRUE(VideoResolutionXml().parseXmlString(golden("device/VideoResolutionXml.node.xml"), read));
    expectVideoResolution(sampleVideoResolution(), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoResolutionXml, PrintsALineForEveryMissingProperty)
{
    CapturedOutput output;
    VideoResolution read = sampleVideoResolution();
    ASSERT_TRUE(VideoResolutionXml().parseXmlString("<VideoResolution />", read));
    expectVideoResolution(VideoResolution(), read);
    EXPECT_EQ("VideoResolutionXml::parseDomainXmlNode get VideoHeight failed \n"
              "VideoResolutionXml::parseDomainXmlNode get VideoWidth failed \n"
              "VideoResolutionXml::parseDomainXmlNode get ResolutionName failed \n",
              output.text());
}

TEST(VideoResolutionXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    VideoResolution read = sampleVideoResolution();
    EXPECT_FALSE(VideoResolutionXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(VideoResolutionXml().parseDomainXmlNode(empty, read));
    expectVideoResolution(sampleVideoResolution(), read);
}
