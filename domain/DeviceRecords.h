#pragma once

/// @file
/// The records of a device's identity, abilities and state.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/CoreRecords.h"
#include "domain/MediaRecords.h"
#include "domain/PtzRecords.h"

#include <cstdint>
#include <map>
#include <string>
#include <utility>
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
    int getRS485Num() const { return rs485Num_; }
    void setRS485Num(int rs485Num) { rs485Num_ = rs485Num; }

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
    int rs485Num_ = 0;
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

/// What a device is, in short: identity and equipment.
class DeviceSummaryInfo
{
public:
    /// Its name, as set by the user.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

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

    /// Model of the hardware.
    const std::string& getHardwareModel() const { return hardwareModel_; }
    void setHardwareModel(const std::string& hardwareModel) { hardwareModel_ = hardwareModel; }

    /// Description of the hardware.
    const std::string& getHardwareDescription() const { return hardwareDescription_; }
    void setHardwareDescription(const std::string& hardwareDescription) { hardwareDescription_ = hardwareDescription; }

    /// Hardware address, as text.
    const std::string& getMACAddress() const { return macAddress_; }
    void setMACAddress(const std::string& macAddress) { macAddress_ = macAddress; }

    /// Bar code on the device.
    const std::string& getBarCode() const { return barCode_; }
    void setBarCode(const std::string& barCode) { barCode_ = barCode; }

    /// Serial number.
    const std::string& getSN() const { return sn_; }
    void setSN(const std::string& sn) { sn_ = sn; }

    /// When the device was made, as text.
    const std::string& getProductionTime() const { return productionTime_; }
    void setProductionTime(const std::string& productionTime) { productionTime_ = productionTime; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

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
    int getRS485Num() const { return rs485Num_; }
    void setRS485Num(int rs485Num) { rs485Num_ = rs485Num; }

    /// Number of RS-232 ports.
    int getRS232Num() const { return rs232Num_; }
    void setRS232Num(int rs232Num) { rs232Num_ = rs232Num; }

    /// Number of network cards.
    int getNetworkCardNum() const { return networkCardNum_; }
    void setNetworkCardNum(int networkCardNum) { networkCardNum_ = networkCardNum; }

    /// Its television system, as the device numbers it.
    int getVideoSystem() const { return videoSystem_; }
    void setVideoSystem(int videoSystem) { videoSystem_ = videoSystem; }

    /// The numbers of the RS-485 ports.
    /// @{
    const std::vector<int>& getRS485ComIdList() const { return rs485ComIdList_; }
    std::vector<int>& getRS485ComIdList() { return rs485ComIdList_; }
    void setRS485ComIdList(const std::vector<int>& rs485ComIdList) { rs485ComIdList_ = rs485ComIdList; }
    /// @}

    /// Versions of hardware and firmware.
    /// @{
    const Version& getVersion() const { return version_; }
    Version& getVersion() { return version_; }
    void setVersion(const Version& version) { version_ = version; }
    /// @}

private:
    std::string deviceName_;
    std::string deviceId_;
    std::string manufacturerId_;
    std::string manufacturerName_;
    std::string productModel_;
    std::string productDescription_;
    std::string hardwareModel_;
    std::string hardwareDescription_;
    std::string macAddress_;
    std::string barCode_;
    std::string sn_;
    std::string productionTime_;
    int deviceType_ = 0;
    int cameraNum_ = 0;
    int alarmInNum_ = 0;
    int alarmOutNum_ = 0;
    int rs485Num_ = 0;
    int rs232Num_ = 0;
    int networkCardNum_ = 0;
    int videoSystem_ = 0;
    std::vector<int> rs485ComIdList_;
    Version version_;
};

/// Which part of a device is meant, with room for what later devices need.
class DeviceParam
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The serial port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

    /// The alarm input's number on the device.
    int getAlarmInId() const { return alarmInId_; }
    void setAlarmInId(int alarmInId) { alarmInId_ = alarmInId; }

    /// The alarm output's number on the device.
    int getAlarmOutId() const { return alarmOutId_; }
    void setAlarmOutId(int alarmOutId) { alarmOutId_ = alarmOutId; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

    /// Format of pictures, as the device numbers it.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// Bytes for future use, carried as they are; valid until the next call of the setter.
    const unsigned char* getReserveBuf1() const { return reserveBuf1_.data(); }
    /// How many they are.
    int getReserveBuf1Len() const { return static_cast<int>(reserveBuf1_.size()); }
    /// Copies the bytes. A null pointer or a length below 1 empties the buffer.
    void setReserveBuf1(const unsigned char* bytes, int length) { reserveBuf1_ = copyOf(bytes, length); }

    /// Bytes for future use, carried as they are; valid until the next call of the setter.
    const unsigned char* getReserveBuf2() const { return reserveBuf2_.data(); }
    /// How many they are.
    int getReserveBuf2Len() const { return static_cast<int>(reserveBuf2_.size()); }
    /// Copies the bytes. A null pointer or a length below 1 empties the buffer.
    void setReserveBuf2(const unsigned char* bytes, int length) { reserveBuf2_ = copyOf(bytes, length); }

    /// Bytes for future use, carried as they are; valid until the next call of the setter.
    const unsigned char* getReserveBuf3() const { return reserveBuf3_.data(); }
    /// How many they are.
    int getReserveBuf3Len() const { return static_cast<int>(reserveBuf3_.size()); }
    /// Copies the bytes. A null pointer or a length below 1 empties the buffer.
    void setReserveBuf3(const unsigned char* bytes, int length) { reserveBuf3_ = copyOf(bytes, length); }

    /// For future use; carried as it is.
    int getReserveValue1() const { return reserveValue1_; }
    void setReserveValue1(int reserveValue1) { reserveValue1_ = reserveValue1; }

    /// For future use; carried as it is.
    int getReserveValue2() const { return reserveValue2_; }
    void setReserveValue2(int reserveValue2) { reserveValue2_ = reserveValue2; }

    /// For future use; carried as it is.
    int getReserveValue3() const { return reserveValue3_; }
    void setReserveValue3(int reserveValue3) { reserveValue3_ = reserveValue3; }

private:
    static std::vector<unsigned char> copyOf(const unsigned char* bytes, int length)
    {
        return bytes == nullptr || length < 1 ? std::vector<unsigned char>()
                                              : std::vector<unsigned char>(bytes, bytes + length);
    }

    std::string deviceId_;
    int deviceType_ = 0;
    int cameraId_ = 0;
    int comId_ = 0;
    int alarmInId_ = 0;
    int alarmOutId_ = 0;
    int ipProtoVer_ = 0;
    int imageFormatId_ = 0;
    std::vector<unsigned char> reserveBuf1_;
    std::vector<unsigned char> reserveBuf2_;
    std::vector<unsigned char> reserveBuf3_;
    int reserveValue1_ = 0;
    int reserveValue2_ = 0;
    int reserveValue3_ = 0;
};

/// A kind of device.
class DeviceType
{
public:
    /// The number of the kind, as the makers count.
    int getDeviceTypeId() const { return deviceTypeId_; }
    void setDeviceTypeId(int deviceTypeId) { deviceTypeId_ = deviceTypeId; }

    /// Its name.
    const std::string& getDeviceTypeName() const { return deviceTypeName_; }
    void setDeviceTypeName(const std::string& deviceTypeName) { deviceTypeName_ = deviceTypeName; }

private:
    int deviceTypeId_ = 0;
    std::string deviceTypeName_;
};

/// The ports on which a device can be reached.
class DevicePort
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Port of the web pages.
    std::uint16_t getHttpPort() const { return httpPort_; }
    void setHttpPort(std::uint16_t httpPort) { httpPort_ = httpPort; }

    /// Port of the control protocol.
    std::uint16_t getControlPort() const { return controlPort_; }
    void setControlPort(std::uint16_t controlPort) { controlPort_ = controlPort; }

    /// Port of the control messages of real-time streams.
    std::uint16_t getRTCPPort() const { return rtcpPort_; }
    void setRTCPPort(std::uint16_t rtcpPort) { rtcpPort_ = rtcpPort; }

    /// Port of real-time streams.
    std::uint16_t getRTPPort() const { return rtpPort_; }
    void setRTPPort(std::uint16_t rtpPort) { rtpPort_ = rtpPort; }

    /// Port of the streaming sessions.
    std::uint16_t getRTSPPort() const { return rtspPort_; }
    void setRTSPPort(std::uint16_t rtspPort) { rtspPort_ = rtspPort; }

    /// Port of pictures and sound over TCP.
    std::uint16_t getTCPAVPort() const { return tcpAVPort_; }
    void setTCPAVPort(std::uint16_t tcpAVPort) { tcpAVPort_ = tcpAVPort; }

    /// Port of the registration with a centre.
    std::uint16_t getRegisterPort() const { return registerPort_; }
    void setRegisterPort(std::uint16_t registerPort) { registerPort_ = registerPort; }

    /// For future use; carried as it is.
    std::uint16_t getReservePort1() const { return reservePort1_; }
    void setReservePort1(std::uint16_t reservePort1) { reservePort1_ = reservePort1; }

    /// For future use; carried as it is.
    std::uint16_t getReservePort2() const { return reservePort2_; }
    void setReservePort2(std::uint16_t reservePort2) { reservePort2_ = reservePort2; }

    /// For future use; carried as it is.
    std::uint16_t getReservePort3() const { return reservePort3_; }
    void setReservePort3(std::uint16_t reservePort3) { reservePort3_ = reservePort3; }

    /// For future use; carried as it is.
    std::uint16_t getReservePort4() const { return reservePort4_; }
    void setReservePort4(std::uint16_t reservePort4) { reservePort4_ = reservePort4; }

private:
    std::string deviceId_;
    std::uint16_t httpPort_ = 0;
    std::uint16_t controlPort_ = 0;
    std::uint16_t rtcpPort_ = 0;
    std::uint16_t rtpPort_ = 0;
    std::uint16_t rtspPort_ = 0;
    std::uint16_t tcpAVPort_ = 0;
    std::uint16_t registerPort_ = 0;
    std::uint16_t reservePort1_ = 0;
    std::uint16_t reservePort2_ = 0;
    std::uint16_t reservePort3_ = 0;
    std::uint16_t reservePort4_ = 0;
};

