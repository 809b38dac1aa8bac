#include "tests/media/StreamSamples.h"

#include <gtest/gtest.h>

VideoEncodeQuality sampleVideoQuality(int first)
{
    VideoEncodeQuality quality;
    quality.setVideoSystem(first);
    quality.setFrameRate(first + 1.5);
    quality.setImageFormatId(first + 2);
    quality.setBitRateType(first + 3);
    quality.setBitRate(first + 4);
    quality.setQuant(first + 5);
    quality.setIFrameInterval(first + 6);
    quality.setEncodeType(first + 7);
    quality.setQuality(first + 8);
    quality.setCodingFlag(first + 9);
    return quality;
}

AudioEncodeQuality sampleAudioQuality(int first)
{
    AudioEncodeQuality quality;
    quality.setFormatTag(static_cast<std::uint16_t>(first));
    quality.setChannels(static_cast<std::uint16_t>(first + 1));
    // Zeros behind the first digit: where a minus replaces that, the text still reads as a number that fits.
    quality.setSamplesPerSec(static_cast<unsigned long>(first / 10 * 1000));
    quality.setAvgBytesPerSec(static_cast<unsigned long>(first / 10 * 10000));
    quality.setBlockAlign(static_cast<std::uint16_t>(first + 4));
    quality.setBitsPerSample(static_cast<std::uint16_t>(first + 5));
    quality.setCBSize(static_cast<std::uint16_t>(first + 6));
    quality.setEncodeType(first + 7);
    return quality;
}

AVStreamParam sampleStream(int first)
{
    AVStreamParam stream;
    stream.setCameraId(first);
    stream.setStreamId(first + 1);
    stream.setStreamName("stream " + std::to_string(first + 2));
    stream.setVideoHeight(first + 3);
    stream.setVideoWidth(first + 4);
    stream.setFrameRate(first + 5);
    stream.setBitRateType(first + 6);
    stream.setBitRate(first + 7);
    stream.setQuality(first + 8);
    stream.setIFrameInterval(first + 9);
    stream.setIFrameIntervalUnit(first + 10);
    stream.setVideoEncoderType(first + 11);
    stream.setAudioEncoderType(first + 12);
    return stream;
}

void expectVideoQuality(const VideoEncodeQuality& expected, const VideoEncodeQuality& quality)
{
    EXPECT_EQ(expected.getVideoSystem(), quality.getVideoSystem());
    EXPECT_EQ(expected.getFrameRate(), quality.getFrameRate());
    EXPECT_EQ(expected.getImageFormatId(), quality.getImageFormatId());
    EXPECT_EQ(expected.getBitRateType(), quality.getBitRateType());
    EXPECT_EQ(expected.getBitRate(), quality.getBitRate());
    EXPECT_EQ(expected.getQuant(), quality.getQuant());
    EXPECT_EQ(expected.getIFrameInterval(), quality.getIFrameInterval());
    EXPECT_EQ(expected.getEncoderType(), quality.getEncoderType());
    EXPECT_EQ(expected.getQuality(), quality.getQuality());
    EXPECT_EQ(expected.getCodingFlag(), quality.getCodingFlag());
}

void expectAudioQuality(const AudioEncodeQuality& expected, const AudioEncodeQuality& quality)
{
    EXPECT_EQ(expected.getFormatTag(), quality.getFormatTag());
    EXPECT_EQ(expected.getChannels(), quality.getChannels());
    EXPECT_EQ(expected.getSamplesPerSec(), quality.getSamplesPerSec());
    EXPECT_EQ(expected.getAvgBytesPerSec(), quality.getAvgBytesPerSec());
    EXPECT_EQ(expected.getBlockAlign(), quality.getBlockAlign());
    EXPECT_EQ(expected.getBitsPerSample(), quality.getBitsPerSample());
    EXPECT_EQ(expected.getCBSize(), quality.getCBSize());
    EXPECT_EQ(expected.getEncodeType(), quality.getEncodeType());
}

void expectStream(const AVStreamParam& expected, const AVStreamParam& stream)
{
    EXPECT_EQ(expected.getCameraId(), stream.getCameraId());
    EXPECT_EQ(expected.getStreamId(), stream.getStreamId());
    EXPECT_EQ(expected.getStreamName(), stream.getStreamName());
    EXPECT_EQ(expected.getVideoHeight(), stream.getVideoHeight());
    EXPECT_EQ(expected.getVideoWidth(), stream.getVideoWidth());
    EXPECT_EQ(expected.getFrameRate(), stream.getFrameRate());
    EXPECT_EQ(expected.getBitRateType(), stream.getBitRateType());
    EXPECT_EQ(expected.getBitRate(), stream.getBitRate());
    EXPECT_EQ(expected.getQuality(), stream.getQuality());
    EXPECT_EQ(expected.getIFrameInterval(), stream.getIFrameInterval());
    EXPECT_EQ(expected.getIFrameIntervalUnit(), stream.getIFrameIntervalUnit());
    EXPECT_EQ(expected.getVideoEncoderType(), stream.getVideoEncoderType());
    EXPECT_EQ(expected.getAudioEncoderType(), stream.getAudioEncoderType());
}
