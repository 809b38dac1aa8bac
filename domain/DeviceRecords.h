#pragma once

/// @file
/// The records of a device's identity, abilities and state.
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
    std::uint16_t getTCPAVPort() const { return tcpavPort_; }
    void setTCPAVPort(std::uint16_t tcpavPort) { tcpavPort_ = tcpavPort; }

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
    std::uint16_t tcpavPort_ = 0;
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
