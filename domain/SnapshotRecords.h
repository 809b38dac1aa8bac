#pragma once

/// @file
/// The records of snapshots: files, searches, single pictures and policies.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked. Times are
/// milliseconds since 1970-01-01 00:00:00 UTC unless told otherwise; the documents lose the low bits of those above 2
/// to the power of 53.

#include "domain/AlarmRecords.h"
#include "domain/CoreRecords.h"
#include "domain/DeviceRecords.h"
#include "domain/NetworkRecords.h"
#include "domain/RecordRecords.h"

#include <cstdint>
#include <string>
#include <vector>

/// One stored picture.
class SnapshotFile
{
public:
    /// Identity of the device that holds the picture.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// When the picture was taken.
    long long getSnapshotFileTime() const { return snapshotFileTime_; }
    void setSnapshotFileTime(long long snapshotFileTime) { snapshotFileTime_ = snapshotFileTime; }

    /// Why it was taken, as the device numbers the reasons.
    int getSnapshotPolicyType() const { return snapshotPolicyType_; }
    void setSnapshotPolicyType(int snapshotPolicyType) { snapshotPolicyType_ = snapshotPolicyType; }

    /// Whether it is locked against being overwritten.
    bool getLockFlag() const { return lockFlag_; }
    void setLockFlag(bool lockFlag) { lockFlag_ = lockFlag; }

    /// Size of the picture, in the unit of the device.
    int getSnapshotFileLength() const { return snapshotFileLength_; }
    void setSnapshotFileLength(int snapshotFileLength) { snapshotFileLength_ = snapshotFileLength; }

    /// When the picture was taken, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructSnapshotFileTime() const { return structSnapshotFileTime_; }
    TimeStruct& getStructSnapshotFileTime() { return structSnapshotFileTime_; }
    void setStructSnapshotFileTime(const TimeStruct& structSnapshotFileTime)
    {
        structSnapshotFileTime_ = structSnapshotFileTime;
    }
    /// @}

    /// The alarms for which it was taken.
    /// @{
    const std::vector<AlarmExType>& getAlarmExTypeList() const { return alarmExTypeList_; }
    std::vector<AlarmExType>& getAlarmExTypeList() { return alarmExTypeList_; }
    void setAlarmExTypeList(const std::vector<AlarmExType>& alarmExTypeList) { alarmExTypeList_ = alarmExTypeList; }
    /// @}

    /// Name of the file. No document carries it: `SnapshotFileXml` makes it of the other fields.
    const std::string& getSnapshotFileName() const { return snapshotFileName_; }
    void setSnapshotFileName(const std::string& snapshotFileName) { snapshotFileName_ = snapshotFileName; }

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    long long snapshotFileTime_ = 0;
    int snapshotPolicyType_ = 0;
    bool lockFlag_ = false;
    int snapshotFileLength_ = 0;
    TimeStruct structSnapshotFileTime_;
    std::vector<AlarmExType> alarmExTypeList_;
    std::string snapshotFileName_;
};

/// One stretch of stored pictures.
class SnapshotFileEx
{
public:
    /// Identity of the device that holds the pictures.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// When the first picture was taken.
    long long getSnapshotFileBeginTime() const { return snapshotFileBeginTime_; }
    void setSnapshotFileBeginTime(long long snapshotFileBeginTime) { snapshotFileBeginTime_ = snapshotFileBeginTime; }

    /// When the last picture was taken.
    long long getSnapshotFileEndTime() const { return snapshotFileEndTime_; }
    void setSnapshotFileEndTime(long long snapshotFileEndTime) { snapshotFileEndTime_ = snapshotFileEndTime; }

    /// Number of pictures.
    int getSnapshotCount() const { return snapshotCount_; }
    void setSnapshotCount(int snapshotCount) { snapshotCount_ = snapshotCount; }

