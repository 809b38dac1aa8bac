#pragma once

/// @file
/// The records of pan-tilt-zoom heads and serial ports.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/CoreRecords.h"

#include <string>
#include <vector>

/// A protocol by which heads are driven.
class PTZProtocol
{
public:
    /// The protocol's number on the device.
    int getProtocolId() const { return protocolId_; }
    void setProtocolId(int protocolId) { protocolId_ = protocolId; }

    /// Its name, for users.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const std::string& protocolName) { protocolName_ = protocolName; }

private:
    int protocolId_ = 0;
    std::string protocolName_;
};

/// An RS-485 port of a device.
class RS485Device
{
public:
    /// The port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

    /// Its name, as set by the user.
    const std::string& getComName() const { return comName_; }
    void setComName(const std::string& comName) { comName_ = comName; }

    /// In bits per second.
    int getBaudRate() const { return baudRate_; }
    void setBaudRate(int baudRate) { baudRate_ = baudRate; }

    /// Bits of a character.
    int getDataBits() const { return dataBits_; }
    void setDataBits(int dataBits) { dataBits_ = dataBits; }

    /// Stop bits, as the device numbers them.
    int getStopBits() const { return stopBits_; }
    void setStopBits(int stopBits) { stopBits_ = stopBits; }

    /// Kind of parity, as the device numbers it.
    int getParity() const { return parity_; }
    void setParity(int parity) { parity_ = parity; }

    /// Kind of flow control, as the device numbers it.
    int getFlowControl() const { return flowControl_; }
    void setFlowControl(int flowControl) { flowControl_ = flowControl; }

private:
    int comId_ = 0;
    std::string comName_;
    int baudRate_ = 0;
    int dataBits_ = 0;
    int stopBits_ = 0;
    int parity_ = 0;
    int flowControl_ = 0;
};

/// The port by which something is attached to a device.
class ExternInterface
{
public:
    /// What kind of port it is: 1 for RS-485, others as the device numbers them.
    int getInterfaceType() const { return interfaceType_; }
    void setInterfaceType(int interfaceType) { interfaceType_ = interfaceType; }

    /// The port itself; it counts only where the kind is 1.
    /// @{
    const RS485Device& getRS485Device() const { return rs485Device_; }
    RS485Device& getRS485Device() { return rs485Device_; }
    void setRS485Device(const RS485Device& rs485Device) { rs485Device_ = rs485Device; }
    /// @}

private:
    int interfaceType_ = 0;
    RS485Device rs485Device_;
};

/// An RS-232 port of a device.
class RS232Param
{
public:
    /// The port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

    /// What the port is used for, as the device numbers it.
    int getFunction() const { return function_; }
    void setFunction(int function) { function_ = function; }

    /// In bits per second.
    int getBaudRate() const { return baudRate_; }
    void setBaudRate(int baudRate) { baudRate_ = baudRate; }

    /// Bits of a character.
    int getDataBits() const { return dataBits_; }
    void setDataBits(int dataBits) { dataBits_ = dataBits; }

    /// Stop bits, as the device numbers them.
    int getStopBits() const { return stopBits_; }
    void setStopBits(int stopBits) { stopBits_ = stopBits; }

    /// Kind of parity, as the device numbers it.
    int getParity() const { return parity_; }
    void setParity(int parity) { parity_ = parity; }

private:
    int comId_ = 0;
    int function_ = 0;
    int baudRate_ = 0;
    int dataBits_ = 0;
    int stopBits_ = 0;
    int parity_ = 0;
};

/// The name of an RS-232 port.
class RS232DeviceInfo
{
public:
    /// Its name, as set by the user.
    const std::string& getName() const { return name_; }
    void setName(const std::string& name) { name_ = name; }

    /// The port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

private:
    std::string name_;
    int comId_ = 0;
};

/// The name of an RS-485 port.
class RS485DeviceInfo
{
public:
    /// The port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

    /// Its name, as set by the user.
    const std::string& getName() const { return name_; }
    void setName(const std::string& name) { name_ = name; }

private:
    int comId_ = 0;
    std::string name_;
};

/// Raw bytes for or from a serial port.
class ComData
{
public:
    /// How many bytes there are.
    int getDataLength() const { return static_cast<int>(data_.size()); }

