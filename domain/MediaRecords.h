#pragma once

/// @file
/// The records of streams, overlays and masks.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/CoreRecords.h"

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

/// A text on the picture, at a position in fractions.
class OSDInfoEx
{
public:
    /// What the text shows, as the device numbers it.
    int getOSDType() const { return osdType_; }
    void setOSDType(int osdType) { osdType_ = osdType; }

    /// Whether it is drawn.
    bool getOSDEnableFlag() const { return osdEnableFlag_; }
    void setOSDEnableFlag(bool osdEnableFlag) { osdEnableFlag_ = osdEnableFlag; }

    /// Its upper left corner, across.
    float getX() const { return x_; }
    void setX(float x) { x_ = x; }

    /// Its upper left corner, down.
    float getY() const { return y_; }
    void setY(float y) { y_ = y; }

    /// The text itself.
    const std::string& getInfo() const { return info_; }
    void setInfo(const std::string& info) { info_ = info; }

private:
    int osdType_ = 0;
    bool osdEnableFlag_ = false;
    float x_ = 0.0F;
    float y_ = 0.0F;
    std::string info_;
};

/// The texts on the picture of one camera.
class VideoOSDInfoEx
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The texts.
    /// @{
    const std::vector<OSDInfoEx>& getOSDInfoList() const { return osdInfoList_; }
    std::vector<OSDInfoEx>& getOSDInfoList() { return osdInfoList_; }
    void setOSDInfoList(const std::vector<OSDInfoEx>& osdInfoList) { osdInfoList_ = osdInfoList; }
    /// @}

private:
    int cameraId_ = 0;
    std::vector<OSDInfoEx> osdInfoList_;
};

/// How the time is drawn on a picture.
class OSDPrintTime
{
public:
    /// The kind of text, as the device numbers it.
    int getOSDType() const { return osdType_; }
    void setOSDType(const int& osdType) { osdType_ = osdType; }

    /// How the time is shown, as the device numbers it.
    int getTime() const { return time_; }
    void setTime(const int& time) { time_ = time; }

private:
    int osdType_ = 0;
    int time_ = 0;
};

/// All that a device draws on its cameras' pictures.
class DeviceOSDInfo
{
public:
    /// How the time is drawn.
    /// @{
    const OSDPrintTime& getOSDPrintTime() const { return osdPrintTime_; }
    OSDPrintTime& getOSDPrintTime() { return osdPrintTime_; }
    void setOSDPrintTime(const OSDPrintTime& osdPrintTime) { osdPrintTime_ = osdPrintTime; }
    /// @}

    /// How positions are given, as the device numbers it.
    int getPositionOSDType() const { return positionOSDType_; }
    void setPositionOSDType(const int& positionOSDType) { positionOSDType_ = positionOSDType; }

    /// The texts, camera by camera.
    /// @{
    const std::vector<VideoOSDInfoEx>& getVideoOSDInfoExList() const { return videoOSDInfoExList_; }
    std::vector<VideoOSDInfoEx>& getVideoOSDInfoExList() { return videoOSDInfoExList_; }
    void setVideoOSDInfoExList(const std::vector<VideoOSDInfoEx>& videoOSDInfoExList)
    {
        videoOSDInfoExList_ = videoOSDInfoExList;
    }
    /// @}

private:
    OSDPrintTime osdPrintTime_;
    int positionOSDType_ = 0;
    std::vector<VideoOSDInfoEx> videoOSDInfoExList_;
};

/// The font of the texts on one stream.
class VideoOSDFont
{
public:
    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// The stream of that camera.
    int getStreamID() const { return streamID_; }
    void setStreamID(int streamID) { streamID_ = streamID; }

    /// Whether the colour turns to its inverse where the picture would hide it.
    bool getInverseFlag() const { return inverseFlag_; }
    void setInverseFlag(bool inverseFlag) { inverseFlag_ = inverseFlag; }

    /// The font, as the device numbers it.
    int getFontID() const { return fontID_; }
    void setFontID(int fontID) { fontID_ = fontID; }

