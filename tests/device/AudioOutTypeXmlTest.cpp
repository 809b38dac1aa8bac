#include "device/AudioOutTypeXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(AudioOutTypeXml, Writes)
{
    AudioOutTypeXml codec;
    codec.setAudioOutType(sampleAudioOutType());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AudioOutTypeXml.document.xml"));
}

TEST(AudioOutTypeXml, Reads)
{
    AudioOutTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AudioOutTypeXml.document.xml")));
    expectAudioOutType(sampleAudioOutType(), codec.getAudioOutType());
}

TEST(AudioOutTypeXml, LeavesWhatIsMissing)
{
    AudioOutTypeXml codec;
    codec.setAudioOutType(sampleAudioOutType());
    ASSERT_TRUE(reads(codec, "<AudioOutType />"));
    expectAudioOutType(sampleAudioOutType(), codec.getAudioOutType());
}
