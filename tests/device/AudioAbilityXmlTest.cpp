#include "device/AudioAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(AudioAbilityXml, Writes)
{
    AudioAbilityXml codec;
    codec.setAudioAbility(sampleAudioAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AudioAbilityXml.document.xml"));
}

TEST(AudioAbilityXml, Reads)
{
    AudioAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AudioAbilityXml.document.xml")));
    expectAudioAbility(sampleAudioAbility(), codec.getAudioAbility());
}

TEST(AudioAbilityXml, LeavesWhatIsMissing)
{
    AudioAbilityXml codec;
    codec.setAudioAbility(sampleAudioAbility());
    ASSERT_TRUE(reads(codec, "<AudioAbility />"));
    expectAudioAbility(sampleAudioAbility(), codec.getAudioAbility());
}

TEST(AudioAbilityXml, AddsToItsLists)
{
    AudioAbilityXml codec;
    codec.setAudioAbility(sampleAudioAbility());
    ASSERT_TRUE(reads(codec, golden("device/AudioAbilityXml.document.xml")));
    AudioAbility expected = sampleAudioAbility();
    expected.setAudioEncodeTypeList({1, 2, 1, 2});
    expected.setAudioDecodeTypeList({3, 3});
    expected.setAudioInTypeList({4, 5, 4, 5});
    expectAudioAbility(expected, codec.getAudioAbility());
}

TEST(AudioAbilityXml, LeavesAFlagWithoutAValue)
{
    AudioAbilityXml codec;
    codec.setAudioAbility(sampleAudioAbility());
    ASSERT_TRUE(reads(codec, "<AudioAbility><InterPhoneFlag /><InterPhoneFlag Value='false' /></AudioAbility>"));
    EXPECT_TRUE(codec.getAudioAbility().getInterPhoneFlag());
}

TEST(AudioAbilityXml, PassesOverItemsWithoutANumber)
{
    AudioAbilityXml codec;
    ASSERT_TRUE(reads(codec, "<AudioAbility><AudioEncodeTypeList>text<Other Value='1' /><AudioEncodeType /><!-- -->"
                             "<AudioEncodeType Value='x' /><AudioEncodeType Value='6' /></AudioEncodeTypeList>"
                             "<AudioDecodeTypeList><AudioDecodeType Value='' /><AudioDecodeType Value='7x' />"
                             "</AudioDecodeTypeList><AudioInTypeList><AudioEncodeType Value='8' /></AudioInTypeList>"
                             "</AudioAbility>"));
    EXPECT_EQ(std::vector<int>({6}), codec.getAudioAbility().getAudioEncodeTypeList());
    EXPECT_EQ(std::vector<int>({7}), codec.getAudioAbility().getAudioDecodeTypeList());
    EXPECT_EQ(std::vector<int>(), codec.getAudioAbility().getAudioInTypeList());
}