    /// The font's colour and, with a 1 in its names, the second one, each with its opacity, as the device scales them.
    /// @{
    void getFontColorRGB(int& red, int& green, int& blue, int& alpha, int& red1, int& green1, int& blue1,
                         int& alpha1) const
    {
        red = red_;
        green = green_;
        blue = blue_;
        alpha = alpha_;
        red1 = red1_;
        green1 = green1_;
        blue1 = blue1_;
        alpha1 = alpha1_;
    }
    void setFontColorRGB(int red, int green, int blue, int alpha, int red1, int green1, int blue1, int alpha1)
    {
        red_ = red;
        green_ = green;
        blue_ = blue;
        alpha_ = alpha;
        red1_ = red1;
        green1_ = green1;
        blue1_ = blue1;
        alpha1_ = alpha1;
    }
    /// @}

private:
    int cameraID_ = 0;
    int streamID_ = 0;
    bool inverseFlag_ = false;
    int fontID_ = 0;
    int red_ = 0;
    int green_ = 0;
    int blue_ = 0;
    int alpha_ = 0;
    int red1_ = 0;
    int green1_ = 0;
    int blue1_ = 0;
    int alpha1_ = 0;
};

/// A rectangle on a picture, in whole numbers.
class AreaParam
{
public:
    /// Its upper left corner, across.
    int getTopX() const { return topX_; }
    void setTopX(int topX) { topX_ = topX; }

    /// Its upper left corner, down.
    int getTopY() const { return topY_; }
    void setTopY(int topY) { topY_ = topY; }

    /// How far it reaches across.
    int getWidth() const { return width_; }
    void setWidth(int width) { width_ = width; }

    /// How far it reaches down.
    int getHeight() const { return height_; }
    void setHeight(int height) { height_ = height; }

private:
    int topX_ = 0;
    int topY_ = 0;
    int width_ = 0;
    int height_ = 0;
};

/// A rectangle on a picture, in fractions.
class AreaParamV2
{
public:
    /// Its upper left corner, across.
    double getTopX() const { return topX_; }
    void setTopX(double topX) { topX_ = topX; }

    /// Its upper left corner, down.
    double getTopY() const { return topY_; }
    void setTopY(double topY) { topY_ = topY; }

    /// How far it reaches across.
    double getWidth() const { return width_; }
    void setWidth(double width) { width_ = width; }

    /// How far it reaches down.
    double getHeight() const { return height_; }
    void setHeight(double height) { height_ = height; }

private:
    double topX_ = 0.0;
    double topY_ = 0.0;
    double width_ = 0.0;
    double height_ = 0.0;
};

/// What is hidden of the picture of one camera.
class BlindAreaParam
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether anything is hidden.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The kind of cover, as the device numbers it.
    int getType() const { return type_; }
    void setType(int type) { type_ = type; }

    /// The colour of a cover of colour.
    /// @{
    const ColorParam& getColor() const { return color_; }
    ColorParam& getColor() { return color_; }
    void setColor(const ColorParam& color) { color_ = color; }
    /// @}

    /// The tiles of a mosaic.
    /// @{
    const MosaicParam& getMosaic() const { return mosaic_; }
    MosaicParam& getMosaic() { return mosaic_; }
    void setMosaic(const MosaicParam& mosaic) { mosaic_ = mosaic; }
    /// @}

    /// The hidden areas.
    /// @{
    const std::vector<AreaParam>& getAreaParam() const { return areaParam_; }
    std::vector<AreaParam>& getAreaParam() { return areaParam_; }
    void setAreaParam(const std::vector<AreaParam>& areaParam) { areaParam_ = areaParam; }
    /// @}

private:
    int cameraId_ = 0;
    bool enableFlag_ = false;
    int type_ = 0;
    ColorParam color_;
    MosaicParam mosaic_;
    std::vector<AreaParam> areaParam_;
};

/// One hidden area of a picture.
class BlindAreaParamV2
{
public:
    /// The number of the area.
    int getAreaId() const { return areaId_; }
    void setAreaId(int areaId) { areaId_ = areaId; }

    /// Whether it is hidden.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// Its name, as set by the user.
    const std::string& getAreaName() const { return areaName_; }
    void setAreaName(const std::string& areaName) { areaName_ = areaName; }

    /// The colour of the cover.
    /// @{
    const ColorParam& getColor() const { return color_; }
    ColorParam& getColor() { return color_; }
    void setColor(const ColorParam& color) { color_ = color; }
    /// @}

    /// Where it lies.
    /// @{
    const AreaParamV2& getAreaParamV2() const { return areaParamV2_; }
    AreaParamV2& getAreaParamV2() { return areaParamV2_; }
    void setAreaParamV2(const AreaParamV2& areaParamV2) { areaParamV2_ = areaParamV2; }
    /// @}

private:
    int areaId_ = 0;
    bool enableFlag_ = false;
    std::string areaName_;
    ColorParam color_;
    AreaParamV2 areaParamV2_;
};

/// A region of a picture that the encoder favours.
class ROIInfoParam
{
public:
    /// Its name, as set by the user.
    const std::string& getName() const { return name_; }
    void setName(const std::string& name) { name_ = name; }