/// How a device serves its clients.
class ServerParameter
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceID() const { return deviceID_; }
    void setDeviceID(const std::string& deviceID) { deviceID_ = deviceID; }

    /// Its name, as set by the user.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// Version of the settings.
    int getVersion() const { return version_; }
    void setVersion(int version) { version_ = version; }

    /// Port on which clients are looked for.
    std::uint16_t getClientBroadcastPort() const { return clientBroadcastPort_; }
    void setClientBroadcastPort(std::uint16_t clientBroadcastPort) { clientBroadcastPort_ = clientBroadcastPort; }

    /// Port of the web service.
    std::uint16_t getWebServicePort() const { return webServicePort_; }
    void setWebServicePort(std::uint16_t webServicePort) { webServicePort_ = webServicePort; }

    /// Port of the alarm centre.
    std::uint16_t getAlarmCenterPort() const { return alarmCenterPort_; }
    void setAlarmCenterPort(std::uint16_t alarmCenterPort) { alarmCenterPort_ = alarmCenterPort; }

    /// How the device works, as the device numbers it.
    int getWorkingModeID() const { return workingModeID_; }
    void setWorkingModeID(int workingModeID) { workingModeID_ = workingModeID; }

    /// The language of its menus, as the device numbers it.
    int getLanguageID() const { return languageID_; }
    void setLanguageID(int languageID) { languageID_ = languageID; }

    /// True if the device asks a time server.
    bool getNTPStartFlag() const { return ntpStartFlag_; }
    void setNTPStartFlag(bool ntpStartFlag) { ntpStartFlag_ = ntpStartFlag; }

    /// The ports on which the device can be reached.
    /// @{
    const DevicePort& getDevicePort() const { return devicePort_; }
    DevicePort& getDevicePort() { return devicePort_; }
    void setDevicePort(const DevicePort& devicePort) { devicePort_ = devicePort; }
    /// @}

private:
    std::string deviceID_;
    std::string deviceName_;
    int version_ = 0;
    std::uint16_t clientBroadcastPort_ = 0;
    std::uint16_t webServicePort_ = 0;
    std::uint16_t alarmCenterPort_ = 0;
    int workingModeID_ = 0;
    int languageID_ = 0;
    bool ntpStartFlag_ = false;
    DevicePort devicePort_;
};

/// One controller inside a device.
class McuInfo
{
public:
    /// Name of the controller.
    const std::string& getArmName() const { return armName_; }
    void setArmName(const std::string& armName) { armName_ = armName; }

    /// Version of the program on it.
    const std::string& getArmAppVer() const { return armAppVer_; }
    void setArmAppVer(const std::string& armAppVer) { armAppVer_ = armAppVer; }

private:
    std::string armName_;
    std::string armAppVer_;
};

/// The controllers inside a device.
class DeviceMcuInfo
{
public:
    /// The controllers.
    /// @{
    const std::vector<McuInfo>& getMcuInfoList() const { return mcuInfoList_; }
    std::vector<McuInfo>& getMcuInfoList() { return mcuInfoList_; }
    void setMcuInfoList(const std::vector<McuInfo>& mcuInfoList) { mcuInfoList_ = mcuInfoList; }
    /// @}

private:
    std::vector<McuInfo> mcuInfoList_;
};

/// A node of one of a device's domains.
class DeviceNodeInfo
{
public:
    /// Name of the domain.
    const std::string& getDomainName() const { return domainName_; }
    void setDomainName(const std::string& domainName) { domainName_ = domainName; }

    /// The domain's node.
    const std::string& getDomainNode() const { return domainNode_; }
    void setDomainNode(const std::string& domainNode) { domainNode_ = domainNode; }

    /// Where the device keeps the file of the node.
    const std::string& getNodeFilePath() const { return nodeFilePath_; }
    void setNodeFilePath(const std::string& nodeFilePath) { nodeFilePath_ = nodeFilePath; }

private:
    std::string domainName_;
    std::string domainNode_;
    std::string nodeFilePath_;
};

/// A device by address and bar code.
class DeviceProductInfo
{
public:
    /// The device's address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// Bar code on the device.
    const std::string& getDeviceBarCode() const { return deviceBarCode_; }
    void setDeviceBarCode(const std::string& deviceBarCode) { deviceBarCode_ = deviceBarCode; }

private:
    std::string deviceIp_;
    std::string deviceBarCode_;
};

/// What is shown over the picture for one customer or another.
class SpecialCustom
{
public:
    /// True if the information line is shown. The misspelling is the documents'.
    bool getDispalyInfoShowFlag() const { return dispalyInfoShowFlag_; }
    void setDispalyInfoShowFlag(bool dispalyInfoShowFlag) { dispalyInfoShowFlag_ = dispalyInfoShowFlag; }

    /// True if the name of the stream is shown.
    bool getStreamNameShowFlag() const { return streamNameShowFlag_; }
    void setStreamNameShowFlag(bool streamNameShowFlag) { streamNameShowFlag_ = streamNameShowFlag; }

    /// True if the kind of encoding is shown.
    bool getEncodeTypeShowFlag() const { return encodeTypeShowFlag_; }
    void setEncodeTypeShowFlag(bool encodeTypeShowFlag) { encodeTypeShowFlag_ = encodeTypeShowFlag; }

    /// True if the resolution is shown.
    bool getResolutionNameShowFlag() const { return resolutionNameShowFlag_; }
    void setResolutionNameShowFlag(bool resolutionNameShowFlag) { resolutionNameShowFlag_ = resolutionNameShowFlag; }

    /// True if the frame rate is shown.
    bool getFrameRateShowFlag() const { return frameRateShowFlag_; }
    void setFrameRateShowFlag(bool frameRateShowFlag) { frameRateShowFlag_ = frameRateShowFlag; }

    /// True if the bit rate is shown.
    bool getBitRateShowFlag() const { return bitRateShowFlag_; }
    void setBitRateShowFlag(bool bitRateShowFlag) { bitRateShowFlag_ = bitRateShowFlag; }

private:
    bool dispalyInfoShowFlag_ = false;
    bool streamNameShowFlag_ = false;
    bool encodeTypeShowFlag_ = false;
    bool resolutionNameShowFlag_ = false;
    bool frameRateShowFlag_ = false;
    bool bitRateShowFlag_ = false;
};

/// The services that a device offers beside its protocol.
class SystemServiceInfo
{
public:
    /// True if the device serves files.
    bool getFTPEnableFlag() const { return ftpEnableFlag_; }
    void setFTPEnableFlag(bool ftpEnableFlag) { ftpEnableFlag_ = ftpEnableFlag; }

    /// True if the device takes terminal sessions.
    bool getTelnetEnableFlag() const { return telnetEnableFlag_; }
    void setTelnetEnableFlag(bool telnetEnableFlag) { telnetEnableFlag_ = telnetEnableFlag; }

    /// The language of the web pages, as the device numbers it.
    int getWebLanguageID() const { return webLanguageID_; }
    void setWebLanguageID(int webLanguageID) { webLanguageID_ = webLanguageID; }

private:
    bool ftpEnableFlag_ = false;
    bool telnetEnableFlag_ = false;
    int webLanguageID_ = 0;
};

/// How busy the processor of a device is.
class CpuStatistic
{
public:
    /// How busy it is, in percent.
    float getCpuPercent() const { return cpuPercent_; }
    void setCpuPercent(float cpuPercent) { cpuPercent_ = cpuPercent; }

    /// Its state, as the device numbers it.
    std::uint8_t getCpuStatus() const { return cpuStatus_; }
    void setCpuStatus(std::uint8_t cpuStatus) { cpuStatus_ = cpuStatus; }

private:
    float cpuPercent_ = 0.0F;
    std::uint8_t cpuStatus_ = 0;
};

/// The memory of a device.
class MemStatistic
{
public:
    /// All of it, in the unit that the device uses.
    int getMemTotalSize() const { return memTotalSize_; }
    void setMemTotalSize(int memTotalSize) { memTotalSize_ = memTotalSize; }

    /// What is free, in the same unit.
    int getMemFreeSize() const { return memFreeSize_; }
    void setMemFreeSize(int memFreeSize) { memFreeSize_ = memFreeSize; }

private:
    int memTotalSize_ = 0;
    int memFreeSize_ = 0;
};

/// One disk of a device.
class DiskStatistic
{
public:
    /// The disk's number on the device.
    int getDiskId() const { return diskId_; }
    void setDiskId(int diskId) { diskId_ = diskId; }

    /// All of it, in the unit that the device uses.
    int getDiskTotalSize() const { return diskTotalSize_; }
    void setDiskTotalSize(int diskTotalSize) { diskTotalSize_ = diskTotalSize; }

    /// What is free, in the same unit.
    int getDiskFreeSize() const { return diskFreeSize_; }
    void setDiskFreeSize(int diskFreeSize) { diskFreeSize_ = diskFreeSize; }

    /// Its state, as the device numbers it.
    std::uint8_t getDiskStatus() const { return diskStatus_; }
    void setDiskStatus(std::uint8_t diskStatus) { diskStatus_ = diskStatus; }

private:
    int diskId_ = 0;
    int diskTotalSize_ = 0;
    int diskFreeSize_ = 0;
    std::uint8_t diskStatus_ = 0;
};

/// What one camera of a device does.
class VideoChannelStatistic
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it records, as the device numbers it.
    std::uint8_t getRecordStatus() const { return recordStatus_; }
    void setRecordStatus(std::uint8_t recordStatus) { recordStatus_ = recordStatus; }

    /// Whether it takes snapshots, as the device numbers it.
    std::uint8_t getCaptureStatus() const { return captureStatus_; }
    void setCaptureStatus(std::uint8_t captureStatus) { captureStatus_ = captureStatus; }

    /// State of its signal, as the device numbers it.
    std::uint8_t getSignalStatus() const { return signalStatus_; }
    void setSignalStatus(std::uint8_t signalStatus) { signalStatus_ = signalStatus; }

    /// State of its hardware, as the device numbers it.
    std::uint8_t getHardwareStatus() const { return hardwareStatus_; }
    void setHardwareStatus(std::uint8_t hardwareStatus) { hardwareStatus_ = hardwareStatus; }

    /// The bit rate of its stream, in the unit that the device uses.
    int getBitRate() const { return bitRate_; }
    void setBitRate(int bitRate) { bitRate_ = bitRate; }

private:
    int cameraId_ = 0;
    std::uint8_t recordStatus_ = 0;
    std::uint8_t captureStatus_ = 0;
    std::uint8_t signalStatus_ = 0;
    std::uint8_t hardwareStatus_ = 0;
    int bitRate_ = 0;
};

/// One alarm input of a device.
class AlarmInStatistic
{
public:
    /// The input's number on the device.
    int getAlarmInId() const { return alarmInId_; }
    void setAlarmInId(int alarmInId) { alarmInId_ = alarmInId; }

    /// Its state, as the device numbers it.
    std::uint8_t getAlarmInStatus() const { return alarmInStatus_; }
    void setAlarmInStatus(std::uint8_t alarmInStatus) { alarmInStatus_ = alarmInStatus; }

    /// When it last raised an alarm.
    long getLastAlarmTime() const { return lastAlarmTime_; }
    void setLastAlarmTime(long lastAlarmTime) { lastAlarmTime_ = lastAlarmTime; }

private:
    int alarmInId_ = 0;
    std::uint8_t alarmInStatus_ = 0;
    long lastAlarmTime_ = 0;
};

/// One alarm output of a device.
class AlarmOutStatistic
{
public:
    /// The output's number on the device.
    int getAlarmOutId() const { return alarmOutId_; }
    void setAlarmOutId(int alarmOutId) { alarmOutId_ = alarmOutId; }

    /// Its state, as the device numbers it.
    std::uint8_t getAlarmOutStatus() const { return alarmOutStatus_; }
    void setAlarmOutStatus(std::uint8_t alarmOutStatus) { alarmOutStatus_ = alarmOutStatus; }

