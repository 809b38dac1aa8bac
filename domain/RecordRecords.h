#pragma once

/// @file
/// The records of recordings: search, results, files, disks and policies.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked. Times are seconds
/// since 1970-01-01 00:00:00 UTC unless told otherwise.

#include "domain/AlarmRecords.h"
#include "domain/CoreRecords.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// A kind of alarm: its name, and the two numbers that stand for it.
class AlarmExType
{
public:
    /// Name of the kind.
    const std::string& getAlarmExTypeName() const { return alarmExTypeName_; }
    void setAlarmExTypeName(const std::string& alarmExTypeName) { alarmExTypeName_ = alarmExTypeName; }

    /// Group of kinds, as the devices number them.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The kind within that group.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

private:
    std::string alarmExTypeName_;
    int majorType_ = 0;
    int minorType_ = 0;
};

/// What recordings are searched for: the flat form, one file an answer.
class RecordFileSearchParam
{
public:
    /// Identity of the device whose recordings are searched.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Name of that device.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Name of that camera.
    const std::string& getCameraName() const { return cameraName_; }
    void setCameraName(const std::string& cameraName) { cameraName_ = cameraName; }

    /// Address of the device, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// Name of the file.
    const std::string& getRecordFileName() const { return recordFileName_; }
    void setRecordFileName(const std::string& recordFileName) { recordFileName_ = recordFileName; }

    /// Begin of the span that is searched.
    unsigned long getStartTime() const { return startTime_; }
    void setStartTime(unsigned long startTime) { startTime_ = startTime; }

    /// End of that span.
    unsigned long getEndTime() const { return endTime_; }
    void setEndTime(unsigned long endTime) { endTime_ = endTime; }

    /// Why the device records, as it numbers the reasons.
    int getRecordType() const { return recordType_; }
    void setRecordType(int recordType) { recordType_ = recordType; }

    /// Number of the alarm that started the recording.
    int getAlarmId() const { return alarmId_; }
    void setAlarmId(int alarmId) { alarmId_ = alarmId; }

    /// Kind of that alarm, as the device numbers it.
    int getAlarmType() const { return alarmType_; }
    void setAlarmType(int alarmType) { alarmType_ = alarmType; }

private:
    std::string deviceId_;
    std::string deviceName_;
    int cameraId_ = 0;
    std::string cameraName_;
    std::string deviceIp_;
    std::string recordFileName_;
    unsigned long startTime_ = 0;
    unsigned long endTime_ = 0;
    int recordType_ = 0;
    int alarmId_ = 0;
    int alarmType_ = 0;
};

/// One recorded file, as the flat search finds it.
class RecordFile
{
public:
    /// Number of the file in the answer.
    int getId() const { return id_; }
    void setId(int id) { id_ = id; }

    /// Identity of the device that holds the recording.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Name of that device.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Name of that camera.
    const std::string& getCameraName() const { return cameraName_; }
    void setCameraName(const std::string& cameraName) { cameraName_ = cameraName; }

    /// Address of the device, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// Name of the file.
    const std::string& getRecordFileName() const { return recordFileName_; }
    void setRecordFileName(const std::string& recordFileName) { recordFileName_ = recordFileName; }

    /// When the recording began.
    long getRecordTime() const { return recordTime_; }
    void setRecordTime(long recordTime) { recordTime_ = recordTime; }

    /// Why the device recorded, as it numbers the reasons.
    int getRecordType() const { return recordType_; }
    void setRecordType(int recordType) { recordType_ = recordType; }

    /// Number of the alarm that started the recording.
    int getAlarmId() const { return alarmId_; }
    void setAlarmId(int alarmId) { alarmId_ = alarmId; }

    /// Kind of that alarm, as the device numbers it.
    int getAlarmType() const { return alarmType_; }
    void setAlarmType(int alarmType) { alarmType_ = alarmType; }

    /// Size of the file in bytes. The document carries its low 32 bits, as a signed number: from 2 GiB on the size
    /// does not survive.
    long getFileByteLength() const { return fileByteLength_; }
    void setFileByteLength(long fileByteLength) { fileByteLength_ = fileByteLength; }