    /// The bytes, and a terminating zero behind them; valid until the next call of the setter.
    const char* getData() const { return data_.c_str(); }
    /// Copies the bytes. A null pointer or a length below 1 empties the buffer.
    void setData(const char* data, int length)
    {
        data_ = data == nullptr || length < 1 ? std::string() : std::string(data, static_cast<std::size_t>(length));
    }

private:
    std::string data_;
};

/// A cash register that writes its receipts over pictures.
class CashRegistersParam
{
public:
    /// True if its text is shown.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// Where the text stands, across, in the unit that the device uses.
    int getOSDTopX() const { return osdTopX_; }
    void setOSDTopX(int osdTopX) { osdTopX_ = osdTopX; }

    /// Where the text stands, down, in the same unit.
    int getOSDTopY() const { return osdTopY_; }
    void setOSDTopY(int osdTopY) { osdTopY_ = osdTopY; }

    /// Language of the text, as the device numbers it.
    int getOSDLanguage() const { return osdLanguage_; }
    void setOSDLanguage(int osdLanguage) { osdLanguage_ = osdLanguage; }

    /// Model of the register, as the device numbers it. Only the document form carries it.
    int getModel() const { return model_; }
    void setModel(int model) { model_ = model; }

    /// The cameras whose pictures bear the text, by their numbers on the device.
    /// @{
    const std::vector<int>& getOSDCameraList() const { return osdCameraList_; }
    std::vector<int>& getOSDCameraList() { return osdCameraList_; }
    void setOSDCameraList(const std::vector<int>& osdCameraList) { osdCameraList_ = osdCameraList; }
    /// @}

    /// The port of the register.
    /// @{
    const ExternInterface& getExternInterface() const { return externInterface_; }
    ExternInterface& getExternInterface() { return externInterface_; }
    void setExternInterface(const ExternInterface& externInterface) { externInterface_ = externInterface; }
    /// @}

private:
    bool enableFlag_ = false;
    int osdTopX_ = 0;
    int osdTopY_ = 0;
    int osdLanguage_ = 0;
    int model_ = 0;
    std::vector<int> osdCameraList_;
    ExternInterface externInterface_;
};

/// A scanner that writes what it reads over pictures.
class ScanRegistersParam
{
public:
    /// True if its text is shown.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// Where the text stands, across, in the unit that the device uses.
    int getOSDTopX() const { return osdTopX_; }
    void setOSDTopX(int osdTopX) { osdTopX_ = osdTopX; }

    /// Where the text stands, down, in the same unit.
    int getOSDTopY() const { return osdTopY_; }
    void setOSDTopY(int osdTopY) { osdTopY_ = osdTopY; }

    /// How many lines are shown.
    int getDisplayNum() const { return displayNum_; }
    void setDisplayNum(int displayNum) { displayNum_ = displayNum; }

    /// The cameras whose pictures bear the text, by their numbers on the device.
    /// @{
    const std::vector<int>& getOSDCameraList() const { return osdCameraList_; }
    std::vector<int>& getOSDCameraList() { return osdCameraList_; }
    void setOSDCameraList(const std::vector<int>& osdCameraList) { osdCameraList_ = osdCameraList; }
    /// @}

    /// The port of the scanner.
    /// @{
    const ExternInterface& getExternInterface() const { return externInterface_; }
    ExternInterface& getExternInterface() { return externInterface_; }
    void setExternInterface(const ExternInterface& externInterface) { externInterface_ = externInterface; }
    /// @}

private:
    bool enableFlag_ = false;
    int osdTopX_ = 0;
    int osdTopY_ = 0;
    int displayNum_ = 0;
    std::vector<int> osdCameraList_;
    ExternInterface externInterface_;
};

