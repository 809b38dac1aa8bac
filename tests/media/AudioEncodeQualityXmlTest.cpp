#include "media/AudioEncodeQualityXml.h"

#include "tests/media/StreamSamples.h"
#include "tests/support/Documents.h"

#include <limits>

TEST(AudioEncodeQualityXml, Writes)
{
    AudioEncodeQualityXml codec;
    codec.setAudioEncodeQuality(sampleAudioQuality(11));
    EXPECT_TRUE(matchesGolden(written(codec), "media/AudioEncodeQualityXml.document.xml"));
}

TEST(AudioEncodeQualityXml, Reads)
{
    AudioEncodeQualityXml codec;
    ASSERT_TRUE(reads(codec, golden("media/AudioEncodeQualityXml.document.xml")));
    expectAudioQuality(sampleAudioQuality(11), codec.getAudioEncodeQuality());
}

TEST(AudioEncodeQualityXml, ResetsWhatIsMissing)
{
    CapturedOutput output;
    AudioEncodeQualityXml codec;
    codec.setAudioEncodeQuality(sampleAudioQuality(11));
    ASSERT_TRUE(reads(codec, "<AudioEncodeQuality />"));
    expectAudioQuality(AudioEncodeQuality(), codec.getAudioEncodeQuality());
    EXPECT_EQ("", output.text());
}

TEST(AudioEncodeQualityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AudioEncodeQualityXml().createXmlString(sampleAudioQuality(11), text));
    EXPECT_TRUE(matchesGolden(text, "media/AudioEncodeQualityXml.node.xml"));
}

TEST(AudioEncodeQualityXml, ReadsNodes)
{
    CapturedOutput output;
    AudioEncodeQuality read;
    ASSERT_TRUE(AudioEncodeQualityXml().parseXmlString(golden("media/AudioEncodeQualityXml.node.xml"), read));
    expectAudioQuality(sampleAudioQuality(11), read);
    EXPECT_EQ("", output.text());
}

TEST(AudioEncodeQualityXml, ResetsWhatANodeLacksAndPrintsALineForEach)
{
    CapturedOutput output;
    AudioEncodeQuality read = sampleAudioQuality(11);
    ASSERT_TRUE(AudioEncodeQualityXml().parseXmlString("<AudioEncodeQuality />", read));
    expectAudioQuality(AudioEncodeQuality(), read);
    EXPECT_EQ("AudioEncodeQualityXml::parseDomainXmlNode get FormatTag failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get Channels failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get SamplesPerSec failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get AvgBytesPerSec failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get BlockAlign failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get BitsPerSample failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get CBSize failed \n"
              "AudioEncodeQualityXml::parseDomainXmlNode get EncodeType failed \n",
              output.text());
}

TEST(AudioEncodeQualityXml, CarriesTheHighestRatesWhole)
{
    AudioEncodeQuality quality;
    quality.setSamplesPerSec(4294967295UL);
    quality.setAvgBytesPerSec(4294967294UL);
    AudioEncodeQualityXml codec;
    codec.setAudioEncodeQuality(quality);
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find(" SamplesPerSec=\"4294967295\" AvgBytesPerSec=\"4294967294\""));

    AudioEncodeQualityXml reader;
    ASSERT_TRUE(reads(reader, text));
    expectAudioQuality(quality, reader.getAudioEncodeQuality());

    std::string nodeText;
    ASSERT_TRUE(AudioEncodeQualityXml().createXmlString(quality, nodeText));
    EXPECT_EQ(text, nodeText);
    AudioEncodeQuality read;
    ASSERT_TRUE(AudioEncodeQualityXml().parseXmlString(text, read));
    expectAudioQuality(quality, read);
}

TEST(AudioEncodeQualityXml, ReadsRatesSignedInTheDocumentFormOnly)
{
    const std::string text =
        "<AudioEncodeQuality SamplesPerSec='18446744073709551615' AvgBytesPerSec='9223372036854775808' />";
    const unsigned long largest = static_cast<unsigned long>(std::numeric_limits<long long>::max());
    AudioEncodeQualityXml codec;
    ASSERT_TRUE(reads(codec, text));
    EXPECT_EQ(largest, codec.getAudioEncodeQuality().getSamplesPerSec());
    EXPECT_EQ(largest, codec.getAudioEncodeQuality().getAvgBytesPerSec());

    CapturedOutput output;
    AudioEncodeQuality read;
    ASSERT_TRUE(AudioEncodeQualityXml().parseXmlString(text, read));
    EXPECT_EQ(static_cast<unsigned long>(18446744073709551615ULL), read.getSamplesPerSec());
    EXPECT_EQ(static_cast<unsigned long>(9223372036854775808ULL), read.getAvgBytesPerSec());
}

TEST(AudioEncodeQualityXml, NarrowsShortNumbers)
{
    AudioEncodeQualityXml codec;
    ASSERT_TRUE(reads(codec, "<AudioEncodeQuality Channels='65538' CBSize='x' />"));
    EXPECT_EQ(2, codec.getAudioEncodeQuality().getChannels());
    EXPECT_EQ(0, codec.getAudioEncodeQuality().getCBSize());

    CapturedOutput output;
    AudioEncodeQuality read;
    ASSERT_TRUE(AudioEncodeQualityXml().parseXmlString("<AudioEncodeQuality Channels='65538' />", read));
    EXPECT_EQ(2, read.getChannels());
}

TEST(AudioEncodeQualityXml, RefusesAnEmptyPointer)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> empty;
    AudioEncodeQuality read = sampleAudioQuality(11);
    EXPECT_FALSE(AudioEncodeQualityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AudioEncodeQualityXml().parseDomainXmlNode(empty, read));
    expectAudioQuality(sampleAudioQuality(11), read);
    EXPECT_EQ("", output.text());
}

TEST(AudioEncodeQualityXml, LeavesTheRecordOfAFailedRead)
{
    AudioEncodeQuality read = sampleAudioQuality(11);
    EXPECT_FALSE(AudioEncodeQualityXml().parseXmlString("<AudioEncodeQuality", read));
    EXPECT_FALSE(AudioEncodeQualityXml().parseXmlString("<Other />", read));
    expectAudioQuality(sampleAudioQuality(11), read);
}