    /// When it was last switched by an alarm.
    long getLastAlarmTime() const { return lastAlarmTime_; }
    void setLastAlarmTime(long lastAlarmTime) { lastAlarmTime_ = lastAlarmTime; }

private:
    int alarmOutId_ = 0;
    std::uint8_t alarmOutStatus_ = 0;
    long lastAlarmTime_ = 0;
};

/// How a device is.
class DeviceWorkState
{
public:
    /// The processor.
    /// @{
    const CpuStatistic& getCpuStatistic() const { return cpuStatistic_; }
    CpuStatistic& getCpuStatistic() { return cpuStatistic_; }
    void setCpuStatistic(const CpuStatistic& cpuStatistic) { cpuStatistic_ = cpuStatistic; }
    /// @}

    /// The memory.
    /// @{
    const MemStatistic& getMemStatistic() const { return memStatistic_; }
    MemStatistic& getMemStatistic() { return memStatistic_; }
    void setMemStatistic(const MemStatistic& memStatistic) { memStatistic_ = memStatistic; }
    /// @}

    /// The disks.
    /// @{
    const std::vector<DiskStatistic>& getDiskStatisticList() const { return diskStatisticList_; }
    std::vector<DiskStatistic>& getDiskStatisticList() { return diskStatisticList_; }
    void setDiskStatisticList(const std::vector<DiskStatistic>& diskStatisticList)
    {
        diskStatisticList_ = diskStatisticList;
    }
    /// @}

    /// The cameras.
    /// @{
    const std::vector<VideoChannelStatistic>& getVideoChannelStatisticList() const
    {
        return videoChannelStatisticList_;
    }
    std::vector<VideoChannelStatistic>& getVideoChannelStatisticList() { return videoChannelStatisticList_; }
    void setVideoChannelStatisticList(const std::vector<VideoChannelStatistic>& videoChannelStatisticList)
    {
        videoChannelStatisticList_ = videoChannelStatisticList;
    }
    /// @}

    /// The alarm inputs.
    /// @{
    const std::vector<AlarmInStatistic>& getAlarmInStatisticList() const { return alarmInStatisticList_; }
    std::vector<AlarmInStatistic>& getAlarmInStatisticList() { return alarmInStatisticList_; }
    void setAlarmInStatisticList(const std::vector<AlarmInStatistic>& alarmInStatisticList)
    {
        alarmInStatisticList_ = alarmInStatisticList;
    }
    /// @}

    /// The alarm outputs.
    /// @{
    const std::vector<AlarmOutStatistic>& getAlarmOutStatisticList() const { return alarmOutStatisticList_; }
    std::vector<AlarmOutStatistic>& getAlarmOutStatisticList() { return alarmOutStatisticList_; }
    void setAlarmOutStatisticList(const std::vector<AlarmOutStatistic>& alarmOutStatisticList)
    {
        alarmOutStatisticList_ = alarmOutStatisticList;
    }
    /// @}

private:
    CpuStatistic cpuStatistic_;
    MemStatistic memStatistic_;
    std::vector<DiskStatistic> diskStatisticList_;
    std::vector<VideoChannelStatistic> videoChannelStatisticList_;
    std::vector<AlarmInStatistic> alarmInStatisticList_;
    std::vector<AlarmOutStatistic> alarmOutStatisticList_;
};

/// Whether a camera of one of several devices records.
class RecordState
{
public:
    /// The identity of the device that the camera belongs to.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on that device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it records, as the device numbers it.
    int getState() const { return state_; }
    void setState(int state) { state_ = state; }

private:
    std::string deviceId_;
    int cameraId_ = 0;
    int state_ = 0;
};

/// Whether a camera takes snapshots.
class SnapshotStatus
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it takes snapshots, as the device numbers it.
    int getStatus() const { return status_; }
    void setStatus(int status) { status_ = status; }

private:
    int cameraId_ = 0;
    int status_ = 0;
};

/// Whether a camera records on demand.
class ManualRecordStatus
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether it records on demand, as the device numbers it.
    std::uint8_t getRecordStatus() const { return recordStatus_; }
    void setRecordStatus(std::uint8_t recordStatus) { recordStatus_ = recordStatus; }

private:
    int cameraId_ = 0;
    std::uint8_t recordStatus_ = 0;
};

/// What a device can do with sound, in the older description.
class AudioAbility
{
public:
    /// Whether its users can be talked to.
    bool getInterPhoneFlag() const { return interPhoneFlag_; }
    void setInterPhoneFlag(bool interPhoneFlag) { interPhoneFlag_ = interPhoneFlag; }

    /// The encodings that it sends, as it numbers them.
    /// @{
    const std::vector<int>& getAudioEncodeTypeList() const { return audioEncodeTypeList_; }
    std::vector<int>& getAudioEncodeTypeList() { return audioEncodeTypeList_; }
    void setAudioEncodeTypeList(const std::vector<int>& audioEncodeTypeList)
    {
        audioEncodeTypeList_ = audioEncodeTypeList;
    }
    /// @}

    /// The encodings that it plays, as it numbers them.
    /// @{
    const std::vector<int>& getAudioDecodeTypeList() const { return audioDecodeTypeList_; }
    std::vector<int>& getAudioDecodeTypeList() { return audioDecodeTypeList_; }
    void setAudioDecodeTypeList(const std::vector<int>& audioDecodeTypeList)
    {
        audioDecodeTypeList_ = audioDecodeTypeList;
    }
    /// @}

    /// Its kinds of input, as it numbers them.
    /// @{
    const std::vector<int>& getAudioInTypeList() const { return audioInTypeList_; }
    std::vector<int>& getAudioInTypeList() { return audioInTypeList_; }
    void setAudioInTypeList(const std::vector<int>& audioInTypeList) { audioInTypeList_ = audioInTypeList; }
    /// @}

private:
    bool interPhoneFlag_ = false;
    std::vector<int> audioEncodeTypeList_;
    std::vector<int> audioDecodeTypeList_;
    std::vector<int> audioInTypeList_;
};

/// An encoding of sound that a device plays.
class AudioDecodeType
{
public:
    /// Its number on the device.
    int getAudioDecodeTypeId() const { return audioDecodeTypeId_; }
    void setAudioDecodeTypeId(int audioDecodeTypeId) { audioDecodeTypeId_ = audioDecodeTypeId; }

    /// Its name, for users.
    const std::string& getAudioDecodeTypeName() const { return audioDecodeTypeName_; }
    void setAudioDecodeTypeName(const std::string& audioDecodeTypeName) { audioDecodeTypeName_ = audioDecodeTypeName; }

private:
    int audioDecodeTypeId_ = 0;
    std::string audioDecodeTypeName_;
};

/// An encoding of sound that a device sends.
class AudioEncodeType
{
public:
    /// Its number on the device.
    int getAudioEncodeTypeId() const { return audioEncodeTypeId_; }
    void setAudioEncodeTypeId(int audioEncodeTypeId) { audioEncodeTypeId_ = audioEncodeTypeId; }

    /// Its name, for users.
    const std::string& getAudioEncodeTypeName() const { return audioEncodeTypeName_; }
    void setAudioEncodeTypeName(const std::string& audioEncodeTypeName) { audioEncodeTypeName_ = audioEncodeTypeName; }

private:
    int audioEncodeTypeId_ = 0;
    std::string audioEncodeTypeName_;
};

/// A kind of input for sound.
class AudioInType
{
public:
    /// Its number on the device.
    int getAudioInTypeId() const { return audioInTypeId_; }
    void setAudioInTypeId(int audioInTypeId) { audioInTypeId_ = audioInTypeId; }

    /// Its name, for users.
    const std::string& getAudioInTypeName() const { return audioInTypeName_; }
    void setAudioInTypeName(const std::string& audioInTypeName) { audioInTypeName_ = audioInTypeName; }

private:
    int audioInTypeId_ = 0;
    std::string audioInTypeName_;
};

/// A kind of output for sound.
class AudioOutType
{
public:
    /// Its number on the device.
    int getAudioOutTypeId() const { return audioOutTypeId_; }
    void setAudioOutTypeId(int audioOutTypeId) { audioOutTypeId_ = audioOutTypeId; }

    /// Its name, for users.
    const std::string& getAudioOutTypeName() const { return audioOutTypeName_; }
    void setAudioOutTypeName(const std::string& audioOutTypeName) { audioOutTypeName_ = audioOutTypeName; }

private:
    int audioOutTypeId_ = 0;
    std::string audioOutTypeName_;
};

/// What a device can do with sound.
class AudioExAbility
{
public:
    /// Whether its users can be talked to.
    bool getInterPhoneFlag() const { return interPhoneFlag_; }
    void setInterPhoneFlag(bool interPhoneFlag) { interPhoneFlag_ = interPhoneFlag; }

    /// Whether it takes sound in.
    bool getAudioInFlag() const { return audioInFlag_; }
    void setAudioInFlag(bool audioInFlag) { audioInFlag_ = audioInFlag; }

    /// Its kinds of input.
    /// @{
    const std::vector<AudioInType>& getAudioInTypeList() const { return audioInTypeList_; }
    std::vector<AudioInType>& getAudioInTypeList() { return audioInTypeList_; }
    void setAudioInTypeList(const std::vector<AudioInType>& audioInTypeList) { audioInTypeList_ = audioInTypeList; }
    /// @}

    /// Whether it gives sound out.
    bool getAudioOutFlag() const { return audioOutFlag_; }
    void setAudioOutFlag(bool audioOutFlag) { audioOutFlag_ = audioOutFlag; }

    /// Its kinds of output.
    /// @{
    const std::vector<AudioOutType>& getAudioOutTypeList() const { return audioOutTypeList_; }
    std::vector<AudioOutType>& getAudioOutTypeList() { return audioOutTypeList_; }
    void setAudioOutTypeList(const std::vector<AudioOutType>& audioOutTypeList)
    {
        audioOutTypeList_ = audioOutTypeList;
    }
    /// @}

    /// The encodings that it sends.
    /// @{
    const std::vector<AudioEncodeType>& getAudioEncodeTypeList() const { return audioEncodeTypeList_; }
    std::vector<AudioEncodeType>& getAudioEncodeTypeList() { return audioEncodeTypeList_; }
    void setAudioEncodeTypeList(const std::vector<AudioEncodeType>& audioEncodeTypeList)
    {
        audioEncodeTypeList_ = audioEncodeTypeList;
    }
    /// @}

    /// The encodings that it plays.
    /// @{
    const std::vector<AudioDecodeType>& getAudioDecodeTypeList() const { return audioDecodeTypeList_; }
    std::vector<AudioDecodeType>& getAudioDecodeTypeList() { return audioDecodeTypeList_; }
    void setAudioDecodeTypeList(const std::vector<AudioDecodeType>& audioDecodeTypeList)
    {
        audioDecodeTypeList_ = audioDecodeTypeList;
    }
    /// @}

private:
    bool interPhoneFlag_ = false;
    bool audioInFlag_ = false;
    std::vector<AudioInType> audioInTypeList_;
    bool audioOutFlag_ = false;
    std::vector<AudioOutType> audioOutTypeList_;
    std::vector<AudioEncodeType> audioEncodeTypeList_;
    std::vector<AudioDecodeType> audioDecodeTypeList_;
};

