#pragma once

/// @file
/// The records of streams, overlays and masks.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

/// The size of the tiles of a mosaic.
class MosaicParam
{
public:
    /// In pixels.
    std::uint32_t getWidth() const { return width_; }
    void setWidth(std::uint32_t width) { width_ = width; }

    /// In pixels.
    std::uint32_t getHeight() const { return height_; }
    void setHeight(std::uint32_t height) { height_ = height; }

private:
    std::uint32_t width_ = 0;
    std::uint32_t height_ = 0;
};

/// A text on the picture, at a position in whole numbers.
class OSDInfo
{
public:
    /// What the text shows, as the device numbers it.
    int getOSDType() const { return osdType_; }
    void setOSDType(int osdType) { osdType_ = osdType; }

    /// Whether it is drawn.
    bool getOSDEnableFlag() const { return osdEnableFlag_; }
    void setOSDEnableFlag(bool osdEnableFlag) { osdEnableFlag_ = osdEnableFlag; }

    /// Its upper left corner, across.
    int getTopX() const { return topX_; }
    void setTopX(int topX) { topX_ = topX; }

    /// Its upper left corner, down.
    int getTopY() const { return topY_; }
    void setTopY(int topY) { topY_ = topY; }

    /// The text itself.
    const std::string& getInfo() const { return info_; }
    void setInfo(const std::string& info) { info_ = info; }

private:
    int osdType_ = 0;
    bool osdEnableFlag_ = false;
    int topX_ = 0;
    int topY_ = 0;
    std::string info_;
};

/// How the picture of a stream is encoded.
class VideoEncodeQuality
{
public:
    /// The television system, as the device numbers it.
    int getVideoSystem() const { return videoSystem_; }
    void setVideoSystem(int videoSystem) { videoSystem_ = videoSystem; }

    /// Pictures per second.
    double getFrameRate() const { return frameRate_; }
    void setFrameRate(double frameRate) { frameRate_ = frameRate; }

    /// The format of the picture, as the device numbers it.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// How the bit rate is kept, as the device numbers it.
    int getBitRateType() const { return bitRateType_; }
    void setBitRateType(int bitRateType) { bitRateType_ = bitRateType; }

    /// The bit rate, as the device scales it.
    int getBitRate() const { return bitRate_; }
    void setBitRate(int bitRate) { bitRate_ = bitRate; }

    /// The coarseness of the quantiser, as the device scales it.
    int getQuant() const { return quant_; }
    void setQuant(int quant) { quant_ = quant; }

    /// The distance between two I frames.
    int getIFrameInterval() const { return iFrameInterval_; }
    void setIFrameInterval(int iFrameInterval) { iFrameInterval_ = iFrameInterval; }

    /// The encoder, as the device numbers it. The name of the setter is shorter.
    int getEncoderType() const { return encoderType_; }
    void setEncodeType(int encoderType) { encoderType_ = encoderType; }

    /// The quality of the picture, as the device scales it.
    int getQuality() const { return quality_; }
    void setQuality(int quality) { quality_ = quality; }

    /// The flag of the encoder, as the device defines it.
    int getCodingFlag() const { return codingFlag_; }
    void setCodingFlag(int codingFlag) { codingFlag_ = codingFlag; }

private:
    int videoSystem_ = 0;
    double frameRate_ = 0;
    int imageFormatId_ = 0;
    int bitRateType_ = 0;
    int bitRate_ = 0;
    int quant_ = 0;
    int iFrameInterval_ = 0;
    int encoderType_ = 0;
    int quality_ = 0;
    int codingFlag_ = 0;
};

/// How sound is encoded.
class AudioEncodeQuality
{
public:
    /// The format of the samples, by the tags of wave files.
    std::uint16_t getFormatTag() const { return formatTag_; }
    void setFormatTag(std::uint16_t formatTag) { formatTag_ = formatTag; }

    /// Number of channels.
    std::uint16_t getChannels() const { return channels_; }
    void setChannels(std::uint16_t channels) { channels_ = channels; }

    /// Samples per second and channel.
    unsigned long getSamplesPerSec() const { return samplesPerSec_; }
    void setSamplesPerSec(unsigned long samplesPerSec) { samplesPerSec_ = samplesPerSec; }

