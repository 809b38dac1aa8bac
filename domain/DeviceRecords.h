#pragma once

/// @file
/// The records of a device's identity and abilities.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/CoreRecords.h"
#include "domain/MediaRecords.h"

#include <cstdint>
#include <string>
#include <vector>

/// One camera of a device.
class CameraDevice
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Its name, as set by the user.
    const std::string& getCameraName() const { return cameraName_; }
    void setCameraName(const std::string& cameraName) { cameraName_ = cameraName; }

    /// Its maker's name for the model.
    const std::string& getCameraModel() const { return cameraModel_; }
    void setCameraModel(const std::string& cameraModel) { cameraModel_ = cameraModel; }

    /// Its television system, as the device numbers it.
    int getVideoSystem() const { return videoSystem_; }
    void setVideoSystem(int videoSystem) { videoSystem_ = videoSystem; }

private:
    int cameraId_ = 0;
    std::string cameraName_;
    std::string cameraModel_;
    int videoSystem_ = 0;
};

/// What a device is: identity, endpoint, equipment and state.
class DeviceBaseInfo
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its name, as set by the user.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// Its control port.
    std::uint16_t getDevicePort() const { return devicePort_; }
    void setDevicePort(std::uint16_t devicePort) { devicePort_ = devicePort; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

    /// Name of the account by which the device is reached.
    const std::string& getUserID() const { return userID_; }
    void setUserID(const std::string& userID) { userID_ = userID; }

    /// Password of that account, in clear.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

    /// The maker's identity.
    const std::string& getManufacturerId() const { return manufacturerId_; }
    void setManufacturerId(const std::string& manufacturerId) { manufacturerId_ = manufacturerId; }

    /// The maker's name.
    const std::string& getManufacturerName() const { return manufacturerName_; }
    void setManufacturerName(const std::string& manufacturerName) { manufacturerName_ = manufacturerName; }

    /// Model of the product.
    const std::string& getProductModel() const { return productModel_; }
    void setProductModel(const std::string& productModel) { productModel_ = productModel; }

    /// Description of the product.
    const std::string& getProductDescription() const { return productDescription_; }
    void setProductDescription(const std::string& productDescription) { productDescription_ = productDescription; }

    /// Hardware address, as text.
    const std::string& getMACAddress() const { return macAddress_; }
    void setMACAddress(const std::string& macAddress) { macAddress_ = macAddress; }

    /// Bar code on the device.
    const std::string& getBarCode() const { return barCode_; }
    void setBarCode(const std::string& barCode) { barCode_ = barCode; }

    /// When the device was made, as text.
    const std::string& getProductionTime() const { return productionTime_; }
    void setProductionTime(const std::string& productionTime) { productionTime_ = productionTime; }

    /// Model of the hardware.
    const std::string& getHardwareModel() const { return hardwareModel_; }
    void setHardwareModel(const std::string& hardwareModel) { hardwareModel_ = hardwareModel; }

    /// Description of the hardware.
    const std::string& getHardwareDescription() const { return hardwareDescription_; }
    void setHardwareDescription(const std::string& hardwareDescription) { hardwareDescription_ = hardwareDescription; }

    /// Number of cameras.
    int getCameraNum() const { return cameraNum_; }
    void setCameraNum(int cameraNum) { cameraNum_ = cameraNum; }

    /// Number of alarm inputs.
    int getAlarmInNum() const { return alarmInNum_; }
    void setAlarmInNum(int alarmInNum) { alarmInNum_ = alarmInNum; }

    /// Number of alarm outputs.
    int getAlarmOutNum() const { return alarmOutNum_; }
    void setAlarmOutNum(int alarmOutNum) { alarmOutNum_ = alarmOutNum; }

    /// Number of RS-485 ports.
    int getRS485Num() const { return rS485Num_; }
    void setRS485Num(int rS485Num) { rS485Num_ = rS485Num; }

    /// State bits, as the device defines them.
    std::uint64_t getState() const { return state_; }
    void setState(std::uint64_t state) { state_ = state; }

    /// Versions of hardware and firmware.
    /// @{
    const Version& getVersion() const { return version_; }
    Version& getVersion() { return version_; }
    void setVersion(const Version& version) { version_ = version; }
    /// @}

    /// The cameras.
    /// @{
    const std::vector<CameraDevice>& getCameraDeviceList() const { return cameraDeviceList_; }
    std::vector<CameraDevice>& getCameraDeviceList() { return cameraDeviceList_; }
    void setCameraDeviceList(const std::vector<CameraDevice>& cameraDeviceList)
    {
        cameraDeviceList_ = cameraDeviceList;
    }
    /// @}

private:
    std::string deviceId_;
    std::string deviceName_;
    int deviceType_ = 0;
    std::string deviceIP_;
    std::uint16_t devicePort_ = 0;
    int ipProtoVer_ = 0;
    std::string userID_;
    std::string password_;
    std::string manufacturerId_;
    std::string manufacturerName_;
    std::string productModel_;
    std::string productDescription_;
    std::string macAddress_;
    std::string barCode_;
    std::string productionTime_;
    std::string hardwareModel_;
    std::string hardwareDescription_;
    int cameraNum_ = 0;
    int alarmInNum_ = 0;
    int alarmOutNum_ = 0;
    int rS485Num_ = 0;
    std::uint64_t state_ = 0;
    Version version_;
    std::vector<CameraDevice> cameraDeviceList_;
};

