#include "device/AudioExAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(AudioExAbilityXml, Writes)
{
    AudioExAbilityXml codec;
    codec.setAudioExAbility(sampleAudioExAbility());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AudioExAbilityXml.document.xml"));
}

TEST(AudioExAbilityXml, Reads)
{
    AudioExAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AudioExAbilityXml.document.xml")));
    expectAudioExAbility(sampleAudioExAbility(), codec.getAudioExAbility());
}

TEST(AudioExAbilityXml, LeavesWhatIsMissing)
{
    AudioExAbilityXml codec;
    codec.setAudioExAbility(sampleAudioExAbility());
    ASSERT_TRUE(reads(codec, "<AudioExAbility />"));
    expectAudioExAbility(sampleAudioExAbility(), codec.getAudioExAbility());
}

TEST(AudioExAbilityXml, AddsToItsLists)
{
    AudioExAbilityXml codec;
    codec.setAudioExAbility(sampleAudioExAbility());
    ASSERT_TRUE(reads(codec, golden("device/AudioExAbilityXml.document.xml")));
    AudioExAbility expected = sampleAudioExAbility();
    expected.getAudioInTypeList().push_back(sampleAudioInType());
    expected.getAudioOutTypeList().push_back(sampleAudioOutType());
    expected.getAudioEncodeTypeList().push_back(sampleAudioEncodeType());
    expected.getAudioDecodeTypeList().push_back(sampleAudioDecodeType());
    expectAudioExAbility(expected, codec.getAudioExAbility());
}

TEST(AudioExAbilityXml, KeepsItsFlagsApart)
{
    for (const char* flag : {"InterPhoneFlag", "AudioInFlag", "AudioOutFlag"})
    {
        const std::string child = std::string("<") + flag + " Value=\"true\" />";
        AudioExAbilityXml reader;
        ASSERT_TRUE(reads(reader, "<AudioExAbility>" + child + "</AudioExAbility>"));
        const AudioExAbility& ability = reader.getAudioExAbility();
        EXPECT_EQ(flag == std::string("InterPhoneFlag"), ability.getInterPhoneFlag());
        EXPECT_EQ(flag == std::string("AudioInFlag"), ability.getAudioInFlag());
        EXPECT_EQ(flag == std::string("AudioOutFlag"), ability.getAudioOutFlag());

        AudioExAbilityXml writer;
        writer.setAudioExAbility(ability);
        EXPECT_NE(std::string::npos, written(writer).find(child));
    }
}

TEST(AudioExAbilityXml, ReadsItsListsInAnyOrderAndPassesOverWhatIsNoElement)
{
    AudioExAbilityXml codec;
    ASSERT_TRUE(reads(codec,
                      "<AudioExAbility><AudioDecodeTypeList>text<!-- --><AudioDecodeType AudioDecodeTypeId='1' />"
                      "<!-- -->text<Other AudioDecodeTypeId='2' /></AudioDecodeTypeList><AudioInTypeList />"
                      "</AudioExAbility>"));
    const std::vector<AudioDecodeType>& types = codec.getAudioExAbility().getAudioDecodeTypeList();
    ASSERT_EQ(2U, types.size());
    EXPECT_EQ(1, types[0].getAudioDecodeTypeId());
    EXPECT_EQ(2, types[1].getAudioDecodeTypeId());
    EXPECT_TRUE(codec.getAudioExAbility().getAudioInTypeList().empty());
}
