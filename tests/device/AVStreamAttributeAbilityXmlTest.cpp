#include "device/AVStreamAttributeAbilityXml.h"

#include "tests/device/VideoAbilitySample.h"
#include "tests/support/Documents.h"

TEST(AVStreamAttributeAbilityXml, Writes)
{
    AVStreamAttributeAbilityXml codec;
    codec.setAVStreamAttributeAbility(sampleAVStreamAttributeAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AVStreamAttributeAbilityXml.document.xml"));
}

TEST(AVStreamAttributeAbilityXml, Reads)
{
    AVStreamAttributeAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AVStreamAttributeAbilityXml.document.xml")));
    expectAVStreamAttributeAbility(sampleAVStreamAttributeAbility(), codec.getAVStreamAttributeAbility());
}

TEST(AVStreamAttributeAbilityXml, LeavesWhatIsMissing)
{
    AVStreamAttributeAbilityXml codec;
    codec.setAVStreamAttributeAbility(sampleAVStreamAttributeAbility());
    ASSERT_TRUE(reads(codec, "<AVStreamAttributeAbility />"));
    expectAVStreamAttributeAbility(sampleAVStreamAttributeAbility(), codec.getAVStreamAttributeAbility());
}

TEST(AVStreamAttributeAbilityXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(AVStreamAttributeAbilityXml().createXmlString(sampleAVStreamAttributeAbility(), text));
    EXPECT_TRUE(matchesGolden(text, "device/AVStreamAttributeAbilityXml.node.xml"));
}

TEST(AVStreamAttributeAbilityXml, ReadsNodes)
{
    CapturedOutput output;
    AVStreamAttributeAbility read;
    ASSERT_TRUE(
        AVStreamAttributeAbilityXml().parseXmlString(golden("device/AVStreamAttributeAbilityXml.node.xml"), read));
    expectAVStreamAttributeAbility(sampleAVStreamAttributeAbility(), read);
    EXPECT_EQ("", output.text());
}

TEST(AVStreamAttributeAbilityXml, PrintsALineForEveryMissingProperty)
{
    CapturedOutput output;
    AVStreamAttributeAbility read = sampleAVStreamAttributeAbility();
    ASSERT_TRUE(AVStreamAttributeAbilityXml().parseXmlString("<AVStreamAttributeAbility />", read));
    expectAVStreamAttributeAbility(AVStreamAttributeAbility(), read);
    EXPECT_EQ("AVStreamAttributeAbilityXml::parseDomainXmlNode get StreamMode failed \n", output.text());
}

TEST(AVStreamAttributeAbilityXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    AVStreamAttributeAbility read = sampleAVStreamAttributeAbility();
    EXPECT_FALSE(AVStreamAttributeAbilityXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(AVStreamAttributeAbilityXml().parseDomainXmlNode(empty, read));
    expectAVStreamAttributeAbility(sampleAVStreamAttributeAbility(), read);
}

TEST(AVStreamAttributeAbilityXml, AddsToItsLists)
{
    AVStreamAttributeAbilityXml codec;
    codec.setAVStreamAttributeAbility(sampleAVStreamAttributeAbility());
    ASSERT_TRUE(reads(codec, "<AVStreamAttributeAbility><StreamMode /><FrameSkipIntervalList><Other value='1' />text"
                             "<FrameSkipInterval value='6' /><!-- --><Other /></FrameSkipIntervalList><SVCStreamIDList>"
                             "<SVCStreamID SVCStreamID='9' /></SVCStreamIDList></AVStreamAttributeAbility>"));
    AVStreamAttributeAbility expected;
    expected.setStreamMode(2);
    expected.setFrameSkipIntervalList({3, 4, 6, 0});
    expected.setSVCStreamIDList({5, 0});
    expectAVStreamAttributeAbility(expected, codec.getAVStreamAttributeAbility());
}

TEST(AVStreamAttributeAbilityXml, ReplacesItsListsByItemsOfAnyNameInNodes)
{
    AVStreamAttributeAbility read = sampleAVStreamAttributeAbility();
    ASSERT_TRUE(AVStreamAttributeAbilityXml().parseXmlString(
        "<AVStreamAttributeAbility StreamMode='9'><FrameSkipIntervalList><Other FrameSkipInterval='6' />text<!-- -->"
        "<FrameSkipInterval value='7' /></FrameSkipIntervalList><SVCStreamIDList /></AVStreamAttributeAbility>",
        read));
    AVStreamAttributeAbility expected;
    expected.setStreamMode(9);
    expected.setFrameSkipIntervalList({6, 0});
    expectAVStreamAttributeAbility(expected, read);
}

TEST(AVStreamAttributeAbilityXml, KnowsTheValuesOfTheOtherFormNot)
{
    AVStreamAttributeAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AVStreamAttributeAbilityXml.node.xml")));
    AVStreamAttributeAbility expected;
    expected.setFrameSkipIntervalList({0, 0});
    expected.setSVCStreamIDList({0});
    expectAVStreamAttributeAbility(expected, codec.getAVStreamAttributeAbility());

    CapturedOutput output;
    AVStreamAttributeAbility read;
    ASSERT_TRUE(
        AVStreamAttributeAbilityXml().parseXmlString(golden("device/AVStreamAttributeAbilityXml.document.xml"), read));
    expectAVStreamAttributeAbility(expected, read);
}