/// Whether a device has a passive infrared detector.
class PIRAlarmAbility
{
public:
    /// True if it raises alarms.
    bool getPIRAlarmSupportFlag() const { return pirAlarmSupportFlag_; }
    void setPIRAlarmSupportFlag(bool pirAlarmSupportFlag) { pirAlarmSupportFlag_ = pirAlarmSupportFlag; }

private:
    bool pirAlarmSupportFlag_ = false;
};

/// A colour without transparency, as the device scales it.
class RGBColor
{
public:
    /// Share of red.
    int getR() const { return r_; }
    void setR(int r) { r_ = r; }

    /// Share of green.
    int getG() const { return g_; }
    void setG(int g) { g_ = g; }

    /// Share of blue.
    int getB() const { return b_; }
    void setB(int b) { b_ = b; }

private:
    int r_ = 0;
    int g_ = 0;
    int b_ = 0;
};

/// What a device can do to hide areas of its picture.
class BlindAbilityV2
{
public:
    /// How many areas it can hide.
    int getMaxBlindAreaNum() const { return maxBlindAreaNum_; }
    void setMaxBlindAreaNum(int maxBlindAreaNum) { maxBlindAreaNum_ = maxBlindAreaNum; }

    /// How large they may be, as the device scales it.
    int getBlindAreaRate() const { return blindAreaRate_; }
    void setBlindAreaRate(int blindAreaRate) { blindAreaRate_ = blindAreaRate; }

    /// The kinds of cover that it knows.
    /// @{
    const std::vector<int>& getTypeList() const { return typeList_; }
    std::vector<int>& getTypeList() { return typeList_; }
    void setTypeList(const std::vector<int>& typeList) { typeList_ = typeList; }
    /// @}

    /// The colours of cover.
    /// @{
    const std::vector<RGBColor>& getRGBColorList() const { return rgbColorList_; }
    std::vector<RGBColor>& getRGBColorList() { return rgbColorList_; }
    void setRGBColorList(const std::vector<RGBColor>& rgbColorList) { rgbColorList_ = rgbColorList; }
    /// @}

    /// The degrees of opacity.
    /// @{
    const std::vector<int>& getAlphaList() const { return alphaList_; }
    std::vector<int>& getAlphaList() { return alphaList_; }
    void setAlphaList(const std::vector<int>& alphaList) { alphaList_ = alphaList; }
    /// @}

    /// The sizes of a mosaic's tiles.
    /// @{
    const std::vector<MosaicParam>& getMosaicParamList() const { return mosaicParamList_; }
    std::vector<MosaicParam>& getMosaicParamList() { return mosaicParamList_; }
    void setMosaicParamList(const std::vector<MosaicParam>& mosaicParamList) { mosaicParamList_ = mosaicParamList; }
    /// @}

private:
    int maxBlindAreaNum_ = 0;
    int blindAreaRate_ = 0;
    std::vector<int> typeList_;
    std::vector<RGBColor> rgbColorList_;
    std::vector<int> alphaList_;
    std::vector<MosaicParam> mosaicParamList_;
};

/// One camera among those of several devices.
class CameraInfo
{
public:
    /// The identity of the device that the camera belongs to.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on that device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

private:
    std::string deviceId_;
    int cameraId_ = 0;
};