    /// When they were taken, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructSnapshotFileTime() const { return structSnapshotFileTime_; }
    TimeStruct& getStructSnapshotFileTime() { return structSnapshotFileTime_; }
    void setStructSnapshotFileTime(const TimeStruct& structSnapshotFileTime)
    {
        structSnapshotFileTime_ = structSnapshotFileTime;
    }
    /// @}

    /// The alarm for which they were taken; the document does not carry its name.
    /// @{
    const AlarmExType& getSnapshotAlarmExType() const { return snapshotAlarmExType_; }
    AlarmExType& getSnapshotAlarmExType() { return snapshotAlarmExType_; }
    void setSnapshotAlarmExType(const AlarmExType& snapshotAlarmExType) { snapshotAlarmExType_ = snapshotAlarmExType; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    long long snapshotFileBeginTime_ = 0;
    long long snapshotFileEndTime_ = 0;
    int snapshotCount_ = 0;
    TimeStruct structSnapshotFileTime_;
    AlarmExType snapshotAlarmExType_;
};

/// What stored pictures are searched for.
class SnapshotQueryCondition
{
public:
    /// Identity of the device that is asked.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Begin of the span that is searched.
    long long getQueryBeginTime() const { return queryBeginTime_; }
    void setQueryBeginTime(long long queryBeginTime) { queryBeginTime_ = queryBeginTime; }

    /// End of that span.
    long long getQueryEndTime() const { return queryEndTime_; }
    void setQueryEndTime(long long queryEndTime) { queryEndTime_ = queryEndTime; }

    /// Why the pictures were taken, as the device numbers the reasons.
    int getSnapshotType() const { return snapshotType_; }
    void setSnapshotType(int snapshotType) { snapshotType_ = snapshotType; }

    /// Whether only pictures count that are locked against being overwritten.
    bool getLockFlag() const { return lockFlag_; }
    void setLockFlag(bool lockFlag) { lockFlag_ = lockFlag; }

    /// The begin of the span as a calendar shows it in UTC, made of `QueryBeginTime`.
    TimeStruct getStructQueryBeginTime() const;

    /// The same for its end.
    TimeStruct getStructQueryEndTime() const;

    /// The kinds of alarm whose pictures count.
    /// @{
    const std::vector<AlarmExType>& getAlarmExTypeList() const { return alarmExTypeList_; }
    std::vector<AlarmExType>& getAlarmExTypeList() { return alarmExTypeList_; }
    void setAlarmExTypeList(const std::vector<AlarmExType>& alarmExTypeList) { alarmExTypeList_ = alarmExTypeList; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    long long queryBeginTime_ = 0;
    long long queryEndTime_ = 0;
    int snapshotType_ = 0;
    bool lockFlag_ = false;
    std::vector<AlarmExType> alarmExTypeList_;
};

/// Asks for one stored picture.
class SnapshotDownParam
{
public:
    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// When the picture was taken; the document calls it "SnapBeginTime".
    long long getSnapTime() const { return snapTime_; }
    void setSnapTime(long long snapTime) { snapTime_ = snapTime; }

    /// Number of the picture among those of that time.
    int getSnapIndex() const { return snapIndex_; }
    void setSnapIndex(int snapIndex) { snapIndex_ = snapIndex; }

    /// The alarm for which it was taken; the document does not carry its name.
    /// @{
    const AlarmExType& getSnapAlarmType() const { return snapAlarmType_; }
    AlarmExType& getSnapAlarmType() { return snapAlarmType_; }
    void setSnapAlarmType(const AlarmExType& snapAlarmType) { snapAlarmType_ = snapAlarmType; }
    /// @}

private:
    int cameraID_ = 0;
    long long snapTime_ = 0;
    int snapIndex_ = 0;
    AlarmExType snapAlarmType_;
};

/// The room that a device has for pictures.
class SnapshotSpaceInfo
{
public:
    /// Room for pictures, in the unit of the device.
    int getUseableSpace() const { return useableSpace_; }
    void setUseableSpace(int useableSpace) { useableSpace_ = useableSpace; }

private:
    int useableSpace_ = 0;
};

/// How pictures are taken.
class SnapshotParameter
{
public:
    /// Quality of the pictures, as the device scales it.
    std::uint32_t getQuality() const { return quality_; }
    void setQuality(std::uint32_t quality) { quality_ = quality; }

