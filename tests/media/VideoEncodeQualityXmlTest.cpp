#include "media/VideoEncodeQualityXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

TEST(VideoEncodeQualityXml, Writes)
{
    VideoEncodeQualityXml codec;
    codec.setVideoEncodeQuality(sampleVideoQuality(11));
    EXPECT_TRUE(matchesGolden(written(codec), "media/VideoEncodeQualityXml.document.xml"));
}

TEST(VideoEncodeQualityXml, Reads)
{
    VideoEncodeQualityXml codec;
    ASSERT_TRUE(reads(codec, golden("media/VideoEncodeQualityXml.document.xml")));
    expectVideoQuality(sampleVideoQuality(11), codec.getVideoEncodeQuality());
}

TEST(VideoEncodeQualityXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    VideoEncodeQualityXml codec;
    codec.setVideoEncodeQuality(sampleVideoQuality(11));
    ASSERT_TRUE(reads(codec, "<VideoEncodeQuality />"));
    expectVideoQuality(VideoEncodeQuality(), codec.getVideoEncodeQuality());
    EXPECT_EQ("", output.text());
}

TEST(VideoEncodeQualityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(VideoEncodeQualityXml().createXmlString(sampleVideoQuality(11), text));
    EXPECT_TRUE(matchesGolden(text, "media/VideoEncodeQualityXml.node.xml"));
}

TEST(VideoEncodeQualityXml, ReadsNodes)
{
    CapturedOutput output;
    VideoEncodeQuality read;
    ASSERT_TRUE(VideoEncodeQualityXml().parseXmlString(golden("media/VideoEncodeQualityXml.node.xml"), read));
    expectVideoQuality(sampleVideoQuality(11), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoEncodeQualityXml, ResetsWhatANodeLacksAndPrintsALineForEach)
{
    CapturedOutput output;
    VideoEncodeQuality read = sampleVideoQuality(11);
    ASSERT_TRUE(VideoEncodeQualityXml().parseXmlString("<VideoEncodeQuality />", read));
    expectVideoQuality(VideoEncodeQuality(), read);
    EXPECT_EQ("VideoEncodeQualityXml::parseDomainXmlNode get VideoSystem failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get FrameRate failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get ImageFormatId failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get BitRateType failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get BitRate failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get Quant failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get IFrameInterval failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get EncoderType failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get Quality failed \n"
              "VideoEncodeQualityXml::parseDomainXmlNode get CodingFlag failed \n",
              output.text());
}

TEST(VideoEncodeQualityXml, KeepsTheFractionOfAFrameRate)
{
    VideoEncodeQualityXml codec;
    ASSERT_TRUE(reads(codec, "<VideoEncodeQuality FrameRate='25.5' />"));
    EXPECT_EQ(25.5, codec.getVideoEncodeQuality().getFrameRate());

    CapturedOutput output;
    VideoEncodeQuality read;
    ASSERT_TRUE(VideoEncodeQualityXml().parseXmlString("<VideoEncodeQuality FrameRate='25.5' />", read));
    EXPECT_EQ(25.5, read.getFrameRate());
    EXPECT_EQ(std::string::npos, output.text().find("FrameRate"));
}

TEST(VideoEncodeQualityXml, TakesAFrameRateThatIsNoNumberForZero)
{
    VideoEncodeQualityXml codec;
    codec.getVideoEncodeQuality().setFrameRate(25);
    ASSERT_TRUE(reads(codec, "<VideoEncodeQuality FrameRate='full' />"));
    EXPECT_EQ(0, codec.getVideoEncodeQuality().getFrameRate());

    CapturedOutput output;
    VideoEncodeQuality read = sampleVideoQuality(11);
    ASSERT_TRUE(VideoEncodeQualityXml().parseXmlString("<VideoEncodeQuality FrameRate='full' />", read));
    EXPECT_EQ(0, read.getFrameRate());
    EXPECT_EQ(std::string::npos, output.text().find("FrameRate"));
}

TEST(VideoEncodeQualityXml, RefusesAnEmptyPointer)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> empty;
    VideoEncodeQuality read = sampleVideoQuality(11);
    EXPECT_FALSE(VideoEncodeQualityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(VideoEncodeQualityXml().parseDomainXmlNode(empty, read));
    expectVideoQuality(sampleVideoQuality(11), read);
    EXPECT_EQ("", output.text());
}

TEST(VideoEncodeQualityXml, LeavesTheRecordOfAFailedRead)
{
    VideoEncodeQuality read = sampleVideoQuality(11);
    EXPECT_FALSE(VideoEncodeQualityXml().parseXmlString("<VideoEncodeQuality", read));
    EXPECT_FALSE(VideoEncodeQualityXml().parseXmlString("<Other />", read));
    expectVideoQuality(sampleVideoQuality(11), read);
}
