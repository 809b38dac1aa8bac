#include "device/StreamEncodeAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(StreamEncodeAbilityXml, Writes)
{
    StreamEncodeAbilityXml codec;
    codec.setStreamEncodeAbility(sampleStreamEncodeAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/StreamEncodeAbilityXml.document.xml"));
}

TEST(StreamEncodeAbilityXml, Reads)
{
    StreamEncodeAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/StreamEncodeAbilityXml.document.xml")));
    expectStreamEncodeAbility(sampleStreamEncodeAbility(), codec.getStreamEncodeAbility());
}

TEST(StreamEncodeAbilityXml, LeavesWhatIsMissing)
{
    StreamEncodeAbilityXml codec;
    codec.setStreamEncodeAbility(sampleStreamEncodeAbility());
    ASSERT_TRUE(reads(codec, "<StreamEncodeAbility />"));
    expectStreamEncodeAbility(sampleStreamEncodeAbility(), codec.getStreamEncodeAbility());
}

TEST(StreamEncodeAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(StreamEncodeAbilityXml().createXmlString(sampleStreamEncodeAbility(), text));
    EXPECT_TRUE(matchesGolden(text, "device/StreamEncodeAbilityXml.node.xml"));
}

TEST(StreamEncodeAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    StreamEncodeAbility read;
    ASSERT_TRUE(StreamEncodeAbilityXml().parseXmlString(golden("device/StreamEncodeAbilityXml.node.xml"), read));
    expectStreamEncodeAbility(sampleStreamEncodeAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(StreamEncodeAbilityXml, PrintsALineForEveryMissingProperty)
{
    CapturedOutput output;
    StreamEncodeAbility read = sampleStreamEncodeAbility();
    ASSERT_TRUE(StreamEncodeAbilityXml().parseXmlString("<StreamEncodeAbility />", read));
    expectStreamEncodeAbility(StreamEncodeAbility(), read);
    EXPECT_EQ("StreamEncodeAbilityXml::parseDomainXmlNode get EncoderType failed \n", output.text());
}

TEST(StreamEncodeAbilityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    StreamEncodeAbility read = sampleStreamEncodeAbility();
    EXPECT_FALSE(StreamEncodeAbilityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(StreamEncodeAbilityXml().parseDomainXmlNode(empty, read));
    expectStreamEncodeAbility(sampleStreamEncodeAbility(), read);
}

TEST(StreamEncodeAbilityXml, AddsToItsList)
{
    StreamEncodeAbilityXml codec;
    codec.setStreamEncodeAbility(sampleStreamEncodeAbility());
    ASSERT_TRUE(reads(codec, "<StreamEncodeAbility EncoderType='9'><VideoResolutionList><Other />text"
                             "<VideoResolution VideoHeight='1' /><!-- --><Other VideoWidth='2' /></VideoResolutionList>"
                             "<EncoderType /></StreamEncodeAbility>"));
    StreamEncodeAbility expected = sampleStreamEncodeAbility();
    expected.getVideoResolutionList().push_back(resolution(1, 0, ""));
    expected.getVideoResolutionList().push_back(resolution(0, 2, ""));
    expectStreamEncodeAbility(expected, codec.getStreamEncodeAbility());
}

TEST(StreamEncodeAbilityXml, ReplacesItsListByItemsOfAnyNameInNodes)
{
    CapturedOutput output;
    StreamEncodeAbility read = sampleStreamEncodeAbility();
    ASSERT_TRUE(StreamEncodeAbilityXml().parseXmlString(
        "<StreamEncodeAbility EncoderType='9'><EncoderType value='8' /><VideoResolutionList>text<!-- -->"
        "<Other VideoHeight='1' VideoWidth='2' /></VideoResolutionList></StreamEncodeAbility>",
        read));
    StreamEncodeAbility expected;
    expected.setEncoderType(9);
    expected.getVideoResolutionList().push_back(resolution(1, 2, ""));
    expectStreamEncodeAbility(expected, read);
    EXPECT_EQ("VideoResolutionXml::parseDomainXmlNode get ResolutionName failed \n", output.text());
}
