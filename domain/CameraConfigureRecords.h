#pragma once

/// @file
/// The record of a camera's whole configuration, which is made of those of several families.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/DeviceRecords.h"
#include "domain/DisplayRecords.h"
#include "domain/MediaRecords.h"
#include "domain/SnapshotRecords.h"

#include <vector>

/// A camera's whole configuration.
class CameraConfigureEx
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The television system, as the device numbers it.
    int getVideoSystem() const { return videoSystem_; }
    void setVideoSystem(int videoSystem) { videoSystem_ = videoSystem; }

    /// Number of the channel of its sound.
    int getAudioChannelId() const { return audioChannelId_; }
    void setAudioChannelId(int audioChannelId) { audioChannelId_ = audioChannelId; }

    /// Version of the configuration.
    int getVersion() const { return version_; }
    void setVersion(int version) { version_ = version; }

    /// What kind of scene motion is detected in, as the device numbers it.
    int getDetectionEnvironment() const { return detectionEnvironment_; }
    void setDetectionEnvironment(int detectionEnvironment) { detectionEnvironment_ = detectionEnvironment; }

    /// How pictures are taken.
    /// @{
    const SnapShotConfig& getSnapShotConfig() const { return snapShotConfig_; }
    SnapShotConfig& getSnapShotConfig() { return snapShotConfig_; }
    void setSnapShotConfig(const SnapShotConfig& snapShotConfig) { snapShotConfig_ = snapShotConfig; }
    /// @}

    /// How raw pictures are handed out.
    /// @{
    const OriginalYUVConfigure& getOriginalYUVConfigure() const { return originalYUVConfigure_; }
    OriginalYUVConfigure& getOriginalYUVConfigure() { return originalYUVConfigure_; }
    void setOriginalYUVConfigure(const OriginalYUVConfigure& originalYUVConfigure)
    {
        originalYUVConfigure_ = originalYUVConfigure;
    }
    /// @}

    /// The video output.
    /// @{
    const VideoDisplayConfigure& getVideoDisplayConfigure() const { return videoDisplayConfigure_; }
    VideoDisplayConfigure& getVideoDisplayConfigure() { return videoDisplayConfigure_; }
    void setVideoDisplayConfigure(const VideoDisplayConfigure& videoDisplayConfigure)
    {
        videoDisplayConfigure_ = videoDisplayConfigure;
    }
    /// @}

    /// What it can do to hide areas of its picture.
    /// @{
    const BlindAbilityConfigure& getBlindAbilityConfigure() const { return blindAbilityConfigure_; }
    BlindAbilityConfigure& getBlindAbilityConfigure() { return blindAbilityConfigure_; }
    void setBlindAbilityConfigure(const BlindAbilityConfigure& blindAbilityConfigure)
    {
        blindAbilityConfigure_ = blindAbilityConfigure;
    }
    /// @}

    /// How finely it detects motion.
    /// @{
    const MotionDetectionAbilityConfigure& getMotionDetectionAbilityConfigure() const
    {
        return motionDetectionAbilityConfigure_;
    }
    MotionDetectionAbilityConfigure& getMotionDetectionAbilityConfigure() { return motionDetectionAbilityConfigure_; }
    void setMotionDetectionAbilityConfigure(const MotionDetectionAbilityConfigure& motionDetectionAbilityConfigure)
    {
        motionDetectionAbilityConfigure_ = motionDetectionAbilityConfigure;
    }
    /// @}

    /// How pictures are captured.
    /// @{
    const std::vector<VideoCaptureConfigure>& getVideoCaptureConfigureList() const
    {
        return videoCaptureConfigureList_;
    }
    std::vector<VideoCaptureConfigure>& getVideoCaptureConfigureList() { return videoCaptureConfigureList_; }
    void setVideoCaptureConfigureList(const std::vector<VideoCaptureConfigure>& videoCaptureConfigureList)
    {
        videoCaptureConfigureList_ = videoCaptureConfigureList;
    }
    /// @}

    /// The streams.
    /// @{
    const std::vector<StreamConfigure>& getStreamConfigureList() const { return streamConfigureList_; }
    std::vector<StreamConfigure>& getStreamConfigureList() { return streamConfigureList_; }
    void setStreamConfigureList(const std::vector<StreamConfigure>& streamConfigureList)
    {
        streamConfigureList_ = streamConfigureList;
    }
    /// @}

    /// The favoured regions of each stream.
    /// @{
    const std::vector<ROIConfigure>& getROIConfigureList() const { return roiConfigureList_; }
    std::vector<ROIConfigure>& getROIConfigureList() { return roiConfigureList_; }
    void setROIConfigureList(const std::vector<ROIConfigure>& roiConfigureList)
    {
        roiConfigureList_ = roiConfigureList;
    }
    /// @}

    /// The sub-streams that scale.
    /// @{
    const std::vector<SVCStreamConfigure>& getSVCStreamConfigureList() const { return svcStreamConfigureList_; }
    std::vector<SVCStreamConfigure>& getSVCStreamConfigureList() { return svcStreamConfigureList_; }
    void setSVCStreamConfigureList(const std::vector<SVCStreamConfigure>& svcStreamConfigureList)
    {
        svcStreamConfigureList_ = svcStreamConfigureList;
    }
    /// @}

private:
    int cameraId_ = 0;
    int videoSystem_ = 0;
    int audioChannelId_ = 0;
    int version_ = 0;
    int detectionEnvironment_ = 0;
    SnapShotConfig snapShotConfig_;
    OriginalYUVConfigure originalYUVConfigure_;
    VideoDisplayConfigure videoDisplayConfigure_;
    BlindAbilityConfigure blindAbilityConfigure_;
    MotionDetectionAbilityConfigure motionDetectionAbilityConfigure_;
    std::vector<VideoCaptureConfigure> videoCaptureConfigureList_;
    std::vector<StreamConfigure> streamConfigureList_;
    std::vector<ROIConfigure> roiConfigureList_;
    std::vector<SVCStreamConfigure> svcStreamConfigureList_;
};
