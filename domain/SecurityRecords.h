#pragma once

/// @file
/// The records of users, security and logs.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked. Passwords are
/// texts like any other: nothing here checks, hashes or wipes them.

#include "domain/CoreRecords.h"
#include "domain/NetworkRecords.h"

#include <cstdint>
#include <string>
#include <vector>

/// An account of a device. To its setters a null text is an empty one.
class PrivilegeUser
{
public:
    /// The account's number on the device.
    int getUserId() const { return userId_; }
    void setUserId(int userId) { userId_ = userId; }

    /// The name to log on with.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const char* userName) { userName_ = userName != nullptr ? userName : ""; }

    /// The password to log on with, as the caller gives it: neither checked nor hashed.
    const std::string& getPassword() const { return password_; }
    void setPassword(const char* password) { password_ = password != nullptr ? password : ""; }

    /// The group whose rights the account has.
    int getGroupId() const { return groupId_; }
    void setGroupId(int groupId) { groupId_ = groupId; }

    /// Whether the account is locked.
    bool getLockFlag() const { return lockFlag_; }
    void setLockFlag(bool lockFlag) { lockFlag_ = lockFlag; }

    /// How long, or until when, it is locked, in the device's unit.
    unsigned long getLockTime() const { return lockTime_; }
    void setLockTime(unsigned long lockTime) { lockTime_ = lockTime; }

    /// Whether it may be logged on several times at once.
    bool getMultiLoginFlag() const { return multiLoginFlag_; }
    void setMultiLoginFlag(bool multiLoginFlag) { multiLoginFlag_ = multiLoginFlag; }

    /// A description, as set by the user.
    const std::string& getDesc() const { return desc_; }
    void setDesc(const char* desc) { desc_ = desc != nullptr ? desc : ""; }

private:
    int userId_ = 0;
    std::string userName_;
    std::string password_;
    int groupId_ = 0;
    bool lockFlag_ = false;
    unsigned long lockTime_ = 0;
    bool multiLoginFlag_ = false;
    std::string desc_;
};

/// An account of a device; the twin of PrivilegeUser in the documents with the prefix "ZT_".
class ZT_PrivilegeUser
{
public:
    /// The account's number on the device.
    int getUserId() const { return userId_; }
    void setUserId(int userId) { userId_ = userId; }

    /// The name to log on with.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// The password to log on with, as the caller gives it: neither checked nor hashed.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

    /// The group whose rights the account has.
    int getGroupId() const { return groupId_; }
    void setGroupId(int groupId) { groupId_ = groupId; }

    /// Whether the account is locked.
    bool getLockFlag() const { return lockFlag_; }
    void setLockFlag(bool lockFlag) { lockFlag_ = lockFlag; }

    /// How long, or until when, it is locked, in the device's unit.
    unsigned long getLockTime() const { return lockTime_; }
    void setLockTime(unsigned long lockTime) { lockTime_ = lockTime; }

    /// Whether it may be logged on several times at once.
    bool getMultiLoginFlag() const { return multiLoginFlag_; }
    void setMultiLoginFlag(bool multiLoginFlag) { multiLoginFlag_ = multiLoginFlag; }

    /// A description, as set by the user.
    const std::string& getDesc() const { return desc_; }
    void setDesc(const std::string& desc) { desc_ = desc; }

private:
    int userId_ = 0;
    std::string userName_;
    std::string password_;
    int groupId_ = 0;
    bool lockFlag_ = false;
    unsigned long lockTime_ = 0;
    bool multiLoginFlag_ = false;
    std::string desc_;
};

/// What the accounts of a group may do.
class Privilege
{
public:
    /// The group's number on the device.
    int getGroupId() const { return groupId_; }
    void setGroupId(int groupId) { groupId_ = groupId; }

    /// The rights, each in the words of the device.
    /// @{
    const std::vector<std::string>& getPrivileges() const { return privileges_; }
    std::vector<std::string>& getPrivileges() { return privileges_; }
    /// @}

private:
    int groupId_ = 0;
    std::vector<std::string> privileges_;
};

/// A group of accounts that share their rights.
class PrivilegeGroup
{
public:
    /// The group's number on the device.
    int getGroupId() const { return groupId_; }
    void setGroupId(int groupId) { groupId_ = groupId; }

    /// Its name, as set by the user.
    const std::string& getGroupName() const { return groupName_; }
    void setGroupName(const std::string& groupName) { groupName_ = groupName; }

    /// A description, as set by the user.
    const std::string& getDesc() const { return desc_; }
    void setDesc(const std::string& desc) { desc_ = desc; }

private:
    int groupId_ = 0;
    std::string groupName_;
    std::string desc_;
};

/// Which addresses may reach a device.
class NetworkPrivilegeInfo
{
public:
    /// Whether the ranges are let in or kept out, as the device numbers it.
    int getIpConfigType() const { return ipConfigType_; }
    void setIpConfigType(int ipConfigType) { ipConfigType_ = ipConfigType; }