    /// Length of the recording, in the unit of the device.
    int getFileTimeLength() const { return fileTimeLength_; }
    void setFileTimeLength(int fileTimeLength) { fileTimeLength_ = fileTimeLength; }

private:
    int id_ = 0;
    std::string deviceId_;
    std::string deviceName_;
    int cameraId_ = 0;
    std::string cameraName_;
    std::string deviceIp_;
    std::string recordFileName_;
    long recordTime_ = 0;
    int recordType_ = 0;
    int alarmId_ = 0;
    int alarmType_ = 0;
    long fileByteLength_ = 0;
    int fileTimeLength_ = 0;
};

/// One entry of a log of recordings.
class RecordLogInfo
{
public:
    /// Number of the entry.
    int getId() const { return id_; }
    void setId(int id) { id_ = id; }

    /// Identity of the device that the entry is about.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Name of that device.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Name of that camera.
    const std::string& getCameraName() const { return cameraName_; }
    void setCameraName(const std::string& cameraName) { cameraName_ = cameraName; }

    /// Address of the device, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// When the entry was made.
    unsigned long getLogTime() const { return logTime_; }
    void setLogTime(unsigned long logTime) { logTime_ = logTime; }

    /// Kind of the entry, as the device numbers it.
    int getLogType() const { return logType_; }
    void setLogType(int logType) { logType_ = logType; }

    /// What is told.
    const std::string& getLogInformation() const { return logInformation_; }
    void setLogInformation(const std::string& logInformation) { logInformation_ = logInformation; }

private:
    int id_ = 0;
    std::string deviceId_;
    std::string deviceName_;
    int deviceType_ = 0;
    int cameraId_ = 0;
    std::string cameraName_;
    std::string deviceIp_;
    unsigned long logTime_ = 0;
    int logType_ = 0;
    std::string logInformation_;
};

/// What recordings are searched for: the form that is answered with stretches of time.
class RecordQueryCondition
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
    unsigned long getRecordBeginTime() const { return recordBeginTime_; }
    void setRecordBeginTime(unsigned long recordBeginTime) { recordBeginTime_ = recordBeginTime; }

    /// End of that span.
    unsigned long getRecordEndTime() const { return recordEndTime_; }
    void setRecordEndTime(unsigned long recordEndTime) { recordEndTime_ = recordEndTime; }

    /// Gap up to which stretches count as one, in the unit of the device.
    unsigned long getRecordSegmentInterval() const { return recordSegmentInterval_; }
    void setRecordSegmentInterval(unsigned long recordSegmentInterval)
    {
        recordSegmentInterval_ = recordSegmentInterval;
    }

    /// How finely stretches are told apart, as the device numbers it.
    int getRecordQueryTimePrecision() const { return recordQueryTimePrecision_; }
    void setRecordQueryTimePrecision(int recordQueryTimePrecision)
    {
        recordQueryTimePrecision_ = recordQueryTimePrecision;
    }

    /// Whether only recordings count that are locked against being overwritten.
    bool getLockFlag() const { return lockFlag_; }
    void setLockFlag(bool lockFlag) { lockFlag_ = lockFlag; }

    /// Whether only recordings of alarms count.
    bool getAlarmFlag() const { return alarmFlag_; }
    void setAlarmFlag(bool alarmFlag) { alarmFlag_ = alarmFlag; }

    /// The begin of the span as a calendar shows it in UTC, made of `RecordBeginTime`.
    TimeStruct getStructRecordBeginTime() const;

    /// The same for its end.
    TimeStruct getStructRecordEndTime() const;

    /// The kinds of alarm whose recordings count.
    /// @{
    const std::vector<AlarmExType>& getAlarmExTypeList() const { return alarmExTypeList_; }
    std::vector<AlarmExType>& getAlarmExTypeList() { return alarmExTypeList_; }
    void setAlarmExTypeList(const std::vector<AlarmExType>& alarmExTypeList) { alarmExTypeList_ = alarmExTypeList; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    unsigned long recordBeginTime_ = 0;
    unsigned long recordEndTime_ = 0;
    unsigned long recordSegmentInterval_ = 0;
    int recordQueryTimePrecision_ = 0;
    bool lockFlag_ = false;
    bool alarmFlag_ = false;
    std::vector<AlarmExType> alarmExTypeList_;
};

