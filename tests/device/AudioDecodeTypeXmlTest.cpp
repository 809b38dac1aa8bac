#include "device/AudioDecodeTypeXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/support/Documents.h"

TEST(AudioDecodeTypeXml, Writes)
{
    AudioDecodeTypeXml codec;
    codec.setAudioDecodeType(sampleAudioDecodeType());
    EXPECT_TRUE(matchesGolden(written(codec), "device/AudioDecodeTypeXml.document.xml"));
}

TEST(AudioDecodeTypeXml, Reads)
{
    AudioDecodeTypeXml codec;
    ASSERT_TRUE(reads(codec, golden("device/AudioDecodeTypeXml.document.xml")));
    expectAudioDecodeType(sampleAudioDecodeType(), codec.getAudioDecodeType());
}

TEST(AudioDecodeTypeXml, LeavesWhatIsMissing)
{
    AudioDecodeTypeXml codec;
    codec.setAudioDecodeType(sampleAudioDecodeType());
    ASSERT_TRUE(reads(codec, "<AudioDecodeType />"));
    expectAudioDecodeType(sampleAudioDecodeType(), codec.getAudioDecodeType());
}