    /// The ranges, copied in place of what @p ipRangeInfo held.
    void getIpRangeInfo(std::vector<IpRangeInfo>& ipRangeInfo) const { ipRangeInfo = ipRangeInfo_; }
    void setIpRangeInfo(const std::vector<IpRangeInfo>& ipRangeInfo) { ipRangeInfo_ = ipRangeInfo; }

private:
    int ipConfigType_ = 0;
    std::vector<IpRangeInfo> ipRangeInfo_;
};

/// How a device lets users in.
class SecurityParam
{
public:
    /// How users log on, as the device numbers it.
    int getLoginMode() const { return loginMode_; }
    void setLoginMode(int loginMode) { loginMode_ = loginMode; }

    /// How the device serves its pages, as it numbers it.
    int getWebMode() const { return webMode_; }
    void setWebMode(int webMode) { webMode_ = webMode; }

    /// Whether the device encrypts what it sends.
    bool getCommunicationEncryptFlag() const { return communicationEncryptFlag_; }
    void setCommunicationEncryptFlag(bool communicationEncryptFlag)
    {
        communicationEncryptFlag_ = communicationEncryptFlag;
    }

    /// How long an account stays locked, in the device's unit.
    int getAccountsLockTime() const { return accountsLockTime_; }
    void setAccountsLockTime(int accountsLockTime) { accountsLockTime_ = accountsLockTime; }

    /// When a locked account is free again, in the device's unit.
    int getAccountsUnlockTime() const { return accountsUnlockTime_; }
    void setAccountsUnlockTime(int accountsUnlockTime) { accountsUnlockTime_ = accountsUnlockTime; }

    /// How many failed attempts in a row lock an account.
    int getMaxSeriesLoginErrorCount() const { return maxSeriesLoginErrorCount_; }
    void setMaxSeriesLoginErrorCount(int maxSeriesLoginErrorCount)
    {
        maxSeriesLoginErrorCount_ = maxSeriesLoginErrorCount;
    }

    /// Whether failed attempts lock an account at all.
    bool getAccountsLockEnableFlag() const { return accountsLockEnableFlag_; }
    void setAccountsLockEnableFlag(bool accountsLockEnableFlag) { accountsLockEnableFlag_ = accountsLockEnableFlag; }

    /// What the device demands of a password, as it numbers it.
    int getPasswordVerifyMode() const { return passwordVerifyMode_; }
    void setPasswordVerifyMode(int passwordVerifyMode) { passwordVerifyMode_ = passwordVerifyMode; }

private:
    int loginMode_ = 0;
    int webMode_ = 0;
    bool communicationEncryptFlag_ = false;
    int accountsLockTime_ = 0;
    int accountsUnlockTime_ = 0;
    int maxSeriesLoginErrorCount_ = 0;
    bool accountsLockEnableFlag_ = false;
    int passwordVerifyMode_ = 0;
};

/// How a device protects what it sends.
class CommunicationSecurityParam
{
public:
    /// How the device serves its pages, as it numbers it.
    int getWebMode() const { return webMode_; }
    void setWebMode(const int& webMode) { webMode_ = webMode; }

    /// Whether the device encrypts what it sends.
    bool getCommunicationEncryptFlag() const { return communicationEncryptFlag_; }
    void setCommunicationEncryptFlag(const bool& communicationEncryptFlag)
    {
        communicationEncryptFlag_ = communicationEncryptFlag;
    }

private:
    int webMode_ = 0;
    bool communicationEncryptFlag_ = false;
};

/// The security of a device: at present that of what it sends.
class DeviceSecurityParam
{
public:
    /// How it protects what it sends.
    /// @{
    const CommunicationSecurityParam& getCommunicationSecurityParam() const { return communicationSecurityParam_; }
    CommunicationSecurityParam& getCommunicationSecurityParam() { return communicationSecurityParam_; }
    void setCommunicationSecurityParam(const CommunicationSecurityParam& communicationSecurityParam)
    {
        communicationSecurityParam_ = communicationSecurityParam;
    }
    /// @}

private:
    CommunicationSecurityParam communicationSecurityParam_;
};

/// A name with its password.
class SystemUser
{
public:
    /// The name to log on with.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// The password to log on with, as the caller gives it.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

private:
    std::string userName_;
    std::string password_;
};

/// The change of a password.
class SystemUserParam
{
public:
    /// Whose password it is, with the one in force.
    /// @{
    const SystemUser& getSystemUser() const { return systemUser_; }
    SystemUser& getSystemUser() { return systemUser_; }
    void setSystemUser(const SystemUser& systemUser) { systemUser_ = systemUser; }
    /// @}

    /// The password that takes its place, as the caller gives it.
    const std::string& getNewPassword() const { return newPassword_; }
    void setNewPassword(const std::string& newPassword) { newPassword_ = newPassword; }

private:
    SystemUser systemUser_;
    std::string newPassword_;
};

/// A user, and the endpoint that the user comes from.
class User
{
public:
    /// Where the user comes from, as the peer names it.
    const std::string& getSourceId() const { return sourceId_; }
    void setSourceId(const std::string& sourceId) { sourceId_ = sourceId; }