/// How the head of one camera is attached.
class PTZParam
{
public:
    /// True if the head is in use.
    bool getPTZEnableFlag() const { return ptzEnableFlag_; }
    void setPTZEnableFlag(bool ptzEnableFlag) { ptzEnableFlag_ = ptzEnableFlag; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The head's number on its port.
    int getPTZDeviceId() const { return ptzDeviceId_; }
    void setPTZDeviceId(int ptzDeviceId) { ptzDeviceId_ = ptzDeviceId; }

    /// The protocol that it understands, as the device numbers it.
    int getPTZProtocol() const { return ptzProtocol_; }
    void setPTZProtocol(int ptzProtocol) { ptzProtocol_ = ptzProtocol; }

    /// The port's number on the device.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

    /// In bits per second.
    int getBaudRate() const { return baudRate_; }
    void setBaudRate(int baudRate) { baudRate_ = baudRate; }

    /// Bits of a character.
    int getDataBits() const { return dataBits_; }
    void setDataBits(int dataBits) { dataBits_ = dataBits; }

    /// Stop bits, as the device numbers them.
    int getStopBits() const { return stopBits_; }
    void setStopBits(int stopBits) { stopBits_ = stopBits; }

    /// Kind of parity, as the device numbers it.
    int getParity() const { return parity_; }
    void setParity(int parity) { parity_ = parity; }

private:
    bool ptzEnableFlag_ = false;
    int cameraId_ = 0;
    int ptzDeviceId_ = 0;
    int ptzProtocol_ = 0;
    int comId_ = 0;
    int baudRate_ = 0;
    int dataBits_ = 0;
    int stopBits_ = 0;
    int parity_ = 0;
};

/// How the heads of a device are attached, and which one is inside it.
class PTZParamEx
{
public:
    /// The heads.
    /// @{
    const std::vector<PTZParam>& getPTZParamList() const { return ptzParamList_; }
    std::vector<PTZParam>& getPTZParamList() { return ptzParamList_; }
    void setPTZParamList(const std::vector<PTZParam>& ptzParamList) { ptzParamList_ = ptzParamList; }
    /// @}

    /// The head inside the device, as the device numbers it.
    int getInternalPTZId() const { return internalPTZId_; }
    void setInternalPTZId(const int& internalPTZId) { internalPTZId_ = internalPTZId; }

private:
    std::vector<PTZParam> ptzParamList_;
    int internalPTZId_ = 0;
};

/// A position that a head can be sent to.
class PTZPreset
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Name of the position, as set by the user.
    const std::string& getPresetName() const { return presetName_; }
    void setPresetName(const std::string& presetName) { presetName_ = presetName; }

    /// The position's number at that camera.
    int getPresetId() const { return presetId_; }
    void setPresetId(int presetId) { presetId_ = presetId; }

private:
    int cameraId_ = 0;
    std::string presetName_;
    int presetId_ = 0;
};

/// A keyboard that drives the heads of a device.
class PTZKeyboardParam
{
public:
    /// True if the keyboard is in use.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The port of the keyboard.
    /// @{
    const ExternInterface& getExternInterface() const { return externInterface_; }
    ExternInterface& getExternInterface() { return externInterface_; }
    void setExternInterface(const ExternInterface& externInterface) { externInterface_ = externInterface; }
    /// @}

private:
    bool enableFlag_ = false;
    ExternInterface externInterface_;
};

/// What a head does in one stretch of time.
class PTZTimerTimeSegment
{
public:
    /// When it begins, in seconds.
    unsigned long getBeginTime() const { return beginTime_; }
    void setBeginTime(unsigned long beginTime) { beginTime_ = beginTime; }

    /// When it ends, in seconds.
    unsigned long getEndTime() const { return endTime_; }
    void setEndTime(unsigned long endTime) { endTime_ = endTime; }

    /// What the head does, in words of the device.
    const std::string& getPTZOperation() const { return ptzOperation_; }
    void setPTZOperation(const std::string& ptzOperation) { ptzOperation_ = ptzOperation; }

private:
    unsigned long beginTime_ = 0;
    unsigned long endTime_ = 0;
    std::string ptzOperation_;
};

/// What a head does by itself, and when.
class PTZTimer
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How the timer repeats, as the device numbers it.
    int getTimerMode() const { return timerMode_; }
    void setTimerMode(int timerMode) { timerMode_ = timerMode; }

    /// True if the timer is in use.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The day that the timer is for.
    /// @{
    const TimeStruct& getTimerDate() const { return timerDate_; }
    TimeStruct& getTimerDate() { return timerDate_; }
    void setTimerDate(const TimeStruct& timerDate) { timerDate_ = timerDate; }
    /// @}

    /// The stretches of time.
    /// @{
    const std::vector<PTZTimerTimeSegment>& getTimeSegmentList() const { return timeSegmentList_; }
    std::vector<PTZTimerTimeSegment>& getTimeSegmentList() { return timeSegmentList_; }
    void setTimeSegmentList(const std::vector<PTZTimerTimeSegment>& timeSegmentList)
    {
        timeSegmentList_ = timeSegmentList;
    }
    /// @}

