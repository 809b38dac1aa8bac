#pragma once

#include "domain/MediaRecords.h"

#include <cstdint>
#include <string>
#include <vector>

/// @file
/// The records of the commands.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

/// A receiver of a playback that failed.
struct PlayException
{
    int consumerId = 0; ///< number of the receiver
    int errorNO = 0;    ///< what failed, as the device numbers it
};

/// The queue of a camera's pictures and sound.
class AVDataQueue
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The data channel's number.
    int getChannelId() const { return channelId_; }
    void setChannelId(int channelId) { channelId_ = channelId; }

private:
    int cameraId_ = 0;
    int channelId_ = 0;
};

/// Which stream of which camera. The name is the protocol's.
class StreamlInfo
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The stream's number on the camera.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

private:
    int cameraId_ = 0;
    int streamId_ = 0;
};

/// What a client has to know to decode sound.
class AudioInfo
{
public:
    /// The format of the samples, by the tags of wave files.
    std::uint16_t getFormatTag() const { return formatTag_; }
    void setFormatTag(std::uint16_t formatTag) { formatTag_ = formatTag; }

    /// Number of channels.
    std::uint16_t getChannels() const { return channels_; }
    void setChannels(std::uint16_t channels) { channels_ = channels; }

    /// Samples per second and channel.
    std::uint32_t getSamplesPerSec() const { return samplesPerSec_; }
    void setSamplesPerSec(std::uint32_t samplesPerSec) { samplesPerSec_ = samplesPerSec; }

    /// Bytes per second, on average.
    std::uint32_t getAvgBytesPerSec() const { return avgBytesPerSec_; }
    void setAvgBytesPerSec(std::uint32_t avgBytesPerSec) { avgBytesPerSec_ = avgBytesPerSec; }

    /// Bytes of the smallest block that can be decoded. The name of the getter is longer.
    std::uint16_t getBlockAligns() const { return blockAlign_; }
    void setBlockAlign(std::uint16_t blockAlign) { blockAlign_ = blockAlign; }

    /// Bits per sample.
    std::uint16_t getBitsPerSample() const { return bitsPerSample_; }
    void setBitsPerSample(std::uint16_t bitsPerSample) { bitsPerSample_ = bitsPerSample; }

    /// Bytes of further description behind this one.
    std::uint16_t getCBSize() const { return cbSize_; }
    void setCBSize(std::uint16_t cbSize) { cbSize_ = cbSize; }

private:
    std::uint16_t formatTag_ = 0;
    std::uint16_t channels_ = 0;
    std::uint32_t samplesPerSec_ = 0;
    std::uint32_t avgBytesPerSec_ = 0;
    std::uint16_t blockAlign_ = 0;
    std::uint16_t bitsPerSample_ = 0;
    std::uint16_t cbSize_ = 0;
};

/// What a client has to know to decode a picture.
class VideoInfo
{
public:
    /// Bits per second.
    std::uint32_t getBitRate() const { return bitRate_; }
    void setBitRate(std::uint32_t bitRate) { bitRate_ = bitRate; }

    /// The rate of wrong bits, as the device scales it.
    std::uint32_t getBitErrorRate() const { return bitErrorRate_; }
    void setBitErrorRate(std::uint32_t bitErrorRate) { bitErrorRate_ = bitErrorRate; }

    /// How long a picture is shown, as the device scales it.
    std::uint32_t getTimePerFrame() const { return timePerFrame_; }
    void setTimePerFrame(std::uint32_t timePerFrame) { timePerFrame_ = timePerFrame; }

    /// The size of the description, in bytes.
    std::uint32_t getSize() const { return size_; }
    void setSize(std::uint32_t size) { size_ = size; }

    /// In pixels.
    std::uint32_t getWidth() const { return width_; }
    void setWidth(std::uint32_t width) { width_ = width; }

    /// In pixels.
    std::uint32_t getHeight() const { return height_; }
    void setHeight(std::uint32_t height) { height_ = height; }

    /// Number of colour planes.
    std::uint16_t getPlanes() const { return planes_; }
    void setPlanes(std::uint16_t planes) { planes_ = planes; }

    /// Bits per pixel.
    std::uint16_t getBitCount() const { return bitCount_; }
    void setBitCount(std::uint16_t bitCount) { bitCount_ = bitCount; }

    /// The kind of compression, as the device numbers it.
    std::uint32_t getCompression() const { return compression_; }
    void setCompression(std::uint32_t compression) { compression_ = compression; }

    /// Bytes of a picture.
    std::uint32_t getSizeImage() const { return sizeImage_; }
    void setSizeImage(std::uint32_t sizeImage) { sizeImage_ = sizeImage; }

    /// Pixels per metre, across.
    std::int32_t getXPelsPerMeter() const { return xPelsPerMeter_; }
    void setXPelsPerMeter(std::int32_t xPelsPerMeter) { xPelsPerMeter_ = xPelsPerMeter; }

    /// Pixels per metre, down.
    std::int32_t getYPelsPerMeter() const { return yPelsPerMeter_; }
    void setYPelsPerMeter(std::int32_t yPelsPerMeter) { yPelsPerMeter_ = yPelsPerMeter; }

    /// Number of colours in use; 0 for all.
    std::uint32_t getClrUsed() const { return clrUsed_; }
    void setClrUsed(std::uint32_t clrUsed) { clrUsed_ = clrUsed; }

    /// Number of colours that matter; 0 for all.
    std::uint32_t getClrImportant() const { return clrImportant_; }
    void setClrImportant(std::uint32_t clrImportant) { clrImportant_ = clrImportant; }

    /// The parameter sets of the encoder, as text; those who have bytes give them as Base64.
    const std::string& getSPS_PPSData() const { return spsPpsData_; }
    /// Takes the first @p length bytes of @p text, or all where it ends before that. Null, and a length below 0, take
    /// none.
    void setSPS_PPSData(const char* text, int length)
    {
        std::string data;
        for (; length > 0 && text != nullptr && *text != '\0'; --length)
            data.push_back(*text++);
        spsPpsData_.swap(data);
    }

    /// The length of that text.
    int getSPS_PPSDataLen() const { return static_cast<int>(spsPpsData_.size()); }

private:
    std::uint32_t bitRate_ = 0;
    std::uint32_t bitErrorRate_ = 0;
    std::uint32_t timePerFrame_ = 0;
    std::uint32_t size_ = 0;
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
    std::uint16_t planes_ = 0;
    std::uint16_t bitCount_ = 0;
    std::uint32_t compression_ = 0;
    std::uint32_t sizeImage_ = 0;
    std::int32_t xPelsPerMeter_ = 0;
    std::int32_t yPelsPerMeter_ = 0;
    std::uint32_t clrUsed_ = 0;
    std::uint32_t clrImportant_ = 0;
    std::string spsPpsData_;
};

/// What the streams of a camera are, for a central station.
class CMSStreamParam
{
public:
    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// How each of its streams is encoded.
    /// @{
    const std::vector<VideoEncodeQuality>& getVideoEncodeQualityList() const { return videoEncodeQualityList_; }
    std::vector<VideoEncodeQuality>& getVideoEncodeQualityList() { return videoEncodeQualityList_; }
    void setVideoEncodeQualityList(const std::vector<VideoEncodeQuality>& videoEncodeQualityList)
    {
        videoEncodeQualityList_ = videoEncodeQualityList;
    }
    /// @}

private:
    int cameraID_ = 0;
    std::vector<VideoEncodeQuality> videoEncodeQualityList_;
};