/// One stretch of recorded time.
class RecordTimeSegment
{
public:
    /// When it begins.
    unsigned long getRecordBeginTime() const { return recordBeginTime_; }
    void setRecordBeginTime(unsigned long recordBeginTime) { recordBeginTime_ = recordBeginTime; }

    /// When it ends.
    unsigned long getRecordEndTime() const { return recordEndTime_; }
    void setRecordEndTime(unsigned long recordEndTime) { recordEndTime_ = recordEndTime; }

    /// Whether it is locked against being overwritten.
    bool getRecordLockFlag() const { return recordLockFlag_; }
    void setRecordLockFlag(bool recordLockFlag) { recordLockFlag_ = recordLockFlag; }

    /// Whether an alarm started it.
    bool getRecordAlarmFlag() const { return recordAlarmFlag_; }
    void setRecordAlarmFlag(bool recordAlarmFlag) { recordAlarmFlag_ = recordAlarmFlag; }

    /// Amount of data, in the unit of the device.
    unsigned long getRecordDataLength() const { return recordDataLength_; }
    void setRecordDataLength(unsigned long recordDataLength) { recordDataLength_ = recordDataLength; }

    /// When it begins, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructRecordBeginTime() const { return structRecordBeginTime_; }
    TimeStruct& getStructRecordBeginTime() { return structRecordBeginTime_; }
    void setStructRecordBeginTime(const TimeStruct& structRecordBeginTime)
    {
        structRecordBeginTime_ = structRecordBeginTime;
    }
    /// @}

    /// When it ends, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructRecordEndTime() const { return structRecordEndTime_; }
    TimeStruct& getStructRecordEndTime() { return structRecordEndTime_; }
    void setStructRecordEndTime(const TimeStruct& structRecordEndTime) { structRecordEndTime_ = structRecordEndTime; }
    /// @}

private:
    unsigned long recordBeginTime_ = 0;
    unsigned long recordEndTime_ = 0;
    bool recordLockFlag_ = false;
    bool recordAlarmFlag_ = false;
    unsigned long recordDataLength_ = 0;
    TimeStruct structRecordBeginTime_;
    TimeStruct structRecordEndTime_;
};

/// What one camera has recorded: the answer to a `RecordQueryCondition`.
class RecordQueryResult
{
public:
    /// Identity of the device that holds the recordings.
    const std::string& getDeviceID() const { return deviceID_; }
    void setDeviceID(const std::string& deviceID) { deviceID_ = deviceID; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// The recorded stretches, in the order in which they were added.
    const std::vector<RecordTimeSegment>& getRecordTimeSegment() const { return recordTimeSegment_; }
    /// Appends a stretch.
    void addRecordTimeSegment(const RecordTimeSegment& segment) { recordTimeSegment_.push_back(segment); }

private:
    std::string deviceID_;
    std::string deviceIP_;
    int cameraID_ = 0;
    std::vector<RecordTimeSegment> recordTimeSegment_;
};

/// One stretch of recorded time that a playback channel is to play.
class RecordInfo
{
public:
    /// Identity of the device that holds the recording.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// When it begins.
    unsigned long getRecordBeginTime() const { return recordBeginTime_; }
    void setRecordBeginTime(unsigned long recordBeginTime) { recordBeginTime_ = recordBeginTime; }

    /// When it ends.
    unsigned long getRecordEndTime() const { return recordEndTime_; }
    void setRecordEndTime(unsigned long recordEndTime) { recordEndTime_ = recordEndTime; }

    /// Whether it is locked against being overwritten.
    bool getLockFlag() const { return lockFlag_; }
    void setLockFlag(bool lockFlag) { lockFlag_ = lockFlag; }