    /// The address that the user comes from, as text.
    const std::string& getIP() const { return ip_; }
    void setIP(const std::string& ip) { ip_ = ip; }

    /// The port that the user comes from.
    std::uint16_t getPort() const { return port_; }
    void setPort(std::uint16_t port) { port_ = port; }

    /// The name to log on with.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// The password to log on with, as the caller gives it.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

private:
    std::string sourceId_;
    std::string ip_;
    std::uint16_t port_ = 0;
    std::string userName_;
    std::string password_;
};

/// An entry of a device's log.
class LogInfo
{
public:
    /// The identity of the device that the log is kept on.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// The number of the camera that the entry is about.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Who was logged on.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// The kind of event, as the device numbers it.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The event within its kind, as the device numbers it.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// When it happened, in seconds.
    unsigned long getLogTime() const { return logTime_; }
    void setLogTime(unsigned long logTime) { logTime_ = logTime; }

    /// What happened, in words.
    const std::string& getLogData() const { return logData_; }
    void setLogData(const std::string& logData) { logData_ = logData; }

private:
    std::string deviceId_;
    std::string deviceIp_;
    int cameraId_ = 0;
    std::string userName_;
    int majorType_ = 0;
    int minorType_ = 0;
    unsigned long logTime_ = 0;
    std::string logData_;
};

/// An entry of a device's log, with the change of a parameter that it tells of.
class LogInfoEx
{
public:
    /// The identity of the device that the log is kept on.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// The number of the camera that the entry is about.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Who was logged on.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// The kind of event, as the device numbers it.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The event within its kind, as the device numbers it.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// What happened, in words.
    const std::string& getLogData() const { return logData_; }
    void setLogData(const std::string& logData) { logData_ = logData; }

    /// The parameter before the change, in words.
    const std::string& getOldParamInfo() const { return oldParamInfo_; }
    void setOldParamInfo(const std::string& oldParamInfo) { oldParamInfo_ = oldParamInfo; }

    /// The parameter after the change, in words.
    const std::string& getNewParamInfo() const { return newParamInfo_; }
    void setNewParamInfo(const std::string& newParamInfo) { newParamInfo_ = newParamInfo; }

    /// When it happened.
    /// @{
    const TimeStruct& getLogTime() const { return logTime_; }
    TimeStruct& getLogTime() { return logTime_; }
    void setLogTime(const TimeStruct& logTime) { logTime_ = logTime; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIp_;
    int cameraId_ = 0;
    std::string userName_;
    int majorType_ = 0;
    int minorType_ = 0;
    std::string logData_;
    std::string oldParamInfo_;
    std::string newParamInfo_;
    TimeStruct logTime_;
};

/// A search of a device's log.
class LogRequestParam
{
public:
    /// The identity of the device whose log is searched.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// The number of the camera that the entries are about.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Who was logged on.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// By which of the other fields to select, as the device numbers it.
    int getSelectMode() const { return selectMode_; }
    void setSelectMode(int selectMode) { selectMode_ = selectMode; }

    /// The kind of event, as the device numbers it.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The event within its kind, as the device numbers it.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// The first second that the search is to cover.
    unsigned long getStartTime() const { return startTime_; }
    void setStartTime(unsigned long startTime) { startTime_ = startTime; }

    /// The last second that the search is to cover.
    unsigned long getEndTime() const { return endTime_; }
    void setEndTime(unsigned long endTime) { endTime_ = endTime; }

private:
    std::string deviceId_;
    std::string deviceIp_;
    int cameraId_ = 0;
    std::string userName_;
    int selectMode_ = 0;
    int majorType_ = 0;
    int minorType_ = 0;
    unsigned long startTime_ = 0;
    unsigned long endTime_ = 0;
};

/// A search of a device's log between two points in time.
class LogRequestParamEx
{
public:
    /// The identity of the device whose log is searched.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// The number of the camera that the entries are about.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Who was logged on.
    const std::string& getUserName() const { return userName_; }
    void setUserName(const std::string& userName) { userName_ = userName; }

    /// By which of the other fields to select, as the device numbers it.
    int getSelectMode() const { return selectMode_; }
    void setSelectMode(int selectMode) { selectMode_ = selectMode; }

    /// The kind of event, as the device numbers it.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The event within its kind, as the device numbers it.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// From when on the search is to cover.
    /// @{
    const TimeStruct& getStartTime() const { return startTime_; }
    TimeStruct& getStartTime() { return startTime_; }
    void setStartTime(const TimeStruct& startTime) { startTime_ = startTime; }
    /// @}

    /// Until when the search is to cover.
    /// @{
    const TimeStruct& getEndTime() const { return endTime_; }
    TimeStruct& getEndTime() { return endTime_; }
    void setEndTime(const TimeStruct& endTime) { endTime_ = endTime; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIp_;
    int cameraId_ = 0;
    std::string userName_;
    int selectMode_ = 0;
    int majorType_ = 0;
    int minorType_ = 0;
    TimeStruct startTime_;
    TimeStruct endTime_;
};