/// What a camera can do to hide areas of its picture, as part of its configuration.
class BlindAbilityConfigure
{
public:
    /// How many areas it can hide.
    int getMaxBlindAreaNum() const { return maxBlindAreaNum_; }
    void setMaxBlindAreaNum(const int& maxBlindAreaNum) { maxBlindAreaNum_ = maxBlindAreaNum; }

    /// Largest width of one, as the device scales it.
    int getBlindWidth() const { return blindWidth_; }
    void setBlindWidth(const int& blindWidth) { blindWidth_ = blindWidth; }

    /// Largest height of one, as the device scales it.
    int getBlindHeight() const { return blindHeight_; }
    void setBlindHeight(const int& blindHeight) { blindHeight_ = blindHeight; }

    /// Kind of cover, as the device numbers it.
    int getBlindType() const { return blindType_; }
    void setBlindType(const int& blindType) { blindType_ = blindType; }

private:
    int maxBlindAreaNum_ = 0;
    int blindWidth_ = 0;
    int blindHeight_ = 0;
    int blindType_ = 0;
};

/// What a camera can do to hide areas of its picture.
class BlindAbility
{
public:
    /// How many areas it can hide.
    int getMaxBlindAreaNum() const { return maxBlindAreaNum_; }
    void setMaxBlindAreaNum(int maxBlindAreaNum) { maxBlindAreaNum_ = maxBlindAreaNum; }

    /// How large they may be, as the device scales it.
    int getBlindArea() const { return blindArea_; }
    void setBlindArea(int blindArea) { blindArea_ = blindArea; }

    /// Kind of cover, as the device numbers it.
    int getBlindType() const { return blindType_; }
    void setBlindType(int blindType) { blindType_ = blindType; }

private:
    int maxBlindAreaNum_ = 0;
    int blindArea_ = 0;
    int blindType_ = 0;
};

/// A file system that a device can put on a disk.
class FileSystem
{
public:
    /// Its number on the device.
    int getFileSystemType() const { return fileSystemType_; }
    void setFileSystemType(int fileSystemType) { fileSystemType_ = fileSystemType; }

    /// Its name, for users.
    const std::string& getFileSystemName() const { return fileSystemName_; }
    void setFileSystemName(const std::string& fileSystemName) { fileSystemName_ = fileSystemName; }

private:
    int fileSystemType_ = 0;
    std::string fileSystemName_;
};

/// A use to which a device can put a disk.
class DiskAttributeEx
{
public:
    /// Its number on the device.
    int getDiskAttribute() const { return diskAttribute_; }
    void setDiskAttribute(int diskAttribute) { diskAttribute_ = diskAttribute; }

    /// Its name, for users.
    const std::string& getAttributeName() const { return attributeName_; }
    void setAttributeName(const std::string& attributeName) { attributeName_ = attributeName; }

private:
    int diskAttribute_ = 0;
    std::string attributeName_;
};

/// What a device can do with disks of one kind.
class FileSystemAbility
{
public:
    /// The kind of disk, as the device numbers it.
    int getDiskType() const { return diskType_; }
    void setDiskType(int diskType) { diskType_ = diskType; }

    /// The file systems that it can put on them.
    /// @{
    const std::vector<FileSystem>& getFileSystemList() const { return fileSystemList_; }
    std::vector<FileSystem>& getFileSystemList() { return fileSystemList_; }
    void setFileSystemList(const std::vector<FileSystem>& fileSystemList) { fileSystemList_ = fileSystemList; }
    /// @}

    /// The uses to which it can put them.
    /// @{
    const std::vector<DiskAttributeEx>& getDiskAttributeList() const { return diskAttributeList_; }
    std::vector<DiskAttributeEx>& getDiskAttributeList() { return diskAttributeList_; }
    void setDiskAttributeList(const std::vector<DiskAttributeEx>& diskAttributeList)
    {
        diskAttributeList_ = diskAttributeList;
    }
    /// @}

private:
    int diskType_ = 0;
    std::vector<FileSystem> fileSystemList_;
    std::vector<DiskAttributeEx> diskAttributeList_;
};

/// Whether a device can reach mobile networks of the third generation.
class I3GAbilityParam
{
public:
    /// True if it can.
    bool getSupportFlag() const { return supportFlag_; }
    void setSupportFlag(bool supportFlag) { supportFlag_ = supportFlag; }

    /// Name of its modem.
    const std::string& get3GDeviceName() const { return deviceName_; }
    void set3GDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

private:
    bool supportFlag_ = false;
    std::string deviceName_;
};

/// How finely a camera detects motion, as part of its configuration.
class MotionDetectionAbilityConfigure
{
public:
    /// Least sensitivity.
    int getMinSensitivity() const { return minSensitivity_; }
    void setMinSensitivity(const int& minSensitivity) { minSensitivity_ = minSensitivity; }

    /// Greatest sensitivity.
    int getMaxSensitivity() const { return maxSensitivity_; }
    void setMaxSensitivity(const int& maxSensitivity) { maxSensitivity_ = maxSensitivity; }

    /// Most cells side by side.
    int getMaxWidthCellNumber() const { return maxWidthCellNumber_; }
    void setMaxWidthCellNumber(const int& maxWidthCellNumber) { maxWidthCellNumber_ = maxWidthCellNumber; }

    /// Most cells one above the other.
    int getMaxHeightCellNumber() const { return maxHeightCellNumber_; }
    void setMaxHeightCellNumber(const int& maxHeightCellNumber) { maxHeightCellNumber_ = maxHeightCellNumber; }

    /// The sensitivity without a setting.
    int getDefaultSensitivity() const { return defaultSensitivity_; }
    void setDefaultSensitivity(const int& defaultSensitivity) { defaultSensitivity_ = defaultSensitivity; }

    /// The cells side by side without a setting.
    int getDefaultWidthCellNumber() const { return defaultWidthCellNumber_; }
    void setDefaultWidthCellNumber(const int& defaultWidthCellNumber)
    {
        defaultWidthCellNumber_ = defaultWidthCellNumber;
    }

    /// The cells one above the other without a setting.
    int getDefaultHeightCellNumber() const { return defaultHeightCellNumber_; }
    void setDefaultHeightCellNumber(const int& defaultHeightCellNumber)
    {
        defaultHeightCellNumber_ = defaultHeightCellNumber;
    }

private:
    int minSensitivity_ = 0;
    int maxSensitivity_ = 0;
    int maxWidthCellNumber_ = 0;
    int maxHeightCellNumber_ = 0;
    int defaultSensitivity_ = 0;
    int defaultWidthCellNumber_ = 0;
    int defaultHeightCellNumber_ = 0;
};

/// How finely a camera detects motion in pictures of one format, in the older description.
class MotionDetectionAbility
{
public:
    /// The format's number on the device.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// Greatest sensitivity.
    int getMaxSensitivity() const { return maxSensitivity_; }
    void setMaxSensitivity(int maxSensitivity) { maxSensitivity_ = maxSensitivity; }

    /// Least number of frames from one comparison to the next.
    int getMinFrameInterval() const { return minFrameInterval_; }
    void setMinFrameInterval(int minFrameInterval) { minFrameInterval_ = minFrameInterval; }

private:
    int imageFormatId_ = 0;
    int maxSensitivity_ = 0;
    int minFrameInterval_ = 0;
};

/// How finely a camera detects motion.
class MotionDetectionExAbility
{
public:
    /// Greatest sensitivity.
    int getMaxSensitivity() const { return maxSensitivity_; }
    void setMaxSensitivity(int maxSensitivity) { maxSensitivity_ = maxSensitivity; }

    /// Least sensitivity.
    int getMinSensitivity() const { return minSensitivity_; }
    void setMinSensitivity(int minSensitivity) { minSensitivity_ = minSensitivity; }

    /// The sensitivity without a setting.
    int getDefualSensitivity() const { return defualSensitivity_; }
    void setDefualSensitivity(int defualSensitivity) { defualSensitivity_ = defualSensitivity; }

    /// The cells side by side without a setting.
    int getDefualWidthCellNumber() const { return defualWidthCellNumber_; }
    void setDefualWidthCellNumber(int defualWidthCellNumber) { defualWidthCellNumber_ = defualWidthCellNumber; }

    /// The cells one above the other without a setting.
    int getDefualHighCellNumber() const { return defualHighCellNumber_; }
    void setDefualHighCellNumber(int defualHighCellNumber) { defualHighCellNumber_ = defualHighCellNumber; }

    /// Most cells side by side.
    int getMaxWidthCellNumber() const { return maxWidthCellNumber_; }
    void setMaxWidthCellNumber(int maxWidthCellNumber) { maxWidthCellNumber_ = maxWidthCellNumber; }

    /// Fewest cells side by side.
    int getMinWidthCellNumber() const { return minWidthCellNumber_; }
    void setMinWidthCellNumber(int minWidthCellNumber) { minWidthCellNumber_ = minWidthCellNumber; }

    /// Most cells one above the other.
    int getMaxHighCellNumber() const { return maxHighCellNumber_; }
    void setMaxHighCellNumber(int maxHighCellNumber) { maxHighCellNumber_ = maxHighCellNumber; }

    /// Fewest cells one above the other.
    int getMinHighCellNumber() const { return minHighCellNumber_; }
    void setMinHighCellNumber(int minHighCellNumber) { minHighCellNumber_ = minHighCellNumber; }

private:
    int maxSensitivity_ = 0;
    int minSensitivity_ = 0;
    int defualSensitivity_ = 0;
    int defualWidthCellNumber_ = 0;
    int defualHighCellNumber_ = 0;
    int maxWidthCellNumber_ = 0;
    int minWidthCellNumber_ = 0;
    int maxHighCellNumber_ = 0;
    int minHighCellNumber_ = 0;
};

/// What a device can do with pan-tilt-zoom heads.
class PTZAbility
{
public:
    /// Whether it has a head of its own.
    bool getInternalPTZFlag() const { return internalPTZFlag_; }
    void setInternalPTZFlag(bool internalPTZFlag) { internalPTZFlag_ = internalPTZFlag; }

    /// Whether a head can be sent to a spot marked in the picture.
    bool getThreeDimensionalPositioningFlag() const { return threeDimensionalPositioningFlag_; }
    void setThreeDimensionalPositioningFlag(bool threeDimensionalPositioningFlag)
    {
        threeDimensionalPositioningFlag_ = threeDimensionalPositioningFlag;
    }

    /// Most preset positions.
    int getMaxPresetCount() const { return maxPresetCount_; }
    void setMaxPresetCount(int maxPresetCount) { maxPresetCount_ = maxPresetCount; }

    /// Most scans.
    int getMaxScanCount() const { return maxScanCount_; }
    void setMaxScanCount(int maxScanCount) { maxScanCount_ = maxScanCount; }

    /// Most tracks that it can learn.
    int getMaxAutoStudyCount() const { return maxAutoStudyCount_; }
    void setMaxAutoStudyCount(int maxAutoStudyCount) { maxAutoStudyCount_ = maxAutoStudyCount; }

    /// Most tours from preset to preset.
    int getMaxTourCount() const { return maxTourCount_; }
    void setMaxTourCount(int maxTourCount) { maxTourCount_ = maxTourCount; }