private:
    int cameraId_ = 0;
    int timerMode_ = 0;
    bool enableFlag_ = false;
    TimeStruct timerDate_;
    std::vector<PTZTimerTimeSegment> timeSegmentList_;
};

/// What the abilities of a head have in common.
class IPTZModuleAbilityParam
{
public:
    IPTZModuleAbilityParam() = default;
    IPTZModuleAbilityParam(const IPTZModuleAbilityParam&) = default;
    IPTZModuleAbilityParam& operator=(const IPTZModuleAbilityParam&) = default;
    virtual ~IPTZModuleAbilityParam() = default;

    /// True if the head has the ability.
    bool getEnable() const { return enable_; }
    void setEnable(bool enable) { enable_ = enable; }

private:
    bool enable_ = false;
};

/// How far the lens of a head magnifies.
class MaxOpticalMagnificationParamV2
{
public:
    /// The highest magnification, as users are told it.
    int getMaxOpticalMagnification() const { return maxOpticalMagnification_; }
    void setMaxOpticalMagnification(int maxOpticalMagnification) { maxOpticalMagnification_ = maxOpticalMagnification; }

    /// The highest magnification that the lens reaches.
    int getMaxRealOpticalMagnification() const { return maxRealOpticalMagnification_; }
    void setMaxRealOpticalMagnification(int maxRealOpticalMagnification)
    {
        maxRealOpticalMagnification_ = maxRealOpticalMagnification;
    }

private:
    int maxOpticalMagnification_ = 0;
    int maxRealOpticalMagnification_ = 0;
};

/// A text of the head over the picture.
class PTZOSDParam
{
public:
    /// What it tells, as the device numbers it.
    int getOSDType() const { return osdType_; }
    void setOSDType(int osdType) { osdType_ = osdType; }

    /// How long it is shown, in the unit that the device uses.
    int getShowTime() const { return showTime_; }
    void setShowTime(int showTime) { showTime_ = showTime; }

    /// Where it stands, across.
    int getX() const { return x_; }
    void setX(int x) { x_ = x; }

    /// Where it stands, down.
    int getY() const { return y_; }
    void setY(int y) { y_ = y; }

private:
    int osdType_ = 0;
    int showTime_ = 0;
    int x_ = 0;
    int y_ = 0;
};

/// The speeds of a head at one stage.
class PTZStageToSpeedParam
{
public:
    /// The stage.
    int getStage() const { return stage_; }
    void setStage(int stage) { stage_ = stage; }

    /// Speed across, in the unit that the device uses.
    int getPanSpeed() const { return panSpeed_; }
    void setPanSpeed(int panSpeed) { panSpeed_ = panSpeed; }

    /// Speed up and down, in the same unit.
    int getTiltSpeed() const { return tiltSpeed_; }
    void setTiltSpeed(int tiltSpeed) { tiltSpeed_ = tiltSpeed; }

private:
    int stage_ = 0;
    int panSpeed_ = 0;
    int tiltSpeed_ = 0;
};

/// The speeds of a head at one magnification.
class MagnifyPTSpeedParam
{
public:
    /// The magnification.
    int getMagnify() const { return magnify_; }
    void setMagnify(int magnify) { magnify_ = magnify; }

    /// The stages.
    /// @{
    const std::vector<PTZStageToSpeedParam>& getPTZStageToSpeedParamList() const { return ptzStageToSpeedParamList_; }
    std::vector<PTZStageToSpeedParam>& getPTZStageToSpeedParamList() { return ptzStageToSpeedParamList_; }
    void setPTZStageToSpeedParamList(const std::vector<PTZStageToSpeedParam>& ptzStageToSpeedParamList)
    {
        ptzStageToSpeedParamList_ = ptzStageToSpeedParamList;
    }
    /// @}

private:
    int magnify_ = 0;
    std::vector<PTZStageToSpeedParam> ptzStageToSpeedParamList_;
};

/// The speeds of a head by magnification and stage.
class PTSpeedTable
{
public:
    /// Kind of the speeds, as the device numbers it.
    int getSpeedType() const { return speedType_; }
    void setSpeedType(int speedType) { speedType_ = speedType; }

