#include "commands/AudioInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

AudioInfo sample(int first)
{
    AudioInfo info;
    info.setFormatTag(static_cast<std::uint16_t>(first));
    info.setChannels(static_cast<std::uint16_t>(first + 1));
    info.setSamplesPerSec(static_cast<std::uint32_t>(first + 2));
    info.setAvgBytesPerSec(static_cast<std::uint32_t>(first + 3));
    info.setBlockAlign(static_cast<std::uint16_t>(first + 4));
    info.setBitsPerSample(static_cast<std::uint16_t>(first + 5));
    info.setCBSize(static_cast<std::uint16_t>(first + 6));
    return info;
}

void expectInfo(const AudioInfo& expected, const AudioInfo& info)
{
    EXPECT_EQ(expected.getFormatTag(), info.getFormatTag());
    EXPECT_EQ(expected.getChannels(), info.getChannels());
    EXPECT_EQ(expected.getSamplesPerSec(), info.getSamplesPerSec());
    EXPECT_EQ(expected.getAvgBytesPerSec(), info.getAvgBytesPerSec());
    EXPECT_EQ(expected.getBlockAligns(), info.getBlockAligns());
    EXPECT_EQ(expected.getBitsPerSample(), info.getBitsPerSample());
    EXPECT_EQ(expected.getCBSize(), info.getCBSize());
}

} // namespace

TEST(AudioInfoXml, Writes)
{
    AudioInfoXml codec;
    codec.setAudioInfo(sample(11));
    EXPECT_TRUE(matchesGolden(written(codec), "commands/AudioInfoXml.document.xml"));
}

TEST(AudioInfoXml, Reads)
{
    AudioInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("commands/AudioInfoXml.document.xml")));
    expectInfo(sample(11), codec.getAudioInfo());
}

TEST(AudioInfoXml, ResetsWhatIsMissing)
{
    AudioInfoXml codec;
    codec.setAudioInfo(sample(11));
    ASSERT_TRUE(reads(codec, "<AudioInfo />"));
    expectInfo(AudioInfo(), codec.getAudioInfo());
}

TEST(AudioInfoXml, CarriesTheHighestRatesWhole)
{
    AudioInfoXml codec;
    codec.getAudioInfo().setSamplesPerSec(4294967295U);
    codec.getAudioInfo().setAvgBytesPerSec(2147483648U);
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find(" SamplesPerSec=\"4294967295\" AvgBytesPerSec=\"2147483648\""));

    AudioInfoXml reader;
    ASSERT_TRUE(reads(reader, text));
    EXPECT_EQ(4294967295U, reader.getAudioInfo().getSamplesPerSec());
    EXPECT_EQ(2147483648U, reader.getAudioInfo().getAvgBytesPerSec());
}

TEST(AudioInfoXml, NarrowsShortNumbers)
{
    AudioInfoXml codec;
    ASSERT_TRUE(reads(codec, "<AudioInfo BlockAlign='65538' CBSize='x' />"));
    EXPECT_EQ(2, codec.getAudioInfo().getBlockAligns());
    EXPECT_EQ(0, codec.getAudioInfo().getCBSize());
}