    /// How long pictures are taken, in the unit of the device.
    int getDuration() const { return duration_; }
    void setDuration(int duration) { duration_ = duration; }

    /// How many pictures are taken.
    int getShootTimes() const { return shootTimes_; }
    void setShootTimes(int shootTimes) { shootTimes_ = shootTimes; }

    /// Time from one picture to the next, in the unit of the device.
    int getInterval() const { return interval_; }
    void setInterval(int interval) { interval_ = interval; }

    /// Size of the pictures.
    /// @{
    const VideoResolution& getVideoResolution() const { return videoResolution_; }
    VideoResolution& getVideoResolution() { return videoResolution_; }
    void setVideoResolution(const VideoResolution& videoResolution) { videoResolution_ = videoResolution; }
    /// @}

private:
    std::uint32_t quality_ = 0;
    int duration_ = 0;
    int shootTimes_ = 0;
    int interval_ = 0;
    VideoResolution videoResolution_;
};

/// What pictures a camera takes when an alarm comes.
class AlarmSnapshotPolicy
{
public:
    /// From how long before the alarm pictures are kept, and how long they are taken after it, in the unit of the
    /// device.
    /// @{
    int getAlarmPreSnapshotTime() const { return alarmPreSnapshotTime_; }
    int getAlarmDelaySnapshotTime() const { return alarmDelaySnapshotTime_; }
    void setAlarmSnapshotTime(int alarmPreSnapshotTime, int alarmDelaySnapshotTime)
    {
        alarmPreSnapshotTime_ = alarmPreSnapshotTime;
        alarmDelaySnapshotTime_ = alarmDelaySnapshotTime;
    }
    /// @}

    /// Whether the pictures are locked against being overwritten.
    bool isAlarmSnapshotFileLocked() const { return alarmSnapshotFileLocked_; }
    void setAlarmSnapshotFileLockedState(bool alarmSnapshotFileLocked)
    {
        alarmSnapshotFileLocked_ = alarmSnapshotFileLocked;
    }

    /// Whether pictures of alarms are taken at all.
    bool isAlarmSnapshotOpened() const { return alarmSnapshotOpened_; }
    void setAlarmSnapshotOpenState(bool alarmSnapshotOpened) { alarmSnapshotOpened_ = alarmSnapshotOpened; }

    /// How they are taken.
    /// @{
    const SnapshotParameter& getSnapshotParameter() const { return snapshotParameter_; }
    SnapshotParameter& getSnapshotParameter() { return snapshotParameter_; }
    void setSnapshotParameter(const SnapshotParameter& snapshotParameter) { snapshotParameter_ = snapshotParameter; }
    /// @}

    /// The alarms that count.
    /// @{
    const std::vector<AlarmEvent>& getAlarmEventList() const { return alarmEventList_; }
    std::vector<AlarmEvent>& getAlarmEventList() { return alarmEventList_; }
    void setAlarmEventList(const std::vector<AlarmEvent>& alarmEventList) { alarmEventList_ = alarmEventList; }
    /// @}

private:
    int alarmPreSnapshotTime_ = 0;
    int alarmDelaySnapshotTime_ = 0;
    bool alarmSnapshotFileLocked_ = false;
    bool alarmSnapshotOpened_ = false;
    SnapshotParameter snapshotParameter_;
    std::vector<AlarmEvent> alarmEventList_;
};

/// What pictures a camera takes by the clock.
class ScheduleSnapshotPolicy
{
public:
    /// Whether the schedule is in force.
    bool isScheduleSnapshotOpened() const { return scheduleSnapshotOpened_; }
    void setScheduleSnapshotOpenState(bool scheduleSnapshotOpened) { scheduleSnapshotOpened_ = scheduleSnapshotOpened; }