    /// Whether an alarm started it.
    bool getAlarmFlag() const { return alarmFlag_; }
    void setAlarmFlag(bool alarmFlag) { alarmFlag_ = alarmFlag; }

    /// When it begins, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructRecordBeginTime() const { return structRecordBeginTime_; }
    TimeStruct& getStructRecordBeginTime() { return structRecordBeginTime_; }
    void setStructRecordBeginTime(const TimeStruct& structRecordBeginTime)
    {
        structRecordBeginTime_ = structRecordBeginTime;
    }
    /// @}

    /// When it ends, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructRecordEndTime() const { return structRecordEndTime_; }
    TimeStruct& getStructRecordEndTime() { return structRecordEndTime_; }
    void setStructRecordEndTime(const TimeStruct& structRecordEndTime) { structRecordEndTime_ = structRecordEndTime; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    unsigned long recordBeginTime_ = 0;
    unsigned long recordEndTime_ = 0;
    bool lockFlag_ = false;
    bool alarmFlag_ = false;
    TimeStruct structRecordBeginTime_;
    TimeStruct structRecordEndTime_;
};

/// A disk, or a directory on one, that recordings lie on.
class RecordDirInfo
{
public:
    /// Kind of the disk, as the device numbers it.
    int getDiskType() const { return diskType_; }
    void setDiskType(int diskType) { diskType_ = diskType; }

    /// Name of the disk or directory; of any length. Null is an empty name.
    const std::string& getDiskName() const { return diskName_; }
    void setDiskName(const char* diskName) { diskName_ = diskName != nullptr ? diskName : ""; }

    /// Group of disks that it belongs to.
    int getGroupId() const { return groupId_; }
    void setGroupId(int groupId) { groupId_ = groupId; }

    /// Room for recordings, in the unit of the device.
    int getUsableSpace() const { return usableSpace_; }
    void setUsableSpace(int usableSpace) { usableSpace_ = usableSpace; }

    /// Room that is still free, in the same unit.
    int getFreeSpace() const { return freeSpace_; }
    void setFreeSpace(int freeSpace) { freeSpace_ = freeSpace; }

    /// What the disk is used for, as the device numbers it.
    int getAttribute() const { return attribute_; }
    void setAttribute(int attribute) { attribute_ = attribute; }

    /// Whether it is in use.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// Free room below which the device raises an alarm, in the unit of the device.
    int getAlarmThreshold() const { return alarmThreshold_; }
    void setAlarmThreshold(int alarmThreshold) { alarmThreshold_ = alarmThreshold; }

    /// State of the disk, as the device numbers it.
    int getStatus() const { return status_; }
    void setStatus(int status) { status_ = status; }

    /// Kind of its file system, as the device numbers it; the document calls it "FileSystem".
    int getFileSystemFormat() const { return fileSystemFormat_; }
    void setFileSystemFormat(int fileSystemFormat) { fileSystemFormat_ = fileSystemFormat; }

private:
    int diskType_ = 0;
    std::string diskName_;
    int groupId_ = 0;
    int usableSpace_ = 0;
    int freeSpace_ = 0;
    int attribute_ = 0;
    bool enableFlag_ = false;
    int alarmThreshold_ = 0;
    int status_ = 0;
    int fileSystemFormat_ = 0;
};

/// A disk, or a directory on one, as the devices describe it that prefix every name of the document with "ZT_".
class ZT_RecordDirInfo
{
public:
    /// Kind of the disk, as the device numbers it.
    int getDiskType() const { return diskType_; }
    void setDiskType(int diskType) { diskType_ = diskType; }

    /// Name of the disk or directory; of any length.
    const std::string& getDiskName() const { return diskName_; }
    void setDiskName(const std::string& diskName) { diskName_ = diskName; }

    /// Group of disks that it belongs to.
    int getGroupId() const { return groupId_; }
    void setGroupId(int groupId) { groupId_ = groupId; }