    /// Bytes per second, on average.
    unsigned long getAvgBytesPerSec() const { return avgBytesPerSec_; }
    void setAvgBytesPerSec(unsigned long avgBytesPerSec) { avgBytesPerSec_ = avgBytesPerSec; }

    /// Bytes of the smallest block that can be decoded.
    std::uint16_t getBlockAlign() const { return blockAlign_; }
    void setBlockAlign(std::uint16_t blockAlign) { blockAlign_ = blockAlign; }

    /// Bits per sample.
    std::uint16_t getBitsPerSample() const { return bitsPerSample_; }
    void setBitsPerSample(std::uint16_t bitsPerSample) { bitsPerSample_ = bitsPerSample; }

    /// Bytes of further description behind this one.
    std::uint16_t getCBSize() const { return cbSize_; }
    void setCBSize(std::uint16_t cbSize) { cbSize_ = cbSize; }

    /// The encoder, as the device numbers it.
    int getEncodeType() const { return encodeType_; }
    void setEncodeType(int encodeType) { encodeType_ = encodeType; }

private:
    std::uint16_t formatTag_ = 0;
    std::uint16_t channels_ = 0;
    unsigned long samplesPerSec_ = 0;
    unsigned long avgBytesPerSec_ = 0;
    std::uint16_t blockAlign_ = 0;
    std::uint16_t bitsPerSample_ = 0;
    std::uint16_t cbSize_ = 0;
    int encodeType_ = 0;
};

/// How a camera's picture and sound are encoded.
class EncodeQuality
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How its picture is encoded.
    /// @{
    const VideoEncodeQuality& getVideoEncodeQuality() const { return videoEncodeQuality_; }
    VideoEncodeQuality& getVideoEncodeQuality() { return videoEncodeQuality_; }
    void setVideoEncodeQuality(const VideoEncodeQuality& videoEncodeQuality)
    {
        videoEncodeQuality_ = videoEncodeQuality;
    }
    /// @}

    /// How its sound is encoded.
    /// @{
    const AudioEncodeQuality& getAudioEncodeQuality() const { return audioEncodeQuality_; }
    AudioEncodeQuality& getAudioEncodeQuality() { return audioEncodeQuality_; }
    void setAudioEncodeQuality(const AudioEncodeQuality& audioEncodeQuality)
    {
        audioEncodeQuality_ = audioEncodeQuality;
    }
    /// @}

private:
    int cameraId_ = 0;
    VideoEncodeQuality videoEncodeQuality_;
    AudioEncodeQuality audioEncodeQuality_;
};

/// How the streams of a camera's picture are encoded.
class DeviceVideoEncodeQuality
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

/// How a camera shows its picture.
class VideoQuality
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Contrast, as the device scales it.
    int getContrast() const { return contrast_; }
    void setContrast(int contrast) { contrast_ = contrast; }

    /// Brightness, as the device scales it.
    int getBrightness() const { return brightness_; }
    void setBrightness(int brightness) { brightness_ = brightness; }

    /// Hue, as the device scales it.
    int getHue() const { return hue_; }
    void setHue(int hue) { hue_ = hue; }

    /// Saturation, as the device scales it.
    int getSaturation() const { return saturation_; }
    void setSaturation(int saturation) { saturation_ = saturation; }

    /// Sharpness, as the device scales it.
    int getSharpness() const { return sharpness_; }
    void setSharpness(int sharpness) { sharpness_ = sharpness; }

private:
    int cameraId_ = 0;
    int contrast_ = 0;
    int brightness_ = 0;
    int hue_ = 0;
    int saturation_ = 0;
    int sharpness_ = 0;
};