    /// Kind of schedule, as the device numbers it.
    int getScheduleType() const { return scheduleType_; }
    void setScheduleType(int scheduleType) { scheduleType_ = scheduleType; }

    /// How the pictures are taken.
    /// @{
    const SnapshotParameter& getSnapshotParameter() const { return snapshotParameter_; }
    SnapshotParameter& getSnapshotParameter() { return snapshotParameter_; }
    void setSnapshotParameter(const SnapshotParameter& snapshotParameter) { snapshotParameter_ = snapshotParameter; }
    /// @}

    /// When they are taken.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

private:
    bool scheduleSnapshotOpened_ = false;
    int scheduleType_ = 0;
    SnapshotParameter snapshotParameter_;
    ScheduleTimeParam scheduleTimeParam_;
};

/// What pictures are taken of one camera, and how they are kept.
class SnapshotPolicy
{
public:
    /// Identity of the device that takes them.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How many days pictures are kept.
    int getSaveDays() const { return saveDays_; }
    void setSaveDays(int saveDays) { saveDays_ = saveDays; }

    /// Whether the oldest pictures are overwritten when the disk is full.
    bool getCycleWriteFlag() const { return cycleWriteFlag_; }
    void setCycleWriteFlag(bool cycleWriteFlag) { cycleWriteFlag_ = cycleWriteFlag; }

    /// Whether a second copy is kept.
    bool getIsRedundancy() const { return isRedundancy_; }
    void setIsRedundancy(bool isRedundancy) { isRedundancy_ = isRedundancy; }

    /// What is taken when an alarm comes.
    /// @{
    const AlarmSnapshotPolicy& getAlarmSnapshotPolicy() const { return alarmSnapshotPolicy_; }
    AlarmSnapshotPolicy& getAlarmSnapshotPolicy() { return alarmSnapshotPolicy_; }
    void setAlarmSnapshotPolicy(const AlarmSnapshotPolicy& alarmSnapshotPolicy)
    {
        alarmSnapshotPolicy_ = alarmSnapshotPolicy;
    }
    /// @}

    /// What is taken by the clock.
    /// @{
    const ScheduleSnapshotPolicy& getScheduleSnapshotPolicy() const { return scheduleSnapshotPolicy_; }
    ScheduleSnapshotPolicy& getScheduleSnapshotPolicy() { return scheduleSnapshotPolicy_; }
    void setScheduleSnapshotPolicy(const ScheduleSnapshotPolicy& scheduleSnapshotPolicy)
    {
        scheduleSnapshotPolicy_ = scheduleSnapshotPolicy;
    }
    /// @}

    /// Where pictures are uploaded to.
    /// @{
    const UploadPolicy& getUploadPolicy() const { return uploadPolicy_; }
    UploadPolicy& getUploadPolicy() { return uploadPolicy_; }
    void setUploadPolicy(const UploadPolicy& uploadPolicy) { uploadPolicy_ = uploadPolicy; }
    /// @}

private:
    std::string deviceId_;
    int cameraId_ = 0;
    int saveDays_ = 0;
    bool cycleWriteFlag_ = false;
    bool isRedundancy_ = false;
    AlarmSnapshotPolicy alarmSnapshotPolicy_;
    ScheduleSnapshotPolicy scheduleSnapshotPolicy_;
    UploadPolicy uploadPolicy_;
};

/// Asks a device to take pictures of a camera now.
class ManualSnapshotParameter
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How they are taken.
    /// @{
    const SnapshotParameter& getSnapshotParameter() const { return snapshotParameter_; }
    SnapshotParameter& getSnapshotParameter() { return snapshotParameter_; }
    void setSnapshotParameter(const SnapshotParameter& snapshotParameter) { snapshotParameter_ = snapshotParameter; }
    /// @}

private:
    int cameraId_ = 0;
    SnapshotParameter snapshotParameter_;
};

/// How a camera takes single pictures.
class SnapshotParam
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it takes them at all.
    bool getSnapshotEnableFlag() const { return snapshotEnableFlag_; }
    void setSnapshotEnableFlag(bool snapshotEnableFlag) { snapshotEnableFlag_ = snapshotEnableFlag; }