    /// Room for recordings, in the unit of the device.
    int getUsableSpace() const { return usableSpace_; }
    void setUsableSpace(int usableSpace) { usableSpace_ = usableSpace; }

    /// Room that is still free, in the same unit.
    int getFreeSpace() const { return freeSpace_; }
    void setFreeSpace(int freeSpace) { freeSpace_ = freeSpace; }

    /// What the disk is used for, as the device numbers it.
    int getAttribute() const { return attribute_; }
    void setAttribute(int attribute) { attribute_ = attribute; }

    /// Whether it is in use.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// Free room below which the device raises an alarm, in the unit of the device.
    int getAlarmThreshold() const { return alarmThreshold_; }
    void setAlarmThreshold(int alarmThreshold) { alarmThreshold_ = alarmThreshold; }

    /// State of the disk, as the device numbers it.
    int getStatus() const { return status_; }
    void setStatus(int status) { status_ = status; }

    /// Kind of its file system, as the device numbers it; the document calls it "ZT_FileSystem".
    int getFileSystemFormat() const { return fileSystemFormat_; }
    void setFileSystemFormat(int fileSystemFormat) { fileSystemFormat_ = fileSystemFormat; }

private:
    int diskType_ = 0;
    std::string diskName_;
    int groupId_ = 0;
    int usableSpace_ = 0;
    int freeSpace_ = 0;
    int attribute_ = 0;
    bool enableFlag_ = false;
    int alarmThreshold_ = 0;
    int status_ = 0;
    int fileSystemFormat_ = 0;
};

/// One recorded file with the disk that it lies on.
class RecordFileEx
{
public:
    /// Identity of the device that holds the file.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// When the recording begins.
    unsigned long getRecordFileBeginTime() const { return recordFileBeginTime_; }
    void setRecordFileBeginTime(unsigned long recordFileBeginTime) { recordFileBeginTime_ = recordFileBeginTime; }

    /// Name of the file.
    const std::string& getRecordFileName() const { return recordFileName_; }
    void setRecordFileName(const std::string& recordFileName) { recordFileName_ = recordFileName; }

    /// The disk or directory that it lies on.
    /// @{
    const RecordDirInfo& getRecordDirInfo() const { return recordDirInfo_; }
    RecordDirInfo& getRecordDirInfo() { return recordDirInfo_; }
    void setRecordDirInfo(const RecordDirInfo& recordDirInfo) { recordDirInfo_ = recordDirInfo; }
    /// @}

    /// When the recording begins, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getStructRecordFileBeginTime() const { return structRecordFileBeginTime_; }
    TimeStruct& getStructRecordFileBeginTime() { return structRecordFileBeginTime_; }
    void setStructRecordFileBeginTime(const TimeStruct& structRecordFileBeginTime)
    {
        structRecordFileBeginTime_ = structRecordFileBeginTime;
    }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    unsigned long recordFileBeginTime_ = 0;
    std::string recordFileName_;
    RecordDirInfo recordDirInfo_;
    TimeStruct structRecordFileBeginTime_;
};

/// What a camera has stored, in sum: the span from its first recording to its last.
class RecordSummaryInfo
{
public:
    /// Identity of the device that holds the recordings.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Begin of the first recording.
    unsigned long getRecordBeginTime() const { return recordBeginTime_; }
    void setRecordBeginTime(unsigned long recordBeginTime) { recordBeginTime_ = recordBeginTime; }

    /// End of the last recording.
    unsigned long getRecordEndTime() const { return recordEndTime_; }
    void setRecordEndTime(unsigned long recordEndTime) { recordEndTime_ = recordEndTime; }

    /// Begin of the first recording, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getRecordBeginTimeStruct() const { return recordBeginTimeStruct_; }
    TimeStruct& getRecordBeginTimeStruct() { return recordBeginTimeStruct_; }
    void setRecordBeginTimeStruct(const TimeStruct& recordBeginTimeStruct)
    {
        recordBeginTimeStruct_ = recordBeginTimeStruct;
    }
    /// @}