/// One stream of a camera: picture and sound.
class AVStreamParam
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The stream's number on the camera.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// The stream's name.
    const std::string& getStreamName() const { return streamName_; }
    void setStreamName(const std::string& streamName) { streamName_ = streamName; }

    /// In pixels.
    int getVideoHeight() const { return videoHeight_; }
    void setVideoHeight(int videoHeight) { videoHeight_ = videoHeight; }

    /// In pixels.
    int getVideoWidth() const { return videoWidth_; }
    void setVideoWidth(int videoWidth) { videoWidth_ = videoWidth; }

    /// Pictures per second.
    int getFrameRate() const { return frameRate_; }
    void setFrameRate(int frameRate) { frameRate_ = frameRate; }

    /// How the bit rate is kept, as the device numbers it.
    int getBitRateType() const { return bitRateType_; }
    void setBitRateType(int bitRateType) { bitRateType_ = bitRateType; }

    /// The bit rate, as the device scales it.
    int getBitRate() const { return bitRate_; }
    void setBitRate(int bitRate) { bitRate_ = bitRate; }

    /// The quality of the picture, as the device scales it.
    int getQuality() const { return quality_; }
    void setQuality(int quality) { quality_ = quality; }

    /// The distance between two I frames.
    int getIFrameInterval() const { return iFrameInterval_; }
    void setIFrameInterval(int iFrameInterval) { iFrameInterval_ = iFrameInterval; }

    /// The unit of that distance, as the device numbers it.
    int getIFrameIntervalUnit() const { return iFrameIntervalUnit_; }
    void setIFrameIntervalUnit(int iFrameIntervalUnit) { iFrameIntervalUnit_ = iFrameIntervalUnit; }

    /// The encoder of the picture, as the device numbers it.
    int getVideoEncoderType() const { return videoEncoderType_; }
    void setVideoEncoderType(int videoEncoderType) { videoEncoderType_ = videoEncoderType; }

    /// The encoder of the sound, as the device numbers it.
    int getAudioEncoderType() const { return audioEncoderType_; }
    void setAudioEncoderType(int audioEncoderType) { audioEncoderType_ = audioEncoderType; }

private:
    int cameraId_ = 0;
    int streamId_ = 0;
    std::string streamName_;
    int videoHeight_ = 0;
    int videoWidth_ = 0;
    int frameRate_ = 0;
    int bitRateType_ = 0;
    int bitRate_ = 0;
    int quality_ = 0;
    int iFrameInterval_ = 0;
    int iFrameIntervalUnit_ = 0;
    int videoEncoderType_ = 0;
    int audioEncoderType_ = 0;
};

/// The streams of a device.
class DeviceAVStreamParam
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its streams.
    /// @{
    const std::vector<AVStreamParam>& getAVStreamParamList() const { return avStreamParamList_; }
    std::vector<AVStreamParam>& getAVStreamParamList() { return avStreamParamList_; }
    void setAVStreamParamList(const std::vector<AVStreamParam>& avStreamParamList)
    {
        avStreamParamList_ = avStreamParamList;
    }
    /// @}

private:
    std::string deviceId_;
    std::vector<AVStreamParam> avStreamParamList_;
};

/// What one stream of a camera is configured to.
class StreamConfigure
{
public:
    /// The stream's number.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// The stream's name.
    const std::string& getStreamName() const { return streamName_; }
    void setStreamName(std::string streamName) { streamName_ = std::move(streamName); }

    /// In pixels.
    int getVideoWidth() const { return videoWidth_; }
    void setVideoWidth(int videoWidth) { videoWidth_ = videoWidth; }

    /// In pixels.
    int getVideoHeight() const { return videoHeight_; }
    void setVideoHeight(int videoHeight) { videoHeight_ = videoHeight; }

    /// Pictures per second.
    double getFrameRate() const { return frameRate_; }
    void setFrameRate(double frameRate) { frameRate_ = frameRate; }

    /// How the bit rate is kept, as the device numbers it.
    int getBitRateType() const { return bitRateType_; }
    void setBitRateType(int bitRateType) { bitRateType_ = bitRateType; }

    /// The bit rate, as the device scales it.
    int getBitRate() const { return bitRate_; }
    void setBitRate(int bitRate) { bitRate_ = bitRate; }

    /// The quality of the picture, as the device scales it.
    int getQuality() const { return quality_; }
    void setQuality(int quality) { quality_ = quality; }

    /// The distance between two I frames.
    int getIFrameInterval() const { return iFrameInterval_; }
    void setIFrameInterval(int iFrameInterval) { iFrameInterval_ = iFrameInterval; }

    /// The unit of that distance, as the device numbers it.
    int getIFrameIntervalUnit() const { return iFrameIntervalUnit_; }
    void setIFrameIntervalUnit(int iFrameIntervalUnit) { iFrameIntervalUnit_ = iFrameIntervalUnit; }