    /// Whether it can switch a wiper.
    bool getBrushFlag() const { return brushFlag_; }
    void setBrushFlag(bool brushFlag) { brushFlag_ = brushFlag; }

    /// Whether it can switch a lamp.
    bool getLightFlag() const { return lightFlag_; }
    void setLightFlag(bool lightFlag) { lightFlag_ = lightFlag; }

    /// Whether it can switch an infrared lamp.
    bool getInfraredFlag() const { return infraredFlag_; }
    void setInfraredFlag(bool infraredFlag) { infraredFlag_ = infraredFlag; }

    /// The protocols by which it drives heads.
    /// @{
    const std::vector<PTZProtocol>& getPTZProtocolList() const { return ptzProtocolList_; }
    std::vector<PTZProtocol>& getPTZProtocolList() { return ptzProtocolList_; }
    void setPTZProtocolList(const std::vector<PTZProtocol>& ptzProtocolList) { ptzProtocolList_ = ptzProtocolList; }
    /// @}

private:
    bool internalPTZFlag_ = false;
    bool threeDimensionalPositioningFlag_ = false;
    int maxPresetCount_ = 0;
    int maxScanCount_ = 0;
    int maxAutoStudyCount_ = 0;
    int maxTourCount_ = 0;
    bool brushFlag_ = false;
    bool lightFlag_ = false;
    bool infraredFlag_ = false;
    std::vector<PTZProtocol> ptzProtocolList_;
};

/// One version of a protocol.
class ProtocolInfo
{
public:
    /// The version, as text.
    const std::string& getProtocolVersion() const { return protocolVersion_; }
    void setProtocolVersion(const std::string& protocolVersion) { protocolVersion_ = protocolVersion; }

private:
    std::string protocolVersion_;
};

/// A protocol that a device speaks.
class ProtocolType
{
public:
    /// Its name.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const std::string& protocolName) { protocolName_ = protocolName; }

    /// The versions of it.
    /// @{
    const std::vector<ProtocolInfo>& getProtocolInfoList() const { return protocolInfoList_; }
    std::vector<ProtocolInfo>& getProtocolInfoList() { return protocolInfoList_; }
    void setProtocolInfoList(const std::vector<ProtocolInfo>& protocolInfoList)
    {
        protocolInfoList_ = protocolInfoList;
    }
    /// @}

private:
    std::string protocolName_;
    std::vector<ProtocolInfo> protocolInfoList_;
};

/// The protocols that a device speaks.
class ProtocolConfigAbility
{
public:
    /// One entry for each.
    /// @{
    const std::vector<ProtocolType>& getProtocolTypeList() const { return protocolTypeList_; }
    std::vector<ProtocolType>& getProtocolTypeList() { return protocolTypeList_; }
    void setProtocolTypeList(const std::vector<ProtocolType>& protocolTypeList)
    {
        protocolTypeList_ = protocolTypeList;
    }
    /// @}

private:
    std::vector<ProtocolType> protocolTypeList_;
};

/// What a device can do to encode regions of a picture better than the rest.
class ROIAbility
{
public:
    /// Most regions.
    int getROIMaxNum() const { return roiMaxNum_; }
    void setROIMaxNum(int roiMaxNum) { roiMaxNum_ = roiMaxNum; }

    /// Their largest share of the picture, as the device scales it.
    int getROIMaxScale() const { return roiMaxScale_; }
    void setROIMaxScale(int roiMaxScale) { roiMaxScale_ = roiMaxScale; }

    /// Highest level of quality.
    int getROIMaxLevel() const { return roiMaxLevel_; }
    void setROIMaxLevel(int roiMaxLevel) { roiMaxLevel_ = roiMaxLevel; }

    /// What each level changes in the quantisation parameter, by level.
    /// @{
    const std::map<int, int>& getLevelQPMap() const { return levelQPMap_; }
    std::map<int, int>& getLevelQPMap() { return levelQPMap_; }
    void setLevelQPMap(const std::map<int, int>& levelQPMap) { levelQPMap_ = levelQPMap; }
    /// @}

private:
    int roiMaxNum_ = 0;
    int roiMaxScale_ = 0;
    int roiMaxLevel_ = 0;
    std::map<int, int> levelQPMap_;
};

/// Whether a device can be found through its makers' name service.
class ZentarDDNSAbility
{
public:
    /// True if it can.
    bool getZentarDDNSAbility() const { return zentarDDNSAbility_; }
    void setZentarDDNSAbility(bool zentarDDNSAbility) { zentarDDNSAbility_ = zentarDDNSAbility; }

    /// Name of the server.
    const std::string& getZentarDDNSHostName() const { return zentarDDNSHostName_; }
    void setZentarDDNSHostName(const std::string& zentarDDNSHostName) { zentarDDNSHostName_ = zentarDDNSHostName; }

private:
    bool zentarDDNSAbility_ = false;
    std::string zentarDDNSHostName_;
};

/// A time zone that a device knows.
class TimeZoneType
{
public:
    /// Its number on the device.
    int getTimeZoneID() const { return timeZoneID_; }
    void setTimeZoneID(int timeZoneID) { timeZoneID_ = timeZoneID; }

    /// Its name, for users.
    const std::string& getTimeZoneName() const { return timeZoneName_; }
    void setTimeZoneName(const std::string& timeZoneName) { timeZoneName_ = timeZoneName; }

    /// Its abbreviation in standard time.
    const std::string& getSTDTimeZoneAbbreviation() const { return stdTimeZoneAbbreviation_; }
    void setSTDTimeZoneAbbreviation(const std::string& stdTimeZoneAbbreviation)
    {
        stdTimeZoneAbbreviation_ = stdTimeZoneAbbreviation;
    }

    /// Its abbreviation in daylight saving time.
    const std::string& getDSTTimeZoneAbbreviation() const { return dstTimeZoneAbbreviation_; }
    void setDSTTimeZoneAbbreviation(const std::string& dstTimeZoneAbbreviation)
    {
        dstTimeZoneAbbreviation_ = dstTimeZoneAbbreviation;
    }

private:
    int timeZoneID_ = 0;
    std::string timeZoneName_;
    std::string stdTimeZoneAbbreviation_;
    std::string dstTimeZoneAbbreviation_;
};

/// The time zones that a device knows.
class TimeZoneAbility
{
public:
    /// One entry for each.
    /// @{
    const std::vector<TimeZoneType>& getTimeZoneTypeList() const { return timeZoneTypeList_; }
    std::vector<TimeZoneType>& getTimeZoneTypeList() { return timeZoneTypeList_; }
    void setTimeZoneTypeList(const std::vector<TimeZoneType>& timeZoneTypeList)
    {
        timeZoneTypeList_ = timeZoneTypeList;
    }
    /// @}

private:
    std::vector<TimeZoneType> timeZoneTypeList_;
};

/// Whether a device can reach wireless networks.
class WifiAbilityParam
{
public:
    /// True if it can.
    bool getSupportFlag() const { return supportFlag_; }
    void setSupportFlag(bool supportFlag) { supportFlag_ = supportFlag; }

    /// Name of its adapter.
    const std::string& getWifiDeviceName() const { return wifiDeviceName_; }
    void setWifiDeviceName(const std::string& wifiDeviceName) { wifiDeviceName_ = wifiDeviceName; }

private:
    bool supportFlag_ = false;
    std::string wifiDeviceName_;
};

/// A network card of a device.
class IPCNetworkCardAbility
{
public:
    /// Its number on the device.
    int getNetWorkCardId() const { return netWorkCardId_; }
    void setNetWorkCardId(int netWorkCardId) { netWorkCardId_ = netWorkCardId; }

    /// Its name.
    const std::string& getNetWorkCardName() const { return netWorkCardName_; }
    void setNetWorkCardName(const std::string& netWorkCardName) { netWorkCardName_ = netWorkCardName; }

    /// What it is, for users.
    const std::string& getDescription() const { return description_; }
    void setDescription(const std::string& description) { description_ = description; }

    /// Whether its failure raises an alarm.
    bool getSupportAlarm() const { return supportAlarm_; }
    void setSupportAlarm(bool supportAlarm) { supportAlarm_ = supportAlarm; }

private:
    int netWorkCardId_ = 0;
    std::string netWorkCardName_;
    std::string description_;
    bool supportAlarm_ = false;
};

/// A mode in which a device can work.
class WorkingMode
{
public:
    /// Its number on the device.
    int getModeID() const { return modeID_; }
    void setModeID(int modeID) { modeID_ = modeID; }

    /// Its name, for users.
    const std::string& getModeName() const { return modeName_; }
    void setModeName(const std::string& modeName) { modeName_ = modeName; }

private:
    int modeID_ = 0;
    std::string modeName_;
};

/// A language in which a device speaks to its users.
class LanguageType
{
public:
    /// Its number on the device.
    int getLanguageID() const { return languageID_; }
    void setLanguageID(int languageID) { languageID_ = languageID; }

    /// Its name, for users.
    const std::string& getLanguageName() const { return languageName_; }
    void setLanguageName(const std::string& languageName) { languageName_ = languageName; }

private:
    int languageID_ = 0;
    std::string languageName_;
};

/// A way in which the controller of a camera's sensor can be switched on.
class SensorControllerOpenType
{
public:
    /// Its number on the device.
    int getType() const { return type_; }
    void setType(int type) { type_ = type; }

private:
    int type_ = 0;
};

/// What a camera's sensor can do.
class SensorAbility
{
public:
    /// The ways in which its controller can be switched on.
    /// @{
    const std::vector<SensorControllerOpenType>& getSensorControllerOpenTypeList() const
    {
        return sensorControllerOpenTypeList_;
    }
    std::vector<SensorControllerOpenType>& getSensorControllerOpenTypeList() { return sensorControllerOpenTypeList_; }
    void setSensorControllerOpenTypeList(const std::vector<SensorControllerOpenType>& sensorControllerOpenTypeList)
    {
        sensorControllerOpenTypeList_ = sensorControllerOpenTypeList;
    }
    /// @}

private:
    std::vector<SensorControllerOpenType> sensorControllerOpenTypeList_;
};

/// A format of the texts that are laid over a picture.
class OSDFormatType
{
public:
    /// Its number on the device.
    int getFormatId() const { return formatId_; }
    void setFormatId(int formatId) { formatId_ = formatId; }

    /// What it looks like, for users.
    const std::string& getDescription() const { return description_; }
    void setDescription(const std::string& description) { description_ = description; }

private:
    int formatId_ = 0;
    std::string description_;
};

/// The formats of the texts that a device can lay over a picture.
class OSDFormatAbility
{
public:
    /// One entry for each.
    /// @{
    const std::vector<OSDFormatType>& getOSDFormatTypeList() const { return osdFormatTypeList_; }
    std::vector<OSDFormatType>& getOSDFormatTypeList() { return osdFormatTypeList_; }
    void setOSDFormatTypeList(const std::vector<OSDFormatType>& osdFormatTypeList)
    {
        osdFormatTypeList_ = osdFormatTypeList;
    }
    /// @}

private:
    std::vector<OSDFormatType> osdFormatTypeList_;
};