    /// The magnifications.
    /// @{
    const std::vector<MagnifyPTSpeedParam>& getMagnifyPTSpeedParamList() const { return magnifyPTSpeedParamList_; }
    std::vector<MagnifyPTSpeedParam>& getMagnifyPTSpeedParamList() { return magnifyPTSpeedParamList_; }
    void setMagnifyPTSpeedParamList(const std::vector<MagnifyPTSpeedParam>& magnifyPTSpeedParamList)
    {
        magnifyPTSpeedParamList_ = magnifyPTSpeedParamList;
    }
    /// @}

private:
    int speedType_ = 0;
    std::vector<MagnifyPTSpeedParam> magnifyPTSpeedParamList_;
};

/// How fast a head moves.
class PTZSpeedParamV2 : public IPTZModuleAbilityParam
{
public:
    /// The slowest and the fastest speed that a client may ask for.
    /// @{
    void getSpeedRange(int& min, int& max) const
    {
        min = speedRangeMin_;
        max = speedRangeMax_;
    }
    void setSpeedRange(int min, int max)
    {
        speedRangeMin_ = min;
        speedRangeMax_ = max;
    }
    /// @}

    /// Time of a step across, in the unit that the device uses.
    int getPanStepPeriod() const { return panStepPeriod_; }
    void setPanStepPeriod(int panStepPeriod) { panStepPeriod_ = panStepPeriod; }

    /// Time of a step up or down, in the same unit.
    int getTiltStepPeriod() const { return tiltStepPeriod_; }
    void setTiltStepPeriod(int tiltStepPeriod) { tiltStepPeriod_ = tiltStepPeriod; }

    /// Highest speed across on the way to a position.
    int getPanGotoMaxSpeed() const { return panGotoMaxSpeed_; }
    void setPanGotoMaxSpeed(int panGotoMaxSpeed) { panGotoMaxSpeed_ = panGotoMaxSpeed; }

    /// Highest speed up and down on the way to a position.
    int getTiltGotoMaxSpeed() const { return tiltGotoMaxSpeed_; }
    void setTiltGotoMaxSpeed(int tiltGotoMaxSpeed) { tiltGotoMaxSpeed_ = tiltGotoMaxSpeed; }

private:
    int speedRangeMin_ = 0;
    int speedRangeMax_ = 0;
    int panStepPeriod_ = 0;
    int tiltStepPeriod_ = 0;
    int panGotoMaxSpeed_ = 0;
    int tiltGotoMaxSpeed_ = 0;
};

/// Whether a head can be sent to what a client marks in the picture.
class ThreeDimensionalPositionAbilityParam : public IPTZModuleAbilityParam
{
};

/// Whether a head can learn a path.
class TraceAbilityParamV2 : public IPTZModuleAbilityParam
{
public:
    /// How long a path may be, in seconds.
    int getTraceMaxSecond() const { return traceMaxSecond_; }
    void setTraceMaxSecond(int traceMaxSecond) { traceMaxSecond_ = traceMaxSecond; }

    /// How many commands a path may have.
    int getTraceMaxCmdNum() const { return traceMaxCmdNum_; }
    void setTraceMaxCmdNum(int traceMaxCmdNum) { traceMaxCmdNum_ = traceMaxCmdNum; }

    /// The first and the last number of a path.
    /// @{
    void getIDRange(int& from, int& to) const
    {
        from = idRangeFrom_;
        to = idRangeTo_;
    }
    void setIDRange(int from, int to)
    {
        idRangeFrom_ = from;
        idRangeTo_ = to;
    }
    /// @}

private:
    int traceMaxSecond_ = 0;
    int traceMaxCmdNum_ = 0;
    int idRangeFrom_ = 0;
    int idRangeTo_ = 0;
};

/// Whether a head can go from position to position.
class TourAbilityParamV2 : public IPTZModuleAbilityParam
{
public:
    /// How many positions a tour may have.
    int getTourMaxPresetNum() const { return tourMaxPresetNum_; }
    void setTourMaxPresetNum(int tourMaxPresetNum) { tourMaxPresetNum_ = tourMaxPresetNum; }

    /// The first and the last number of a tour.
    /// @{
    void getIDRange(int& from, int& to) const
    {
        from = idRangeFrom_;
        to = idRangeTo_;
    }
    void setIDRange(int from, int to)
    {
        idRangeFrom_ = from;
        idRangeTo_ = to;
    }
    /// @}

private:
    int tourMaxPresetNum_ = 0;
    int idRangeFrom_ = 0;
    int idRangeTo_ = 0;
};