    /// Size of the pictures, as the device numbers it.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// Quality of the pictures, as the device scales it.
    int getQuality() const { return quality_; }
    void setQuality(int quality) { quality_ = quality; }

    /// How many pictures are taken at once.
    int getShootTimes() const { return shootTimes_; }
    void setShootTimes(int shootTimes) { shootTimes_ = shootTimes; }

    /// Format of the files, as the device numbers it.
    int getPhotoFormat() const { return photoFormat_; }
    void setPhotoFormat(int photoFormat) { photoFormat_ = photoFormat; }

private:
    int cameraId_ = 0;
    bool snapshotEnableFlag_ = false;
    int imageFormatId_ = 0;
    int quality_ = 0;
    int shootTimes_ = 0;
    int photoFormat_ = 0;
};

/// Asks a remote camera for a picture.
class RemoteSnapshotParam
{
public:
    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// Quality of the picture, as the device scales it.
    int getQuality() const { return quality_; }
    void setQuality(int quality) { quality_ = quality; }

    /// Format of the file, as the device numbers it.
    int getPhotoFormat() const { return photoFormat_; }
    void setPhotoFormat(int photoFormat) { photoFormat_ = photoFormat; }

private:
    int cameraID_ = 0;
    int quality_ = 0;
    int photoFormat_ = 0;
};

/// A server that pictures are stored on.
class SnapshotStorageParam
{
public:
    /// Kind of server, as the device numbers it.
    int getServerType() const { return serverType_; }
    void setServerType(const int& serverType) { serverType_ = serverType; }

    /// Where it is; the document calls it "ServerPath".
    const std::string& getServerAddress() const { return serverAddress_; }
    void setServerAddress(const std::string& serverAddress) { serverAddress_ = serverAddress; }

private:
    int serverType_ = 0;
    std::string serverAddress_;
};

/// The servers that pictures are stored on.
class SnapshotParamEX
{
public:
    /// In the order of the document.
    /// @{
    const std::vector<SnapshotStorageParam>& getSnapshotStorageParamList() const { return snapshotStorageParamList_; }
    std::vector<SnapshotStorageParam>& getSnapshotStorageParamList() { return snapshotStorageParamList_; }
    void setSnapshotStorageParamList(const std::vector<SnapshotStorageParam>& snapshotStorageParamList)
    {
        snapshotStorageParamList_ = snapshotStorageParamList;
    }
    /// @}

private:
    std::vector<SnapshotStorageParam> snapshotStorageParamList_;
};

/// The part of the pictures in the configuration of a camera.
class SnapShotConfig
{
public:
    /// Number of the stream that pictures are taken from.
    int getSnapShotStreamId() const { return snapShotStreamId_; }
    void setSnapShotStreamId(int snapShotStreamId) { snapShotStreamId_ = snapShotStreamId; }

private:
    int snapShotStreamId_ = 0;
};