/// A font of the texts that are laid over a picture.
class OSDFontType
{
public:
    /// Its number on the device.
    int getFontId() const { return fontId_; }
    void setFontId(int fontId) { fontId_ = fontId; }

    /// What it looks like, for users.
    const std::string& getDescription() const { return description_; }
    void setDescription(const std::string& description) { description_ = description; }

private:
    int fontId_ = 0;
    std::string description_;
};

/// A colour of the texts that are laid over a picture, as the device scales it.
class OSDColor
{
public:
    /// Share of red.
    int getColorR() const { return colorR_; }
    void setColorR(int colorR) { colorR_ = colorR; }

    /// Share of green.
    int getColorG() const { return colorG_; }
    void setColorG(int colorG) { colorG_ = colorG; }

    /// Share of blue.
    int getColorB() const { return colorB_; }
    void setColorB(int colorB) { colorB_ = colorB; }

private:
    int colorR_ = 0;
    int colorG_ = 0;
    int colorB_ = 0;
};

/// A colour for places where the picture is nearly of the chosen one.
using OSDInverseColor = OSDColor;

/// An opacity of the texts that are laid over a picture.
class OSDAlpha
{
public:
    /// Its degree, as the device scales it.
    int getAlpha() const { return alpha_; }
    void setAlpha(int alpha) { alpha_ = alpha; }

private:
    int alpha_ = 0;
};

/// The looks of the texts that a device can lay over a picture.
class OSDFontAbility
{
public:
    /// The fonts.
    /// @{
    const std::vector<OSDFontType>& getOSDFontTypeList() const { return osdFontTypeList_; }
    std::vector<OSDFontType>& getOSDFontTypeList() { return osdFontTypeList_; }
    void setOSDFontTypeList(const std::vector<OSDFontType>& osdFontTypeList) { osdFontTypeList_ = osdFontTypeList; }
    /// @}

    /// The colours.
    /// @{
    const std::vector<OSDColor>& getOSDColorList() const { return osdColorList_; }
    std::vector<OSDColor>& getOSDColorList() { return osdColorList_; }
    void setOSDColorList(const std::vector<OSDColor>& osdColorList) { osdColorList_ = osdColorList; }
    /// @}

    /// The colours for places where the picture is nearly of the chosen one.
    /// @{
    const std::vector<OSDInverseColor>& getOSDInverseColorList() const { return osdInverseColorList_; }
    std::vector<OSDInverseColor>& getOSDInverseColorList() { return osdInverseColorList_; }
    void setOSDInverseColorList(const std::vector<OSDInverseColor>& osdInverseColorList)
    {
        osdInverseColorList_ = osdInverseColorList;
    }
    /// @}

    /// The degrees of opacity.
    /// @{
    const std::vector<OSDAlpha>& getOSDAlphaList() const { return osdAlphaList_; }
    std::vector<OSDAlpha>& getOSDAlphaList() { return osdAlphaList_; }
    void setOSDAlphaList(const std::vector<OSDAlpha>& osdAlphaList) { osdAlphaList_ = osdAlphaList; }
    /// @}

private:
    std::vector<OSDFontType> osdFontTypeList_;
    std::vector<OSDColor> osdColorList_;
    std::vector<OSDInverseColor> osdInverseColorList_;
    std::vector<OSDAlpha> osdAlphaList_;
};

/// A size of pictures.
class VideoResolution
{
public:
    /// In pixels.
    int getVideoHeight() const { return videoHeight_; }
    void setVideoHeight(int videoHeight) { videoHeight_ = videoHeight; }

    /// In pixels.
    int getVideoWidth() const { return videoWidth_; }
    void setVideoWidth(int videoWidth) { videoWidth_ = videoWidth; }

    /// Its name, for users.
    const std::string& getResolutionName() const { return resolutionName_; }
    void setResolutionName(const std::string& resolutionName) { resolutionName_ = resolutionName; }

private:
    int videoHeight_ = 0;
    int videoWidth_ = 0;
    std::string resolutionName_;
};

/// A television system.
class VideoSystem
{
public:
    /// Its number on the device.
    int getVideoSystemId() const { return videoSystemId_; }
    void setVideoSystemId(int videoSystemId) { videoSystemId_ = videoSystemId; }

    /// Its name, for users.
    const std::string& getVideoSystemName() const { return videoSystemName_; }
    void setVideoSystemName(const std::string& videoSystemName) { videoSystemName_ = videoSystemName; }

private:
    int videoSystemId_ = 0;
    std::string videoSystemName_;
};

/// What a camera can do to encode pictures of one format, in the older description.
class EncoderAbility
{
public:
    /// The format's number on the device.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// Most frames in a second.
    int getMaxFrameRate() const { return maxFrameRate_; }
    void setMaxFrameRate(int maxFrameRate) { maxFrameRate_ = maxFrameRate; }

    /// Fewest frames in a second.
    int getMinFrameRate() const { return minFrameRate_; }
    void setMinFrameRate(int minFrameRate) { minFrameRate_ = minFrameRate; }

    /// Highest bit rate, in the unit of the device.
    int getMaxBitRate() const { return maxBitRate_; }
    void setMaxBitRate(int maxBitRate) { maxBitRate_ = maxBitRate; }

    /// Lowest bit rate, in the unit of the device.
    int getMinBitRate() const { return minBitRate_; }
    void setMinBitRate(int minBitRate) { minBitRate_ = minBitRate; }

    /// Best quality, as the device scales it.
    int getMaxQuality() const { return maxQuality_; }
    void setMaxQuality(int maxQuality) { maxQuality_ = maxQuality; }

    /// Worst quality, as the device scales it.
    int getMinQuality() const { return minQuality_; }
    void setMinQuality(int minQuality) { minQuality_ = minQuality; }

    /// Height of the pictures, in pixels.
    int getHeight() const { return height_; }
    void setHeight(int height) { height_ = height; }

    /// Width of the pictures, in pixels.
    int getWidth() const { return width_; }
    void setWidth(int width) { width_ = width; }

    /// Kind of encoder, as the device numbers it.
    int getEncoderType() const { return encoderType_; }
    void setEncoderType(int encoderType) { encoderType_ = encoderType; }

    /// Television system, as the device numbers it.
    int getVideoSystem() const { return videoSystem_; }
    void setVideoSystem(int videoSystem) { videoSystem_ = videoSystem; }

    /// Its kinds of bit rate, as the device numbers them.
    /// @{
    const std::vector<int>& getBitRateTypeList() const { return bitRateTypeList_; }
    std::vector<int>& getBitRateTypeList() { return bitRateTypeList_; }
    void setBitRateTypeList(const std::vector<int>& bitRateTypeList) { bitRateTypeList_ = bitRateTypeList; }
    void addBitRateType(int bitRateType) { bitRateTypeList_.push_back(bitRateType); }
    /// @}

private:
    int imageFormatId_ = 0;
    int maxFrameRate_ = 0;
    int minFrameRate_ = 0;
    int maxBitRate_ = 0;
    int minBitRate_ = 0;
    int maxQuality_ = 0;
    int minQuality_ = 0;
    int height_ = 0;
    int width_ = 0;
    int encoderType_ = 0;
    int videoSystem_ = 0;
    std::vector<int> bitRateTypeList_;
};

/// What one camera of a device can do, in the older description.
class CameraAbility
{
public:
    /// What it can do to encode pictures, by format.
    /// @{
    const std::vector<EncoderAbility>& getEncoderAbilityList() const { return encoderAbilityList_; }
    std::vector<EncoderAbility>& getEncoderAbilityList() { return encoderAbilityList_; }
    void setEncoderAbilityList(const std::vector<EncoderAbility>& encoderAbilityList)
    {
        encoderAbilityList_ = encoderAbilityList;
    }
    void addEncoderAbility(EncoderAbility encoderAbility) { encoderAbilityList_.push_back(std::move(encoderAbility)); }
    /// @}

    /// How finely it detects motion, by format.
    /// @{
    const std::vector<MotionDetectionAbility>& getMotionDetectionAbilityList() const
    {
        return motionDetectionAbilityList_;
    }
    std::vector<MotionDetectionAbility>& getMotionDetectionAbilityList() { return motionDetectionAbilityList_; }
    void setMotionDetectionAbilityList(const std::vector<MotionDetectionAbility>& motionDetectionAbilityList)
    {
        motionDetectionAbilityList_ = motionDetectionAbilityList;
    }
    void addMotionDetectionAbility(MotionDetectionAbility motionDetectionAbility)
    {
        motionDetectionAbilityList_.push_back(motionDetectionAbility);
    }
    /// @}

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether users can configure it.
    bool getUserConfigurable() const { return userConfigurable_; }
    void setUserConfigurable(bool userConfigurable) { userConfigurable_ = userConfigurable; }

    /// Whether it detects motion.
    bool getMotionDetectionSupportFlag() const { return motionDetectionSupportFlag_; }
    void setMotionDetectionSupportFlag(bool motionDetectionSupportFlag)
    {
        motionDetectionSupportFlag_ = motionDetectionSupportFlag;
    }

private:
    std::vector<EncoderAbility> encoderAbilityList_;
    std::vector<MotionDetectionAbility> motionDetectionAbilityList_;
    int cameraId_ = 0;
    bool userConfigurable_ = false;
    bool motionDetectionSupportFlag_ = false;
};

/// What a device can do with video, in the older description.
class VideoAbility
{
public:
    /// Number of cameras.
    int getCameraNum() const { return cameraNum_; }
    void setCameraNum(int cameraNum) { cameraNum_ = cameraNum; }

    /// What each of them can do.
    /// @{
    const std::vector<CameraAbility>& getCameraAbilityList() const { return cameraAbilityList_; }
    std::vector<CameraAbility>& getCameraAbilityList() { return cameraAbilityList_; }
    void setCameraAbilityList(const std::vector<CameraAbility>& cameraAbilityList)
    {
        cameraAbilityList_ = cameraAbilityList;
    }
    void addCameraAbility(CameraAbility cameraAbility) { cameraAbilityList_.push_back(std::move(cameraAbility)); }
    /// @}

private:
    int cameraNum_ = 0;
    std::vector<CameraAbility> cameraAbilityList_;
};

/// What a device can do, in the older description.
class DeviceAbility
{
public:
    /// With video.
    /// @{
    const VideoAbility& getVideoAbility() const { return videoAbility_; }
    VideoAbility& getVideoAbility() { return videoAbility_; }
    void setVideoAbility(VideoAbility& videoAbility) { videoAbility_ = videoAbility; }
    /// @}

    /// With sound.
    /// @{
    const AudioAbility& getAudioAbility() const { return audioAbility_; }
    AudioAbility& getAudioAbility() { return audioAbility_; }
    void setAudioAbility(AudioAbility& audioAbility) { audioAbility_ = audioAbility; }
    /// @}

private:
    VideoAbility videoAbility_;
    AudioAbility audioAbility_;
};

/// What a stream can carry in one encoding.
class StreamEncodeAbility
{
public:
    /// The sizes of its pictures.
    /// @{
    const std::vector<VideoResolution>& getVideoResolutionList() const { return videoResolutionList_; }
    std::vector<VideoResolution>& getVideoResolutionList() { return videoResolutionList_; }
    void setVideoResolutionList(const std::vector<VideoResolution>& videoResolutionList)
    {
        videoResolutionList_ = videoResolutionList;
    }
    /// @}