    /// The stream that it belongs to.
    int getStreamID() const { return streamID_; }
    void setStreamID(int streamID) { streamID_ = streamID; }

    /// Its number on that stream.
    int getIndexID() const { return indexID_; }
    void setIndexID(int indexID) { indexID_ = indexID; }

    /// Whether it is favoured.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// How much, as the device numbers it.
    int getROILevel() const { return roiLevel_; }
    void setROILevel(int roiLevel) { roiLevel_ = roiLevel; }

    /// Where it lies.
    /// @{
    const AreaParam& getAreaParam() const { return areaParam_; }
    AreaParam& getAreaParam() { return areaParam_; }
    void setAreaParam(const AreaParam& areaParam) { areaParam_ = areaParam; }
    /// @}

private:
    std::string name_;
    int streamID_ = 0;
    int indexID_ = 0;
    bool enableFlag_ = false;
    int roiLevel_ = 0;
    AreaParam areaParam_;
};

/// The favoured regions of one stream.
class ROIConfigure
{
public:
    /// The stream.
    int getStreamID() const { return streamID_; }
    void setStreamID(int streamID) { streamID_ = streamID; }

    /// Its regions.
    /// @{
    const std::vector<ROIInfoParam>& getROIInfoParamList() const { return roiInfoParamList_; }
    std::vector<ROIInfoParam>& getROIInfoParamList() { return roiInfoParamList_; }
    void setROIInfoParamList(const std::vector<ROIInfoParam>& roiInfoParamList)
    {
        roiInfoParamList_ = roiInfoParamList;
    }
    /// @}

private:
    int streamID_ = 0;
    std::vector<ROIInfoParam> roiInfoParamList_;
};

/// One way of processing sound.
class AudioProcessParam
{
public:
    /// Which one, as the audio hardware numbers it.
    int getProcessType() const { return processType_; }
    void setProcessType(const int& processType) { processType_ = processType; }

    /// Whether it is on.
    bool getEnable() const { return enable_; }
    void setEnable(const bool& enable) { enable_ = enable; }

private:
    int processType_ = 0;
    bool enable_ = false;
};

/// One module that processes sound.
class AudioProcessInfo
{
public:
    /// The module, as the audio hardware numbers it.
    int getModuleId() const { return moduleId_; }
    void setModuleId(int moduleId) { moduleId_ = moduleId; }

    /// Whether the device supports it; the document says "SupportFlag".
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// What it does. The setter lacks the "a" that the getter has.
    /// @{
    const std::vector<AudioProcessParam>& getProcessParamList() const { return processParamList_; }
    std::vector<AudioProcessParam>& getProcessParamList() { return processParamList_; }
    void setProcessParmList(const std::vector<AudioProcessParam>& processParamList)
    {
        processParamList_ = processParamList;
    }
    /// @}

private:
    int moduleId_ = 0;
    bool enableFlag_ = false;
    std::vector<AudioProcessParam> processParamList_;
};

/// The loudhailer of a camera.
class LoudhailerParam
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it sounds.
    bool getLoudhailerEnableFlag() const { return loudhailerEnableFlag_; }
    void setLoudhailerEnableFlag(bool loudhailerEnableFlag) { loudhailerEnableFlag_ = loudhailerEnableFlag; }

    /// Its kind, as the device numbers it.
    int getLoudhailerType() const { return loudhailerType_; }
    void setLoudhailerType(int loudhailerType) { loudhailerType_ = loudhailerType; }

    /// How loud, as the device scales it.
    int getVolume() const { return volume_; }
    void setVolume(int volume) { volume_ = volume; }

private:
    int cameraId_ = 0;
    bool loudhailerEnableFlag_ = false;
    int loudhailerType_ = 0;
    int volume_ = 0;
};

/// The tone arm of a camera.
class ToneArmParam
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it sounds.
    bool getToneArmEnableFlag() const { return toneArmEnableFlag_; }
    void setToneArmEnableFlag(bool toneArmEnableFlag) { toneArmEnableFlag_ = toneArmEnableFlag; }

    /// Its kind, as the device numbers it.
    int getToneArmType() const { return toneArmType_; }
    void setToneArmType(int toneArmType) { toneArmType_ = toneArmType; }

    /// How loud, as the device scales it.
    int getVolume() const { return volume_; }
    void setVolume(int volume) { volume_ = volume; }

private:
    int cameraId_ = 0;
    bool toneArmEnableFlag_ = false;
    int toneArmType_ = 0;
    int volume_ = 0;
};