    /// End of the last recording, as the calendar of the device shows it.
    /// @{
    const TimeStruct& getRecordEndTimeStruct() const { return recordEndTimeStruct_; }
    TimeStruct& getRecordEndTimeStruct() { return recordEndTimeStruct_; }
    void setRecordEndTimeStruct(const TimeStruct& recordEndTimeStruct) { recordEndTimeStruct_ = recordEndTimeStruct; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int cameraId_ = 0;
    unsigned long recordBeginTime_ = 0;
    unsigned long recordEndTime_ = 0;
    TimeStruct recordBeginTimeStruct_;
    TimeStruct recordEndTimeStruct_;
};

/// What a camera records when an alarm comes.
class AlarmRecordPolicy
{
public:
    /// How much is recorded from before the alarm, and how long recording goes on after it, in the unit of the device.
    /// @{
    int getAlarmPreRecordTime() const { return alarmPreRecordTime_; }
    int getAlarmDelayRecordTime() const { return alarmDelayRecordTime_; }
    void setAlarmRecordTime(int alarmPreRecordTime, int alarmDelayRecordTime)
    {
        alarmPreRecordTime_ = alarmPreRecordTime;
        alarmDelayRecordTime_ = alarmDelayRecordTime;
    }
    /// @}

    /// Whether the files are locked against being overwritten.
    bool isAlarmRecordFileLocked() const { return alarmRecordFileLocked_; }
    void setAlarmRecordFileLockedState(bool alarmRecordFileLocked) { alarmRecordFileLocked_ = alarmRecordFileLocked; }

    /// Whether alarms are recorded at all.
    bool isAlarmRecordOpened() const { return alarmRecordOpened_; }
    void setAlarmRecordOpenState(bool alarmRecordOpened) { alarmRecordOpened_ = alarmRecordOpened; }

    /// The alarms that count. The setter copies its argument, which stays as it is.
    /// @{
    const std::vector<AlarmEvent>& getAlarmEventList() const { return alarmEventList_; }
    std::vector<AlarmEvent>& getAlarmEventList() { return alarmEventList_; }
    void setAlarmEventList(std::vector<AlarmEvent>& alarmEventList) { alarmEventList_ = alarmEventList; }
    /// @}

private:
    int alarmPreRecordTime_ = 0;
    int alarmDelayRecordTime_ = 0;
    bool alarmRecordFileLocked_ = false;
    bool alarmRecordOpened_ = false;
    std::vector<AlarmEvent> alarmEventList_;
};

/// What a camera records by the clock.
class ScheduleRecordPolicy
{
public:
    /// Whether the schedule is in force.
    bool isScheduleRecordOpened() const { return scheduleRecordOpened_; }
    void setScheduleRecordOpenState(bool scheduleRecordOpened) { scheduleRecordOpened_ = scheduleRecordOpened; }

    /// Kind of recording, as the device numbers it.
    int getScheduleRecordType() const { return scheduleRecordType_; }
    void setScheduleRecordType(int scheduleRecordType) { scheduleRecordType_ = scheduleRecordType; }

    /// When it records.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

private:
    bool scheduleRecordOpened_ = false;
    int scheduleRecordType_ = 0;
    ScheduleTimeParam scheduleTimeParam_;
};

/// What is recorded of one camera, and how it is kept.
class RecordPolicy
{
public:
    /// Identity of the device that records.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How many days recordings are kept.
    int getSaveDays() const { return saveDays_; }
    void setSaveDays(int saveDays) { saveDays_ = saveDays; }

    /// Whether sound is recorded too.
    bool isRecordAudioOpened() const { return recordAudioOpened_; }
    void enableRecordAudio(bool recordAudioOpened) { recordAudioOpened_ = recordAudioOpened; }

    /// Whether the oldest recordings are overwritten when the disk is full.
    bool getCycleWriteFlag() const { return cycleWriteFlag_; }
    void setCycleWriteFlag(bool cycleWriteFlag) { cycleWriteFlag_ = cycleWriteFlag; }