    /// The encoding, as the device numbers it.
    int getEncoderType() const { return encoderType_; }
    void setEncoderType(int encoderType) { encoderType_ = encoderType; }

private:
    std::vector<VideoResolution> videoResolutionList_;
    int encoderType_ = 0;
};

/// In which ways a stream can be sent.
class AVStreamAttributeAbility
{
public:
    /// How it is sent, as the device numbers it.
    int getStreamMode() const { return streamMode_; }
    void setStreamMode(int streamMode) { streamMode_ = streamMode; }

    /// The numbers of frames that it can skip.
    /// @{
    const std::vector<int>& getFrameSkipIntervalList() const { return frameSkipIntervalList_; }
    std::vector<int>& getFrameSkipIntervalList() { return frameSkipIntervalList_; }
    void setFrameSkipIntervalList(const std::vector<int>& frameSkipIntervalList)
    {
        frameSkipIntervalList_ = frameSkipIntervalList;
    }
    /// @}

    /// The layers into which it can be divided, by their numbers on the device.
    /// @{
    const std::vector<int>& getSVCStreamIDList() const { return svcStreamIDList_; }
    std::vector<int>& getSVCStreamIDList() { return svcStreamIDList_; }
    void setSVCStreamIDList(const std::vector<int>& svcStreamIDList) { svcStreamIDList_ = svcStreamIDList; }
    /// @}

private:
    int streamMode_ = 0;
    std::vector<int> frameSkipIntervalList_;
    std::vector<int> svcStreamIDList_;
};

/// What one stream of a camera can do.
class AVStreamAbility
{
public:
    /// What it can carry, by encoding.
    /// @{
    const std::vector<StreamEncodeAbility>& getStreamEncodeAbilityList() const { return streamEncodeAbilityList_; }
    std::vector<StreamEncodeAbility>& getStreamEncodeAbilityList() { return streamEncodeAbilityList_; }
    void setStreamEncodeAbilityList(const std::vector<StreamEncodeAbility>& streamEncodeAbilityList)
    {
        streamEncodeAbilityList_ = streamEncodeAbilityList;
    }
    /// @}

    /// The stream's number on the camera.
    int getStreamId() const { return streamId_; }
    void setStreamId(int streamId) { streamId_ = streamId; }

    /// The ways in which it can be sent.
    /// @{
    const AVStreamAttributeAbility& getAVStreamAttributeAbility() const { return avStreamAttributeAbility_; }
    AVStreamAttributeAbility& getAVStreamAttributeAbility() { return avStreamAttributeAbility_; }
    void setAVStreamAttributeAbility(const AVStreamAttributeAbility& avStreamAttributeAbility)
    {
        avStreamAttributeAbility_ = avStreamAttributeAbility;
    }
    /// @}

    /// Whether it can encode regions better than the rest.
    bool getSupportROI() const { return supportROI_; }
    void setSupportROI(bool supportROI) { supportROI_ = supportROI; }

    /// What it can do with such regions.
    /// @{
    const ROIAbility& getROIAbility() const { return roiAbility_; }
    ROIAbility& getROIAbility() { return roiAbility_; }
    void setROIAbility(const ROIAbility& roiAbility) { roiAbility_ = roiAbility; }
    /// @}

private:
    std::vector<StreamEncodeAbility> streamEncodeAbilityList_;
    int streamId_ = 0;
    AVStreamAttributeAbility avStreamAttributeAbility_;
    bool supportROI_ = false;
    ROIAbility roiAbility_;
};

/// What one camera of a device can do.
class CameraExAbility
{
public:
    /// The largest size of its pictures.
    /// @{
    const VideoResolution& getMaxVideoResolution() const { return maxVideoResolution_; }
    VideoResolution& getMaxVideoResolution() { return maxVideoResolution_; }
    void setMaxVideoResolution(const VideoResolution& maxVideoResolution) { maxVideoResolution_ = maxVideoResolution; }
    /// @}

    /// What it can do to hide areas.
    /// @{
    const BlindAbility& getBlindAbility() const { return blindAbility_; }
    BlindAbility& getBlindAbility() { return blindAbility_; }
    void setBlindAbility(const BlindAbility& blindAbility) { blindAbility_ = blindAbility; }
    /// @}

    /// The sizes in which it takes pictures in.
    /// @{
    const std::vector<VideoResolution>& getSourceResolutionList() const { return sourceResolutionList_; }
    std::vector<VideoResolution>& getSourceResolutionList() { return sourceResolutionList_; }
    void setSourceResolutionList(const std::vector<VideoResolution>& sourceResolutionList)
    {
        sourceResolutionList_ = sourceResolutionList;
    }
    /// @}

    /// The sizes in which it sends pictures.
    /// @{
    const std::vector<VideoResolution>& getVideoResolutionList() const { return videoResolutionList_; }
    std::vector<VideoResolution>& getVideoResolutionList() { return videoResolutionList_; }
    void setVideoResolutionList(const std::vector<VideoResolution>& videoResolutionList)
    {
        videoResolutionList_ = videoResolutionList;
    }
    /// @}

    /// What each of its streams can do.
    /// @{
    const std::vector<AVStreamAbility>& getAVStreamAbilityList() const { return avStreamAbilityList_; }
    std::vector<AVStreamAbility>& getAVStreamAbilityList() { return avStreamAbilityList_; }
    void setAVStreamAbilityList(const std::vector<AVStreamAbility>& avStreamAbilityList)
    {
        avStreamAbilityList_ = avStreamAbilityList;
    }
    /// @}

    /// How finely it detects motion.
    /// @{
    const MotionDetectionExAbility& getMotionDetectionExAbility() const { return motionDetectionExAbility_; }
    MotionDetectionExAbility& getMotionDetectionExAbility() { return motionDetectionExAbility_; }
    void setMotionDetectionExAbility(const MotionDetectionExAbility& motionDetectionExAbility)
    {
        motionDetectionExAbility_ = motionDetectionExAbility;
    }
    /// @}

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

private:
    VideoResolution maxVideoResolution_;
    BlindAbility blindAbility_;
    std::vector<VideoResolution> sourceResolutionList_;
    std::vector<VideoResolution> videoResolutionList_;
    std::vector<AVStreamAbility> avStreamAbilityList_;
    MotionDetectionExAbility motionDetectionExAbility_;
    int cameraId_ = 0;
};

/// What an encoder can do with pictures of one size.
class VideoResolutionAbility
{
public:
    /// Most frames in a second.
    int getMaxFrameRate() const { return maxFrameRate_; }
    void setMaxFrameRate(int maxFrameRate) { maxFrameRate_ = maxFrameRate; }

    /// Fewest frames in a second.
    int getMinFrameRate() const { return minFrameRate_; }
    void setMinFrameRate(int minFrameRate) { minFrameRate_ = minFrameRate; }

    /// Highest bit rate, in the unit of the device.
    int getMaxBitRate() const { return maxBitRate_; }
    void setMaxBitRate(int maxBitRate) { maxBitRate_ = maxBitRate; }

    /// Lowest bit rate, in the unit of the device.
    int getMinBitRate() const { return minBitRate_; }
    void setMinBitRate(int minBitRate) { minBitRate_ = minBitRate; }

    /// Best quality, as the device scales it.
    int getMaxQuality() const { return maxQuality_; }
    void setMaxQuality(int maxQuality) { maxQuality_ = maxQuality; }

    /// Worst quality, as the device scales it.
    int getMinQuality() const { return minQuality_; }
    void setMinQuality(int minQuality) { minQuality_ = minQuality; }

    /// Longest way from one key frame to the next.
    int getMaxIFrameInterval() const { return maxIFrameInterval_; }
    void setMaxIFrameInterval(int maxIFrameInterval) { maxIFrameInterval_ = maxIFrameInterval; }

    /// Shortest way from one key frame to the next.
    int getMinIFrameInterval() const { return minIFrameInterval_; }
    void setMinIFrameInterval(int minIFrameInterval) { minIFrameInterval_ = minIFrameInterval; }

    /// Unit of these ways, as the device numbers it.
    int getIFrameIntervalUnit() const { return iFrameIntervalUnit_; }
    void setIFrameIntervalUnit(const int& iFrameIntervalUnit) { iFrameIntervalUnit_ = iFrameIntervalUnit; }

    /// Its kinds of bit rate, as the device numbers them.
    /// @{
    const std::vector<int>& getBitRateTypeList() const { return bitRateTypeList_; }
    std::vector<int>& getBitRateTypeList() { return bitRateTypeList_; }
    void setBitRateTypeList(const std::vector<int>& bitRateTypeList) { bitRateTypeList_ = bitRateTypeList; }
    /// @}

    /// The size.
    /// @{
    const VideoResolution& getVideoResolution() const { return videoResolution_; }
    VideoResolution& getVideoResolution() { return videoResolution_; }
    void setVideoResolution(const VideoResolution& videoResolution) { videoResolution_ = videoResolution; }
    /// @}

private:
    int maxFrameRate_ = 0;
    int minFrameRate_ = 0;
    int maxBitRate_ = 0;
    int minBitRate_ = 0;
    int maxQuality_ = 0;
    int minQuality_ = 0;
    int maxIFrameInterval_ = 0;
    int minIFrameInterval_ = 0;
    int iFrameIntervalUnit_ = 0;
    std::vector<int> bitRateTypeList_;
    VideoResolution videoResolution_;
};

/// What an encoder of a device can do.
class VideoEncoderAbility
{
public:
    /// Its kind, as the device numbers it.
    int getEncoderType() const { return encoderType_; }
    void setEncoderType(int encoderType) { encoderType_ = encoderType; }

    /// Its name, for users.
    const std::string& getEncoderName() const { return encoderName_; }
    void setEncoderName(const std::string& encoderName) { encoderName_ = encoderName; }

    /// How much it can encode in all, as the device scales it.
    int getVideoEncodeTotleAbility() const { return videoEncodeTotleAbility_; }
    void setVideoEncodeTotleAbility(int videoEncodeTotleAbility) { videoEncodeTotleAbility_ = videoEncodeTotleAbility; }

    /// What it can do, by size of the pictures.
    /// @{
    const std::vector<VideoResolutionAbility>& getVideoResolutionAbilityList() const
    {
        return videoResolutionAbilityList_;
    }
    std::vector<VideoResolutionAbility>& getVideoResolutionAbilityList() { return videoResolutionAbilityList_; }
    void setVideoResolutionAbilityList(const std::vector<VideoResolutionAbility>& videoResolutionAbilityList)
    {
        videoResolutionAbilityList_ = videoResolutionAbilityList;
    }
    /// @}

private:
    int encoderType_ = 0;
    std::string encoderName_;
    int videoEncodeTotleAbility_ = 0;
    std::vector<VideoResolutionAbility> videoResolutionAbilityList_;
};