/// Whether a head can sweep between two limits.
class ScanAbilityParamV2 : public IPTZModuleAbilityParam
{
public:
    /// How many sweeps there may be.
    int getScanMaxNum() const { return scanMaxNum_; }
    void setScanMaxNum(int scanMaxNum) { scanMaxNum_ = scanMaxNum; }

    /// The first and the last number of a sweep.
    /// @{
    void getIDRange(int& from, int& to) const
    {
        from = idRangeFrom_;
        to = idRangeTo_;
    }
    void setIDRange(int from, int to)
    {
        idRangeFrom_ = from;
        idRangeTo_ = to;
    }
    /// @}

private:
    int scanMaxNum_ = 0;
    int idRangeFrom_ = 0;
    int idRangeTo_ = 0;
};

/// Whether a head keeps positions.
class PresetPosAbilityParam : public IPTZModuleAbilityParam
{
public:
    /// How many positions there may be.
    int getPresetMaxNum() const { return presetMaxNum_; }
    void setPresetMaxNum(int presetMaxNum) { presetMaxNum_ = presetMaxNum; }

    /// The first and the last number of a position.
    /// @{
    void getIDRange(int& from, int& to) const
    {
        from = idRangeFrom_;
        to = idRangeTo_;
    }
    void setIDRange(int from, int to)
    {
        idRangeFrom_ = from;
        idRangeTo_ = to;
    }
    /// @}

private:
    int presetMaxNum_ = 0;
    int idRangeFrom_ = 0;
    int idRangeTo_ = 0;
};

/// Whether a head returns to a position when nobody drives it.
class GuardPosAbilityParam : public IPTZModuleAbilityParam
{
};

/// Whether a head has a lamp for the night.
class InfraredLampAbilityParam : public IPTZModuleAbilityParam
{
};

/// Whether a head knows the north.
class DueNorthAbilityParam : public IPTZModuleAbilityParam
{
};

/// Whether a head can act by the clock.
class TimerAbilityParam : public IPTZModuleAbilityParam
{
};

/// What a head can do.
class PTZAbilityParam
{
public:
    /// How far its lens magnifies.
    /// @{
    const MaxOpticalMagnificationParamV2& getMaxOpticalMagnificationParam() const
    {
        return maxOpticalMagnificationParam_;
    }
    MaxOpticalMagnificationParamV2& getMaxOpticalMagnificationParam() { return maxOpticalMagnificationParam_; }
    void setMaxOpticalMagnificationParam(const MaxOpticalMagnificationParamV2& maxOpticalMagnificationParam)
    {
        maxOpticalMagnificationParam_ = maxOpticalMagnificationParam;
    }
    /// @}

    /// Its texts over the picture.
    /// @{
    const std::vector<PTZOSDParam>& getPTZOSDParamList() const { return ptzOSDParamList_; }
    std::vector<PTZOSDParam>& getPTZOSDParamList() { return ptzOSDParamList_; }
    void setPTZOSDParamList(const std::vector<PTZOSDParam>& ptzOSDParamList) { ptzOSDParamList_ = ptzOSDParamList; }
    /// @}

    /// Its speeds by magnification and stage.
    /// @{
    const PTSpeedTable& getPTSpeedTable() const { return ptSpeedTable_; }
    PTSpeedTable& getPTSpeedTable() { return ptSpeedTable_; }
    void setPTSpeedTable(const PTSpeedTable& ptSpeedTable) { ptSpeedTable_ = ptSpeedTable; }
    /// @}

    /// How fast it moves.
    /// @{
    const PTZSpeedParamV2& getPTZSpeedParam() const { return ptzSpeedParam_; }
    PTZSpeedParamV2& getPTZSpeedParam() { return ptzSpeedParam_; }
    void setPTZSpeedParam(const PTZSpeedParamV2& ptzSpeedParam) { ptzSpeedParam_ = ptzSpeedParam; }
    /// @}

    /// Going to what a client marks.
    /// @{
    const ThreeDimensionalPositionAbilityParam& getThreeDimensionalPositionAbilityParam() const
    {
        return threeDimensionalPositionAbilityParam_;
    }
    ThreeDimensionalPositionAbilityParam& getThreeDimensionalPositionAbilityParam()
    {
        return threeDimensionalPositionAbilityParam_;
    }
    void setThreeDimensionalPositionAbilityParam(
        const ThreeDimensionalPositionAbilityParam& threeDimensionalPositionAbilityParam)
    {
        threeDimensionalPositionAbilityParam_ = threeDimensionalPositionAbilityParam;
    }
    /// @}