    /// Whether a second copy is kept.
    bool getIsRedundancy() const { return isRedundancy_; }
    void setIsRedundancy(bool isRedundancy) { isRedundancy_ = isRedundancy; }

    /// Number of the group of disks that recordings go to.
    int getDiskGroupId() const { return diskGroupId_; }
    void setDiskGroupId(int diskGroupId) { diskGroupId_ = diskGroupId; }

    /// Number of the stream that is recorded.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// What is recorded when an alarm comes.
    /// @{
    const AlarmRecordPolicy& getAlarmRecordPolicy() const { return alarmRecordPolicy_; }
    AlarmRecordPolicy& getAlarmRecordPolicy() { return alarmRecordPolicy_; }
    void setAlarmRecordPolicy(const AlarmRecordPolicy& alarmRecordPolicy) { alarmRecordPolicy_ = alarmRecordPolicy; }
    /// @}

    /// What is recorded by the clock.
    /// @{
    const ScheduleRecordPolicy& getScheduleRecordPolicy() const { return scheduleRecordPolicy_; }
    ScheduleRecordPolicy& getScheduleRecordPolicy() { return scheduleRecordPolicy_; }
    void setScheduleRecordPolicy(const ScheduleRecordPolicy& scheduleRecordPolicy)
    {
        scheduleRecordPolicy_ = scheduleRecordPolicy;
    }
    /// @}

private:
    std::string deviceId_;
    int cameraId_ = 0;
    int saveDays_ = 0;
    bool recordAudioOpened_ = false;
    bool cycleWriteFlag_ = false;
    bool isRedundancy_ = false;
    int diskGroupId_ = 0;
    int streamId_ = 0;
    AlarmRecordPolicy alarmRecordPolicy_;
    ScheduleRecordPolicy scheduleRecordPolicy_;
};

/// When a camera is recorded by the clock, as one command sets it.
class ScheduleRecordParam
{
public:
    /// Identity of the device that records.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether the schedule is in force.
    bool getEnableRecord() const { return enableRecord_; }
    void setEnableRecord(bool enableRecord) { enableRecord_ = enableRecord; }

    /// Kind of recording, as the device numbers it.
    int getScheduleRecordType() const { return scheduleRecordType_; }
    void setScheduleRecordType(int scheduleRecordType) { scheduleRecordType_ = scheduleRecordType; }

    /// Whether sound is recorded too.
    bool getEnableRecordAudio() const { return enableRecordAudio_; }
    void setEnableRecordAudio(bool enableRecordAudio) { enableRecordAudio_ = enableRecordAudio; }

    /// When it records.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

private:
    std::string deviceId_;
    int cameraId_ = 0;
    bool enableRecord_ = false;
    int scheduleRecordType_ = 0;
    bool enableRecordAudio_ = false;
    ScheduleTimeParam scheduleTimeParam_;
};

/// How recordings are written to files.
class WritePolicy
{
public:
    /// How files are laid on the disks, as the device numbers it.
    int getStoragePolicy() const { return storagePolicy_; }
    void setStoragePolicy(int storagePolicy) { storagePolicy_ = storagePolicy; }

    /// What ends a file, as the device numbers it.
    int getRecordLengthMode() const { return recordLengthMode_; }
    void setRecordLengthMode(int recordLengthMode) { recordLengthMode_ = recordLengthMode; }

    /// Largest size of a file, in the unit of the device.
    int getRecordFileMaxSize() const { return recordFileMaxSize_; }
    void setRecordFileMaxSize(int recordFileMaxSize) { recordFileMaxSize_ = recordFileMaxSize; }

    /// Longest time in a file, in the unit of the device.
    int getRecordFileTime() const { return recordFileTime_; }
    void setRecordFileTime(int recordFileTime) { recordFileTime_ = recordFileTime; }

    /// What the names of files end in.
    const std::string& getFileNameSuffix() const { return fileNameSuffix_; }
    void setFileNameSuffix(const std::string& fileNameSuffix) { fileNameSuffix_ = fileNameSuffix; }