/// The sizes in which pictures of one television system are taken in.
class SourceResolutionAbility
{
public:
    /// The system.
    /// @{
    const VideoSystem& getVideoSystem() const { return videoSystem_; }
    VideoSystem& getVideoSystem() { return videoSystem_; }
    void setVideoSystem(const VideoSystem& videoSystem) { videoSystem_ = videoSystem; }
    /// @}

    /// The sizes.
    /// @{
    const std::vector<VideoResolution>& getSourceResolutionList() const { return sourceResolutionList_; }
    std::vector<VideoResolution>& getSourceResolutionList() { return sourceResolutionList_; }
    void setSourceResolutionList(const std::vector<VideoResolution>& sourceResolutionList)
    {
        sourceResolutionList_ = sourceResolutionList;
    }
    /// @}

private:
    VideoSystem videoSystem_;
    std::vector<VideoResolution> sourceResolutionList_;
};

/// What a device can do with its video output.
class VideoOutAbility
{
public:
    /// Whether users can configure it.
    bool getVideoOutConfigurable() const { return videoOutConfigurable_; }
    void setVideoOutConfigurable(bool videoOutConfigurable) { videoOutConfigurable_ = videoOutConfigurable; }

    /// Whether there is one.
    bool getIsSupportVideoOut() const { return isSupportVideoOut_; }
    void setIsSupportVideoOut(bool isSupportVideoOut) { isSupportVideoOut_ = isSupportVideoOut; }

private:
    bool videoOutConfigurable_ = false;
    bool isSupportVideoOut_ = false;
};

/// What a device can do with video.
class VideoExAbility
{
public:
    /// Whether users can choose the television system.
    bool getVideoSystemConfigurableFlag() const { return videoSystemConfigurableFlag_; }
    void setVideoSystemConfigurableFlag(bool videoSystemConfigurableFlag)
    {
        videoSystemConfigurableFlag_ = videoSystemConfigurableFlag;
    }

    /// What each camera can do.
    /// @{
    const std::vector<CameraExAbility>& getCameraExAbilityList() const { return cameraExAbilityList_; }
    std::vector<CameraExAbility>& getCameraExAbilityList() { return cameraExAbilityList_; }
    void setCameraExAbilityList(const std::vector<CameraExAbility>& cameraExAbilityList)
    {
        cameraExAbilityList_ = cameraExAbilityList;
    }
    /// @}

    /// What each encoder can do.
    /// @{
    const std::vector<VideoEncoderAbility>& getVideoEncoderAbilityList() const { return videoEncoderAbilityList_; }
    std::vector<VideoEncoderAbility>& getVideoEncoderAbilityList() { return videoEncoderAbilityList_; }
    void setVideoEncoderAbilityList(const std::vector<VideoEncoderAbility>& videoEncoderAbilityList)
    {
        videoEncoderAbilityList_ = videoEncoderAbilityList;
    }
    /// @}

    /// The television systems that it knows.
    /// @{
    const std::vector<VideoSystem>& getVideoSystemList() const { return videoSystemList_; }
    std::vector<VideoSystem>& getVideoSystemList() { return videoSystemList_; }
    void setVideoSystemList(const std::vector<VideoSystem>& videoSystemList) { videoSystemList_ = videoSystemList; }
    /// @}

    /// The sizes in which it takes pictures in, by system.
    /// @{
    const std::vector<SourceResolutionAbility>& getSourceResolutionAbilityList() const
    {
        return sourceResolutionAbilityList_;
    }
    std::vector<SourceResolutionAbility>& getSourceResolutionAbilityList() { return sourceResolutionAbilityList_; }
    void setSourceResolutionAbilityList(const std::vector<SourceResolutionAbility>& sourceResolutionAbilityList)
    {
        sourceResolutionAbilityList_ = sourceResolutionAbilityList;
    }
    /// @}

    /// What it can do with its output.
    /// @{
    const VideoOutAbility& getVideoOutAbility() const { return videoOutAbility_; }
    VideoOutAbility& getVideoOutAbility() { return videoOutAbility_; }
    void setVideoOutAbility(const VideoOutAbility& videoOutAbility) { videoOutAbility_ = videoOutAbility; }
    /// @}

private:
    bool videoSystemConfigurableFlag_ = false;
    std::vector<CameraExAbility> cameraExAbilityList_;
    std::vector<VideoEncoderAbility> videoEncoderAbilityList_;
    std::vector<VideoSystem> videoSystemList_;
    std::vector<SourceResolutionAbility> sourceResolutionAbilityList_;
    VideoOutAbility videoOutAbility_;
};

/// What a device can do.
class DeviceExAbility
{
public:
    /// With heads.
    /// @{
    const PTZAbility& getPTZAbility() const { return ptzAbility_; }
    PTZAbility& getPTZAbility() { return ptzAbility_; }
    void setPTZAbility(const PTZAbility& ptzAbility) { ptzAbility_ = ptzAbility; }
    /// @}

    /// With video.
    /// @{
    const VideoExAbility& getVideoExAbility() const { return videoExAbility_; }
    VideoExAbility& getVideoExAbility() { return videoExAbility_; }
    void setVideoExAbility(const VideoExAbility& videoExAbility) { videoExAbility_ = videoExAbility; }
    /// @}

    /// With sound.
    /// @{
    const AudioExAbility& getAudioExAbility() const { return audioExAbility_; }
    AudioExAbility& getAudioExAbility() { return audioExAbility_; }
    void setAudioExAbility(const AudioExAbility& audioExAbility) { audioExAbility_ = audioExAbility; }
    /// @}

    /// With disks, by their kind.
    /// @{
    const std::vector<FileSystemAbility>& getFileSystemAbilityList() const { return fileSystemAbilityList_; }
    std::vector<FileSystemAbility>& getFileSystemAbilityList() { return fileSystemAbilityList_; }
    void setFileSystemAbilityList(const std::vector<FileSystemAbility>& fileSystemAbilityList)
    {
        fileSystemAbilityList_ = fileSystemAbilityList;
    }
    /// @}

    /// The modes in which it can work.
    /// @{
    const std::vector<WorkingMode>& getWorkingModeAbility() const { return workingModeAbility_; }
    std::vector<WorkingMode>& getWorkingModeAbility() { return workingModeAbility_; }
    void setWorkingModeAbility(const std::vector<WorkingMode>& workingModeAbility)
    {
        workingModeAbility_ = workingModeAbility;
    }
    /// @}

    /// The languages in which it speaks to its users.
    /// @{
    const std::vector<LanguageType>& getLanguageAbility() const { return languageAbility_; }
    std::vector<LanguageType>& getLanguageAbility() { return languageAbility_; }
    void setLanguageAbility(const std::vector<LanguageType>& languageAbility) { languageAbility_ = languageAbility; }
    /// @}

    /// Its network cards.
    /// @{
    const std::vector<IPCNetworkCardAbility>& getNetworkAbility() const { return networkAbility_; }
    std::vector<IPCNetworkCardAbility>& getNetworkAbility() { return networkAbility_; }
    void setNetworkAbility(const std::vector<IPCNetworkCardAbility>& networkAbility)
    {
        networkAbility_ = networkAbility;
    }
    /// @}

    /// Whether it has a passive infrared detector.
    /// @{
    const PIRAlarmAbility& getPIRAlarmAbility() const { return pirAlarmAbility_; }
    PIRAlarmAbility& getPIRAlarmAbility() { return pirAlarmAbility_; }
    void setPIRAlarmAbility(const PIRAlarmAbility& pirAlarmAbility) { pirAlarmAbility_ = pirAlarmAbility; }
    /// @}

    /// Whether it can reach wireless networks.
    /// @{
    const WifiAbilityParam& getWifiAbilityParam() const { return wifiAbilityParam_; }
    WifiAbilityParam& getWifiAbilityParam() { return wifiAbilityParam_; }
    void setWifiAbilityParam(const WifiAbilityParam& wifiAbilityParam) { wifiAbilityParam_ = wifiAbilityParam; }
    /// @}

private:
    PTZAbility ptzAbility_;
    VideoExAbility videoExAbility_;
    AudioExAbility audioExAbility_;
    std::vector<FileSystemAbility> fileSystemAbilityList_;
    std::vector<WorkingMode> workingModeAbility_;
    std::vector<LanguageType> languageAbility_;
    std::vector<IPCNetworkCardAbility> networkAbility_;
    PIRAlarmAbility pirAlarmAbility_;
    WifiAbilityParam wifiAbilityParam_;
};

/// How one camera takes its pictures in.
class SourceResolution
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Its television system.
    /// @{
    const VideoSystem& getVideoSystem() const { return videoSystem_; }
    VideoSystem& getVideoSystem() { return videoSystem_; }
    void setVideoSystem(const VideoSystem& videoSystem) { videoSystem_ = videoSystem; }
    /// @}

    /// The size of its pictures.
    /// @{
    const VideoResolution& getVideoResolution() const { return videoResolution_; }
    VideoResolution& getVideoResolution() { return videoResolution_; }
    void setVideoResolution(const VideoResolution& videoResolution) { videoResolution_ = videoResolution; }
    /// @}

private:
    int cameraId_ = 0;
    VideoSystem videoSystem_;
    VideoResolution videoResolution_;
};

/// A kind of bit rate.
class BitrateType
{
public:
    /// Its number on the device.
    int getBitrateTypeId() const { return bitrateTypeId_; }
    void setBitrateTypeId(int bitrateTypeId) { bitrateTypeId_ = bitrateTypeId; }

    /// Its name, for users.
    const std::string& getBitrateTypeName() const { return bitrateTypeName_; }
    void setBitrateTypeName(const std::string& bitrateTypeName) { bitrateTypeName_ = bitrateTypeName; }

private:
    int bitrateTypeId_ = 0;
    std::string bitrateTypeName_;
};

/// A size of pictures, by number.
class Resolution
{
public:
    /// Its number on the device.
    int getResolutionId() const { return resolutionId_; }
    void setResolutionId(int resolutionId) { resolutionId_ = resolutionId; }

    /// Its name, for users.
    const std::string& getResolutionName() const { return resolutionName_; }
    void setResolutionName(const std::string& resolutionName) { resolutionName_ = resolutionName; }

private:
    int resolutionId_ = 0;
    std::string resolutionName_;
};

/// A format of pictures.
class ImageFormat
{
public:
    /// Its number on the device.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// Its name, for users.
    const std::string& getImageFormatName() const { return imageFormatName_; }
    void setImageFormatName(const std::string& imageFormatName) { imageFormatName_ = imageFormatName; }

private:
    int imageFormatId_ = 0;
    std::string imageFormatName_;
};

/// The format in which one camera sends its pictures.
class DeviceImageFormat
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The format's number on the device.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

private:
    std::string deviceId_;
    int cameraId_ = 0;
    int imageFormatId_ = 0;
};

/// The favoured regions of one camera of a device.
class DeviceROIInfoParam
{
public:
    /// The camera.
    /// @{
    const CameraInfo& getCameraInfo() const { return cameraInfo_; }
    CameraInfo& getCameraInfo() { return cameraInfo_; }
    void setCameraInfo(const CameraInfo& cameraInfo) { cameraInfo_ = cameraInfo; }
    /// @}

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
    CameraInfo cameraInfo_;
    std::vector<ROIInfoParam> roiInfoParamList_;
};
