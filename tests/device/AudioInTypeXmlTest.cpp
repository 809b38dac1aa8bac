#include "device/AudioInTypeXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(AudioInTypeXml, Writes)
{
    AudioInTypeXml codec;
    codec.setAudioInType(sampleAudioInType());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AudioInTypeXml.document.xml"));
}

TEST(AudioInTypeXml, Reads)
{
    AudioInTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AudioInTypeXml.document.xml")));
    expectAudioInType(sampleAudioInType(), codec.getAudioInType());
}

TEST(AudioInTypeXml, LeavesWhatIsMissing)
{
    AudioInTypeXml codec;
    codec.setAudioInType(sampleAudioInType());
    ASSERT_TRUE(reads(codec, "<AudioInType />"));
    expectAudioInType(sampleAudioInType(), codec.getAudioInType());
}