/// How a traffic camera takes pictures when it is triggered. Times are in the unit of the device.
class SnapshotTriggerParameter
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Quality of the pictures, as the device scales it.
    int getQuality() const { return quality_; }
    void setQuality(int quality) { quality_ = quality; }

    /// How many pictures are taken.
    int getPicNumber() const { return picNumber_; }
    void setPicNumber(int picNumber) { picNumber_ = picNumber; }

    /// Whether the flash is used.
    bool getSparkFlag() const { return sparkFlag_; }
    void setSparkFlag(bool sparkFlag) { sparkFlag_ = sparkFlag; }

    /// Time from the trigger to the first picture.
    int getTriggerDelay() const { return triggerDelay_; }
    void setTriggerDelay(int triggerDelay) { triggerDelay_ = triggerDelay; }

    /// Time from the trigger to the exposure.
    int getExposalDelay() const { return exposalDelay_; }
    void setExposalDelay(int exposalDelay) { exposalDelay_ = exposalDelay; }

    /// Number of the output that the flash is connected to.
    int getSparkIOId() const { return sparkIOId_; }
    void setSparkIOId(int sparkIOId) { sparkIOId_ = sparkIOId; }

    /// Time that the flash takes to reload.
    int getSparkReloadTime() const { return sparkReloadTime_; }
    void setSparkReloadTime(int sparkReloadTime) { sparkReloadTime_ = sparkReloadTime; }

    /// Time from one picture to the next.
    int getSnapshotInterval() const { return snapshotInterval_; }
    void setSnapshotInterval(int snapshotInterval) { snapshotInterval_ = snapshotInterval; }

    /// How long the flash lasts.
    int getSparkDuration() const { return sparkDuration_; }
    void setSparkDuration(int sparkDuration) { sparkDuration_ = sparkDuration; }

    /// Kind of flash, as the device numbers it.
    int getSparkType() const { return sparkType_; }
    void setSparkType(int sparkType) { sparkType_ = sparkType; }

    /// Numbers of the inputs that trigger.
    /// @{
    const std::vector<int>& getAlarmInIdList() const { return alarmInIdList_; }
    std::vector<int>& getAlarmInIdList() { return alarmInIdList_; }
    void setAlarmInIdList(const std::vector<int>& alarmInIdList) { alarmInIdList_ = alarmInIdList; }
    /// @}

    /// How long the shutter is open. This and what follows stands in a TrafficSnapshotPolicy only.
    int getShutterTime() const { return shutterTime_; }
    void setShutterTime(int shutterTime) { shutterTime_ = shutterTime; }

    /// Gain of the sensor, as the device scales it.
    int getGain() const { return gain_; }
    void setGain(int gain) { gain_ = gain; }

    /// State of the flash, as the device numbers it.
    int getSparkState() const { return sparkState_; }
    void setSparkState(int sparkState) { sparkState_ = sparkState; }

    /// Time from the trigger to the flash.
    int getSparkDelay() const { return sparkDelay_; }
    void setSparkDelay(int sparkDelay) { sparkDelay_ = sparkDelay; }

private:
    int cameraId_ = 0;
    int quality_ = 0;
    int picNumber_ = 0;
    bool sparkFlag_ = false;
    int triggerDelay_ = 0;
    int exposalDelay_ = 0;
    int sparkIOId_ = 0;
    int sparkReloadTime_ = 0;
    int snapshotInterval_ = 0;
    int sparkDuration_ = 0;
    int sparkType_ = 0;
    std::vector<int> alarmInIdList_;
    int shutterTime_ = 0;
    int gain_ = 0;
    int sparkState_ = 0;
    int sparkDelay_ = 0;
};

/// What triggers the pictures of a traffic camera.
class TrafficSnapshotPolicy
{
public:
    /// One for each camera.
    /// @{
    const std::vector<SnapshotTriggerParameter>& getSnapshotTriggerParameterList() const
    {
        return snapshotTriggerParameterList_;
    }
    std::vector<SnapshotTriggerParameter>& getSnapshotTriggerParameterList() { return snapshotTriggerParameterList_; }
    void setSnapshotTriggerParameterList(const std::vector<SnapshotTriggerParameter>& snapshotTriggerParameterList)
    {
        snapshotTriggerParameterList_ = snapshotTriggerParameterList;
    }
    /// @}

private:
    std::vector<SnapshotTriggerParameter> snapshotTriggerParameterList_;
};
