#pragma once

/// @file
/// The records of local displays.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <string>
#include <vector>

/// A channel that a window shows.
class LiveVideoChannel
{
public:
    /// The channel's number on its device.
    int getChannelID() const { return channelID_; }
    void setChannelID(int channelID) { channelID_ = channelID; }

    /// The device's identity on the network.
    const std::string& getDeviceID() const { return deviceID_; }
    void setDeviceID(const std::string& deviceID) { deviceID_ = deviceID; }

private:
    int channelID_ = 0;
    std::string deviceID_;
};

/// A window of a layout.
class LayoutWindow
{
public:
    /// The window's number on the monitor.
    int getWinId() const { return winId_; }
    void setWinId(int winId) { winId_ = winId; }

    /// What it shows, one after the other.
    /// @{
    const std::vector<LiveVideoChannel>& getLiveVideoChannelList() const { return liveVideoChannelList_; }
    std::vector<LiveVideoChannel>& getLiveVideoChannelList() { return liveVideoChannelList_; }
    void setLiveVideoChannelList(const std::vector<LiveVideoChannel>& liveVideoChannelList)
    {
        liveVideoChannelList_ = liveVideoChannelList;
    }
    /// @}

private:
    int winId_ = 0;
    std::vector<LiveVideoChannel> liveVideoChannelList_;
};

/// An arrangement of windows with live pictures.
class LiveVideoLayout
{
public:
    /// The layout's name.
    const std::string& getLayoutName() const { return layoutName_; }
    void setLayoutName(const std::string& layoutName) { layoutName_ = layoutName; }

    /// The user who made it.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// How the windows are arranged, as the device numbers it.
    int getLayoutMode() const { return layoutMode_; }
    void setLayoutMode(int layoutMode) { layoutMode_ = layoutMode; }

    /// Who may use it, as the device numbers it.
    int getAccessControlType() const { return accessControlType_; }
    void setAccessControlType(int accessControlType) { accessControlType_ = accessControlType; }

    /// Number of windows; carried as it is, whatever their list holds.
    int getLayoutWindowNum() const { return layoutWindowNum_; }
    void setLayoutWindowNum(int layoutWindowNum) { layoutWindowNum_ = layoutWindowNum; }

    /// How long a window shows one of its channels, as the device scales it.
    int getCycleScanInterval() const { return cycleScanInterval_; }
    void setCycleScanInterval(int cycleScanInterval) { cycleScanInterval_ = cycleScanInterval; }

    /// The windows.
    /// @{
    const std::vector<LayoutWindow>& getLayoutWindowList() const { return layoutWindowList_; }
    std::vector<LayoutWindow>& getLayoutWindowList() { return layoutWindowList_; }
    void setLayoutWindowList(const std::vector<LayoutWindow>& layoutWindowList)
    {
        layoutWindowList_ = layoutWindowList;
    }
    /// @}

private:
    std::string layoutName_;
    std::string userName_;
    int layoutMode_ = 0;
    int accessControlType_ = 0;
    int layoutWindowNum_ = 0;
    int cycleScanInterval_ = 0;
    std::vector<LayoutWindow> layoutWindowList_;
};

/// How a recorder shows pictures.
class DisplayParam
{
public:
    /// How pictures are put on the display, as the device numbers it.
    int getFrameMode() const { return frameMode_; }
    void setFrameMode(int frameMode) { frameMode_ = frameMode; }

    /// The kind of display, as the device numbers it.
    int getDisplayType() const { return displayType_; }
    void setDisplayType(int displayType) { displayType_ = displayType; }

    /// Pictures per second.
    int getFrameRate() const { return frameRate_; }
    void setFrameRate(int frameRate) { frameRate_ = frameRate; }

private:
    int frameMode_ = 0;
    int displayType_ = 0;
    int frameRate_ = 0;
};

/// A monitor of a recorder.
class MonitorParam
{
public:
    /// The monitor's number.
    int getMonitorId() const { return monitorId_; }
    void setMonitorId(int monitorId) { monitorId_ = monitorId; }

    /// The kind of monitor, as the device numbers it.
    int getMonitorType() const { return monitorType_; }
    void setMonitorType(int monitorType) { monitorType_ = monitorType; }

    /// The size of its picture, as the device numbers it.
    int getMonitorResolutionID() const { return monitorResolutionID_; }
    void setMonitorResolutionID(int monitorResolutionID) { monitorResolutionID_ = monitorResolutionID; }

private:
    int monitorId_ = 0;
    int monitorType_ = 0;
    int monitorResolutionID_ = 0;
};

/// A device of a video output.
class VideoDisplayDeviceInfo
{
public:
    /// The device's name.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// What it is, in words.
    const std::string& getDescription() const { return description_; }
    void setDescription(const std::string& description) { description_ = description; }

private:
    std::string deviceName_;
    std::string description_;
};

/// The video output of a camera.
class VideoDisplayConfigure
{
public:
    /// Whether the camera has a video output.
    bool getSupportFlag() const { return supportFlag_; }
    void setSupportFlag(bool supportFlag) { supportFlag_ = supportFlag; }

    /// Whether the output shows the network address.
    bool getShowIpFlag() const { return showIpFlag_; }
    void setShowIpFlag(bool showIpFlag) { showIpFlag_ = showIpFlag; }

    /// The number of the capture input that it shows.
    int getCaptureId() const { return captureId_; }
    void setCaptureId(int captureId) { captureId_ = captureId; }

    /// The mode of that input, as the device numbers it.
    int getInputMode() const { return inputMode_; }
    void setInputMode(int inputMode) { inputMode_ = inputMode; }

    /// How the picture is interpolated, as the device numbers it.
    int getInterPolation() const { return interPolation_; }
    void setInterPolation(int interPolation) { interPolation_ = interPolation; }

    /// The television system, as the device numbers it.
    int getDisplayVideoSystem() const { return displayVideoSystem_; }
    void setDisplayVideoSystem(int displayVideoSystem) { displayVideoSystem_ = displayVideoSystem; }

    /// Whether the output is switched on.
    bool getVideoOutSwitchFlag() const { return videoOutSwitchFlag_; }
    void setVideoOutSwitchFlag(bool videoOutSwitchFlag) { videoOutSwitchFlag_ = videoOutSwitchFlag; }

    /// The devices of the output.
    /// @{
    const std::vector<VideoDisplayDeviceInfo>& getVideoDisplayDeviceInfoList() const
    {
        return videoDisplayDeviceInfoList_;
    }
    std::vector<VideoDisplayDeviceInfo>& getVideoDisplayDeviceInfoList() { return videoDisplayDeviceInfoList_; }
    void setVideoDisplayDeviceInfoList(const std::vector<VideoDisplayDeviceInfo>& videoDisplayDeviceInfoList)
    {
        videoDisplayDeviceInfoList_ = videoDisplayDeviceInfoList;
    }
    /// @}

private:
    bool supportFlag_ = false;
    bool showIpFlag_ = false;
    int captureId_ = 0;
    int inputMode_ = 0;
    int interPolation_ = 0;
    int displayVideoSystem_ = 0;
    bool videoOutSwitchFlag_ = false;
    std::vector<VideoDisplayDeviceInfo> videoDisplayDeviceInfoList_;
};