    /// The encoder of the picture, as the device numbers it.
    int getVideoEncoderType() const { return videoEncoderType_; }
    void setVideoEncoderType(int videoEncoderType) { videoEncoderType_ = videoEncoderType; }

    /// The encoder of the sound, as the device numbers it.
    int getAudioEncoderType() const { return audioEncoderType_; }
    void setAudioEncoderType(int audioEncoderType) { audioEncoderType_ = audioEncoderType; }

    /// The size of the picture, as the device numbers it.
    int getResolutionId() const { return resolutionId_; }
    void setResolutionId(int resolutionId) { resolutionId_ = resolutionId; }

private:
    int streamId_ = 0;
    std::string streamName_;
    int videoWidth_ = 0;
    int videoHeight_ = 0;
    double frameRate_ = 0;
    int bitRateType_ = 0;
    int bitRate_ = 0;
    int quality_ = 0;
    int iFrameInterval_ = 0;
    int iFrameIntervalUnit_ = 0;
    int videoEncoderType_ = 0;
    int audioEncoderType_ = 0;
    int resolutionId_ = 0;
};

/// What one capture input of a camera is configured to.
class VideoCaptureConfigure
{
public:
    /// The size of the picture, as the device numbers it.
    int getResolutionId() const { return resolutionId_; }
    void setResolutionId(int resolutionId) { resolutionId_ = resolutionId; }

    /// The mode of capture, as the device numbers it.
    int getMode() const { return mode_; }
    void setMode(int mode) { mode_ = mode; }

    /// The capture input's number.
    int getCaptureId() const { return captureId_; }
    void setCaptureId(int captureId) { captureId_ = captureId; }

    /// The number of the input's video port.
    int getVIPId() const { return vipId_; }
    void setVIPId(int vipId) { vipId_ = vipId; }

    /// In pixels.
    int getVideoWidth() const { return videoWidth_; }
    void setVideoWidth(int videoWidth) { videoWidth_ = videoWidth; }

    /// In pixels.
    int getVideoHeight() const { return videoHeight_; }
    void setVideoHeight(int videoHeight) { videoHeight_ = videoHeight; }

    /// The height that the user chose, in pixels.
    int getUserVideoHeight() const { return userVideoHeight_; }
    void setUserVideoHeight(int userVideoHeight) { userVideoHeight_ = userVideoHeight; }

    /// The width that the user chose, in pixels.
    int getUserVideoWidth() const { return userVideoWidth_; }
    void setUserVideoWidth(int userVideoWidth) { userVideoWidth_ = userVideoWidth; }

    /// How the lines are interlaced, as the device numbers it.
    int getInterlace() const { return interlace_; }
    void setInterlace(int interlace) { interlace_ = interlace; }

    /// The name of the input's device.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// Number of buffers.
    int getBufferNumber() const { return bufferNumber_; }
    void setBufferNumber(int bufferNumber) { bufferNumber_ = bufferNumber; }

    /// Not defined; carried as it is.
    const std::string& getReserve() const { return reserve_; }
    void setReserve(const std::string& reserve) { reserve_ = reserve; }

    /// Number of captures.
    int getCaptureNum() const { return captureNum_; }
    void setCaptureNum(int captureNum) { captureNum_ = captureNum; }

private:
    int resolutionId_ = 0;
    int mode_ = 0;
    int captureId_ = 0;
    int vipId_ = 0;
    int videoWidth_ = 0;
    int videoHeight_ = 0;
    int userVideoHeight_ = 0;
    int userVideoWidth_ = 0;
    int interlace_ = 0;
    std::string deviceName_;
    int bufferNumber_ = 0;
    std::string reserve_;
    int captureNum_ = 0;
};

/// The output of raw pictures.
class OriginalYUVConfigure
{
public:
    /// Whether the device gives raw pictures.
    bool getSupportFlag() const { return supportFlag_; }
    void setSupportFlag(bool supportFlag) { supportFlag_ = supportFlag; }

    /// The size of the picture, as the device numbers it.
    int getYUVResolutionId() const { return yuvResolutionId_; }
    void setYUVResolutionId(int yuvResolutionId) { yuvResolutionId_ = yuvResolutionId; }

    /// In pixels.
    int getVideoWidth() const { return videoWidth_; }
    void setVideoWidth(int videoWidth) { videoWidth_ = videoWidth; }