    /// Format of files, as the device numbers it.
    int getRecordFormatType() const { return recordFormatType_; }
    void setRecordFormatType(int recordFormatType) { recordFormatType_ = recordFormatType; }

private:
    int storagePolicy_ = 0;
    int recordLengthMode_ = 0;
    int recordFileMaxSize_ = 0;
    int recordFileTime_ = 0;
    std::string fileNameSuffix_;
    int recordFormatType_ = 0;
};

/// How long recordings are kept.
class SavePolicy
{
public:
    /// In days.
    int getRecordSaveDays() const { return recordSaveDays_; }
    void setRecordSaveDays(int recordSaveDays) { recordSaveDays_ = recordSaveDays; }

private:
    int recordSaveDays_ = 0;
};

/// How much disk one camera gets.
class SpacePolicy
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The most that it gets, in the unit of the device.
    int getMaxDiskSize() const { return maxDiskSize_; }
    void setMaxDiskSize(int maxDiskSize) { maxDiskSize_ = maxDiskSize; }

    /// Share of that for recordings by the clock, in percent.
    float getScheduleRecordDiskSizePercent() const { return scheduleRecordDiskSizePercent_; }
    void setScheduleRecordDiskSizePercent(float scheduleRecordDiskSizePercent)
    {
        scheduleRecordDiskSizePercent_ = scheduleRecordDiskSizePercent;
    }

    /// Share of that for recordings of alarms, in percent.
    float getAlarmRecordDiskSizePercent() const { return alarmRecordDiskSizePercent_; }
    void setAlarmRecordDiskSizePercent(float alarmRecordDiskSizePercent)
    {
        alarmRecordDiskSizePercent_ = alarmRecordDiskSizePercent;
    }

private:
    int cameraId_ = 0;
    int maxDiskSize_ = 0;
    float scheduleRecordDiskSizePercent_ = 0;
    float alarmRecordDiskSizePercent_ = 0;
};

/// How a device stores recordings.
class RecordStorageParam
{
public:
    /// How they are written to files.
    /// @{
    const WritePolicy& getWritePolicy() const { return writePolicy_; }
    WritePolicy& getWritePolicy() { return writePolicy_; }
    void setWritePolicy(const WritePolicy& writePolicy) { writePolicy_ = writePolicy; }
    /// @}

    /// How long they are kept.
    /// @{
    const SavePolicy& getSavePolicy() const { return savePolicy_; }
    SavePolicy& getSavePolicy() { return savePolicy_; }
    void setSavePolicy(const SavePolicy& savePolicy) { savePolicy_ = savePolicy; }
    /// @}

    /// How much disk each camera gets.
    /// @{
    const std::vector<SpacePolicy>& getSpacePolicyList() const { return spacePolicyList_; }
    std::vector<SpacePolicy>& getSpacePolicyList() { return spacePolicyList_; }
    void setSpacePolicyList(const std::vector<SpacePolicy>& spacePolicyList) { spacePolicyList_ = spacePolicyList; }
    /// @}

private:
    WritePolicy writePolicy_;
    SavePolicy savePolicy_;
    std::vector<SpacePolicy> spacePolicyList_;
};

/// How the recordings of a camera are encoded.
class RecordQualityParam
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The picture.
    /// @{
    const VideoEncodeQuality& getVideoEncodeQuality() const { return videoEncodeQuality_; }
    VideoEncodeQuality& getVideoEncodeQuality() { return videoEncodeQuality_; }
    void setVideoEncodeQuality(const VideoEncodeQuality& videoEncodeQuality)
    {
        videoEncodeQuality_ = videoEncodeQuality;
    }
    /// @}

    /// The sound.
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

/// Asks a device to record a camera now.
class ManualRecordParameter
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How long, in the unit of the device. The document carries it as if it were a point in time.
    unsigned long getRecordDuration() const { return recordDuration_; }
    void setRecordDuration(unsigned long recordDuration) { recordDuration_ = recordDuration; }

    /// Number of the stream that is recorded.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

private:
    int cameraId_ = 0;
    unsigned long recordDuration_ = 0;
    int streamId_ = 0;
};