    /// Paths.
    /// @{
    const TraceAbilityParamV2& getTraceAbilityParam() const { return traceAbilityParam_; }
    TraceAbilityParamV2& getTraceAbilityParam() { return traceAbilityParam_; }
    void setTraceAbilityParam(const TraceAbilityParamV2& traceAbilityParam) { traceAbilityParam_ = traceAbilityParam; }
    /// @}

    /// Tours.
    /// @{
    const TourAbilityParamV2& getTourAbilityParam() const { return tourAbilityParam_; }
    TourAbilityParamV2& getTourAbilityParam() { return tourAbilityParam_; }
    void setTourAbilityParam(const TourAbilityParamV2& tourAbilityParam) { tourAbilityParam_ = tourAbilityParam; }
    /// @}

    /// Sweeps.
    /// @{
    const ScanAbilityParamV2& getScanAbilityParam() const { return scanAbilityParam_; }
    ScanAbilityParamV2& getScanAbilityParam() { return scanAbilityParam_; }
    void setScanAbilityParam(const ScanAbilityParamV2& scanAbilityParam) { scanAbilityParam_ = scanAbilityParam; }
    /// @}

    /// Positions.
    /// @{
    const PresetPosAbilityParam& getPresetPosAbilityParam() const { return presetPosAbilityParam_; }
    PresetPosAbilityParam& getPresetPosAbilityParam() { return presetPosAbilityParam_; }
    void setPresetPosAbilityParam(const PresetPosAbilityParam& presetPosAbilityParam)
    {
        presetPosAbilityParam_ = presetPosAbilityParam;
    }
    /// @}

    /// Returning to a position.
    /// @{
    const GuardPosAbilityParam& getGuardPosAbilityParam() const { return guardPosAbilityParam_; }
    GuardPosAbilityParam& getGuardPosAbilityParam() { return guardPosAbilityParam_; }
    void setGuardPosAbilityParam(const GuardPosAbilityParam& guardPosAbilityParam)
    {
        guardPosAbilityParam_ = guardPosAbilityParam;
    }
    /// @}

    /// The lamp.
    /// @{
    const InfraredLampAbilityParam& getInfraredLampAbilityParam() const { return infraredLampAbilityParam_; }
    InfraredLampAbilityParam& getInfraredLampAbilityParam() { return infraredLampAbilityParam_; }
    void setInfraredLampAbilityParam(const InfraredLampAbilityParam& infraredLampAbilityParam)
    {
        infraredLampAbilityParam_ = infraredLampAbilityParam;
    }
    /// @}

    /// The north.
    /// @{
    const DueNorthAbilityParam& getDueNorthAbilityParam() const { return dueNorthAbilityParam_; }
    DueNorthAbilityParam& getDueNorthAbilityParam() { return dueNorthAbilityParam_; }
    void setDueNorthAbilityParam(const DueNorthAbilityParam& dueNorthAbilityParam)
    {
        dueNorthAbilityParam_ = dueNorthAbilityParam;
    }
    /// @}

    /// Acting by the clock.
    /// @{
    const TimerAbilityParam& getTimerAbilityParam() const { return timerAbilityParam_; }
    TimerAbilityParam& getTimerAbilityParam() { return timerAbilityParam_; }
    void setTimerAbilityParam(const TimerAbilityParam& timerAbilityParam) { timerAbilityParam_ = timerAbilityParam; }
    /// @}

private:
    MaxOpticalMagnificationParamV2 maxOpticalMagnificationParam_;
    std::vector<PTZOSDParam> ptzOSDParamList_;
    PTSpeedTable ptSpeedTable_;
    PTZSpeedParamV2 ptzSpeedParam_;
    ThreeDimensionalPositionAbilityParam threeDimensionalPositionAbilityParam_;
    TraceAbilityParamV2 traceAbilityParam_;
    TourAbilityParamV2 tourAbilityParam_;
    ScanAbilityParamV2 scanAbilityParam_;
    PresetPosAbilityParam presetPosAbilityParam_;
    GuardPosAbilityParam guardPosAbilityParam_;
    InfraredLampAbilityParam infraredLampAbilityParam_;
    DueNorthAbilityParam dueNorthAbilityParam_;
    TimerAbilityParam timerAbilityParam_;
};