    /// In pixels.
    int getVideoHeight() const { return videoHeight_; }
    void setVideoHeight(int videoHeight) { videoHeight_ = videoHeight; }

    /// Pictures per second.
    int getYUVFrameRate() const { return yuvFrameRate_; }
    void setYUVFrameRate(int yuvFrameRate) { yuvFrameRate_ = yuvFrameRate; }

    /// The arrangement of the samples, as the device numbers it.
    int getYUVVideoType() const { return yuvVideoType_; }
    void setYUVVideoType(int yuvVideoType) { yuvVideoType_ = yuvVideoType; }

private:
    bool supportFlag_ = false;
    int yuvResolutionId_ = 0;
    int videoWidth_ = 0;
    int videoHeight_ = 0;
    int yuvFrameRate_ = 0;
    int yuvVideoType_ = 0;
};

/// What one scalable sub-stream of a camera is configured to.
class SVCStreamConfigure
{
public:
    /// The sub-stream's number.
    int getSVCStreamId() const { return svcStreamId_; }
    void setSVCStreamId(const int& svcStreamId) { svcStreamId_ = svcStreamId; }

    /// The sub-stream's name.
    const std::string& getSVCStreamName() const { return svcStreamName_; }
    void setSVCStreamName(const std::string& svcStreamName) { svcStreamName_ = svcStreamName; }

    /// The number of the stream that it is taken from.
    int getSVCStreamSourceStream() const { return svcStreamSourceStream_; }
    void setSVCStreamSourceStream(const int& svcStreamSourceStream) { svcStreamSourceStream_ = svcStreamSourceStream; }

    /// What the frame rate of that stream is divided by.
    int getSVCStreamDivisor() const { return svcStreamDivisor_; }
    void setSVCStreamDivisor(const int& svcStreamDivisor) { svcStreamDivisor_ = svcStreamDivisor; }

private:
    int svcStreamId_ = 0;
    std::string svcStreamName_;
    int svcStreamSourceStream_ = 0;
    int svcStreamDivisor_ = 0;
};

/// One scalable sub-stream of a camera.
class SVCStreamParam
{
public:
    /// The number of the stream that it is taken from.
    int getSourceStreamID() const { return sourceStreamID_; }
    void setSourceStreamID(int sourceStreamID) { sourceStreamID_ = sourceStreamID; }

    /// The sub-stream's number.
    int getSVCStreamID() const { return svcStreamID_; }
    void setSVCStreamID(int svcStreamID) { svcStreamID_ = svcStreamID; }

    /// The distance between two P frames that it keeps.
    int getFrameSkipInterval() const { return frameSkipInterval_; }
    void setFrameSkipInterval(int frameSkipInterval) { frameSkipInterval_ = frameSkipInterval; }

    /// The sub-stream's name.
    const std::string& getSVCStreamName() const { return svcStreamName_; }
    void setSVCStreamName(const std::string& svcStreamName) { svcStreamName_ = svcStreamName; }

private:
    int sourceStreamID_ = 0;
    int svcStreamID_ = 0;
    int frameSkipInterval_ = 0;
    std::string svcStreamName_;
};

/// A value that the user defined.
class UserDefineParamItem
{
public:
    /// What the value is, in words of the user.
    const std::string& getParamItemType() const { return paramItemType_; }
    void setParamItemType(const std::string& paramItemType) { paramItemType_ = paramItemType; }

    /// The value.
    const std::string& getParamItemValue() const { return paramItemValue_; }
    void setParamItemValue(const std::string& paramItemValue) { paramItemValue_ = paramItemValue; }

private:
    std::string paramItemType_;
    std::string paramItemValue_;
};

/// Values that the user defined, under a common type.
class UserDefineParam
{
public:
    /// What the items are, in words of the user.
    const std::string& getParamType() const { return paramType_; }
    void setParamType(const std::string& paramType) { paramType_ = paramType; }

    /// The items.
    /// @{
    const std::vector<UserDefineParamItem>& getParamItemList() const { return paramItemList_; }
    std::vector<UserDefineParamItem>& getParamItemList() { return paramItemList_; }
    void setParamItemList(const std::vector<UserDefineParamItem>& paramItemList) { paramItemList_ = paramItemList; }
    /// @}

private:
    std::string paramType_;
    std::vector<UserDefineParamItem> paramItemList_;
};
