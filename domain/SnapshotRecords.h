#pragma once

/// @file
/// The records of snapshots: files, searches and single pictures.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked. Times are
/// milliseconds since 1970-01-01 00:00:00 UTC unless told otherwise; the documents lose the low bits of those above 2
/// to the power of 53.

#include "domain/CoreRecords.h"
#include "domain/RecordRecords.h"

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
