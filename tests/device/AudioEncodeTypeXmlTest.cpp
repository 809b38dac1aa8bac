#include "device/AudioEncodeTypeXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(AudioEncodeTypeXml, Writes)
{
    AudioEncodeTypeXml codec;
    codec.setAudioEncodeType(sampleAudioEncodeType());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AudioEncodeTypeXml.document.xml"));
}

TEST(AudioEncodeTypeXml, Reads)
{
    AudioEncodeTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AudioEncodeTypeXml.document.xml")));
    expectAudioEncodeType(sampleAudioEncodeType(), codec.getAudioEncodeType());
}

TEST(AudioEncodeTypeXml, LeavesWhatIsMissing)
{
    AudioEncodeTypeXml codec;
    codec.setAudioEncodeType(sampleAudioEncodeType());
    ASSERT_TRUE(reads(codec, "<AudioEncodeType />"));
    expectAudioEncodeType(sampleAudioEncodeType(), codec.getAudioEncodeType());
}
