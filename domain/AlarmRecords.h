#pragma once

/// @file
/// The records of alarms: actions, schedules, policies, and what devices report.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/CoreRecords.h"
#include "domain/MediaRecords.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// A rectangle on a picture.
class DetectionArea
{
public:
    /// From the left.
    int getTopX() const { return topX_; }
    void setTopX(int topX) { topX_ = topX; }

    /// From the top.
    int getTopY() const { return topY_; }
    void setTopY(int topY) { topY_ = topY; }

    int getWidth() const { return width_; }
    void setWidth(int width) { width_ = width; }

    /// Its height.
    int getHigh() const { return high_; }
    void setHigh(int high) { high_ = high; }

private:
    int topX_ = 0;
    int topY_ = 0;
    int width_ = 0;
    int high_ = 0;
};

/// What an analysis event has seen of one object that it follows.
class AlarmDetailTarget
{
public:
    /// The number of the object.
    int getID() const { return id_; }
    void setID(int id) { id_ = id; }

    /// The class of the object, as the device numbers it.
    char getType() const { return type_; }
    void setType(char type) { type_ = type; }

    /// The direction of its movement. A frame carries 0 to 255.99, in hundredths.
    float getDirection() const { return direction_; }
    void setDirection(float direction) { direction_ = direction; }

    /// Its speed. A frame carries 0 to 255.99, in hundredths.
    float getSpeed() const { return speed_; }
    void setSpeed(float speed) { speed_ = speed; }

    /// Where it is. A frame carries whole numbers of 0 to 255, here and in all places below.
    const ZTPoint& getPoint() const { return point_; }
    void setPoint(const ZTPoint& point) { point_ = point; }

    /// The rectangle around it.
    const DetectionArea& getTargetArea() const { return targetArea_; }
    void setTargetArea(const DetectionArea& targetArea) { targetArea_ = targetArea; }

    /// The way that it came, at most 255 points.
    /// @{
    const std::vector<ZTPoint>& getTraject() const { return traject_; }
    std::vector<ZTPoint>& getTraject() { return traject_; }
    /// Appends a point.
    void setTraject(const ZTPoint& point) { traject_.push_back(point); }
    /// @}

private:
    int id_ = 0;
    char type_ = 0;
    float direction_ = 0.0F;
    float speed_ = 0.0F;
    ZTPoint point_;
    DetectionArea targetArea_;
    std::vector<ZTPoint> traject_;
};

/// A rule that an analysis found broken.
class AlarmDetailEvent
{
public:
    /// The number of the event.
    int getID() const { return id_; }
    void setID(int id) { id_ = id; }

    /// The class of the event, as the device numbers it.
    char getType() const { return type_; }
    void setType(char type) { type_ = type; }

    /// The state of the event, as the device numbers it.
    char getStatus() const { return status_; }
    void setStatus(char status) { status_ = status; }

    /// The region of the rule, at most 255 points. A frame carries whole numbers of 0 to 255.
    /// @{
    const PolygonArea& getAlarmArea() const { return alarmArea_; }
    PolygonArea& getAlarmArea() { return alarmArea_; }
    /// Appends a point.
    void setAlarmArea(const ZTPoint& point) { alarmArea_.getVecPoints().push_back(point); }
    /// @}

    /// The numbers of the objects that it is about, at most 255.
    /// @{
    const std::vector<int>& getRelatedTargetIDList() const { return relatedTargetIDList_; }
    std::vector<int>& getRelatedTargetIDList() { return relatedTargetIDList_; }
    /// Appends a number.
    void setRelatedTargetID(int id) { relatedTargetIDList_.push_back(id); }
    /// @}

private:
    int id_ = 0;
    char type_ = 0;
    char status_ = 0;
    PolygonArea alarmArea_;
    std::vector<int> relatedTargetIDList_;
};

/// The detail of an analysis alarm: what was seen, and which rules were broken.
class AlarmDetail
{
public:
    /// The objects, at most 255.
    /// @{
    const std::vector<AlarmDetailTarget>& getAlarmTarget() const { return alarmTarget_; }
    std::vector<AlarmDetailTarget>& getAlarmTarget() { return alarmTarget_; }
    /// Appends an object.
    void setAlarmTarget(const AlarmDetailTarget& target) { alarmTarget_.push_back(target); }
    /// @}

    /// The events, at most 255.
    /// @{
    const std::vector<AlarmDetailEvent>& getAlarmEvent() const { return alarmEvent_; }
    std::vector<AlarmDetailEvent>& getAlarmEvent() { return alarmEvent_; }
    /// Appends an event.
    void setAlarmEvent(const AlarmDetailEvent& event) { alarmEvent_.push_back(event); }
    /// @}

private:
    std::vector<AlarmDetailTarget> alarmTarget_;
    std::vector<AlarmDetailEvent> alarmEvent_;
};

/// A span of a day, as the services count time.
class ScheduleTime
{
public:
    /// When it begins.
    long getStartTime() const { return startTime_; }
    void setStartTime(long startTime) { startTime_ = startTime; }

    /// When it ends.
    long getEndTime() const { return endTime_; }
    void setEndTime(long endTime) { endTime_ = endTime; }

private:
    long startTime_ = 0;
    long endTime_ = 0;
};

/// An absolute span of time, as the services count it.
class ScheduleTimeSegment
{
public:
    /// When it begins.
    unsigned long getBeginTime() const { return beginTime_; }
    void setBeginTime(unsigned long beginTime) { beginTime_ = beginTime; }

    /// When it ends.
    unsigned long getEndTime() const { return endTime_; }
    void setEndTime(unsigned long endTime) { endTime_ = endTime; }

private:
    unsigned long beginTime_ = 0;
    unsigned long endTime_ = 0;
};

/// One day of a weekly schedule.
class ScheduleWeek
{
public:
    /// The day of the week, as the services number it.
    int getWeekDay() const { return weekDay_; }
    void setWeekDay(int weekDay) { weekDay_ = weekDay; }

    /// The spans of that day.
    /// @{
    const std::vector<ScheduleTime>& getScheduleTimeList() const { return scheduleTimeList_; }
    std::vector<ScheduleTime>& getScheduleTimeList() { return scheduleTimeList_; }
    void setScheduleTimeList(const std::vector<ScheduleTime>& scheduleTimeList)
    {
        scheduleTimeList_ = scheduleTimeList;
    }
    /// @}

private:
    int weekDay_ = 0;
    std::vector<ScheduleTime> scheduleTimeList_;
};

/// The schedule of one camera. Its two lists are independent, and either may be empty.
class ScheduleTimeParam
{
public:
    /// The device.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The days of the week.
    /// @{
    const std::vector<ScheduleWeek>& getScheduleWeekList() const { return scheduleWeekList_; }
    std::vector<ScheduleWeek>& getScheduleWeekList() { return scheduleWeekList_; }
    void setScheduleWeekList(const std::vector<ScheduleWeek>& scheduleWeekList)
    {
        scheduleWeekList_ = scheduleWeekList;
    }
    /// @}

    /// The absolute spans.
    /// @{
    const std::vector<ScheduleTimeSegment>& getScheduleTimeSegmentList() const { return scheduleTimeSegmentList_; }
    std::vector<ScheduleTimeSegment>& getScheduleTimeSegmentList() { return scheduleTimeSegmentList_; }
    void setScheduleTimeSegmentList(const std::vector<ScheduleTimeSegment>& scheduleTimeSegmentList)
    {
        scheduleTimeSegmentList_ = scheduleTimeSegmentList;
    }
    /// @}

private:
    std::string deviceId_;
    int cameraId_ = 0;
    std::vector<ScheduleWeek> scheduleWeekList_;
    std::vector<ScheduleTimeSegment> scheduleTimeSegmentList_;
};

/// Drives an alarm output.
class AlarmOutAction
{
public:
    /// The device.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The output's number on the device.
    int getAlarmOutId() const { return alarmOutId_; }
    void setAlarmOutId(int alarmOutId) { alarmOutId_ = alarmOutId; }

    /// What the output does, as the services number it.
    int getAlarmOutFlag() const { return alarmOutFlag_; }
    void setAlarmOutFlag(int alarmOutFlag) { alarmOutFlag_ = alarmOutFlag; }

    /// The kind of event that it answers, as the services number it.
    int getEventTypeId() const { return eventTypeId_; }
    void setEventTypeId(int eventTypeId) { eventTypeId_ = eventTypeId; }

private:
    std::string deviceId_;
    int alarmOutId_ = 0;
    int alarmOutFlag_ = 0;
    int eventTypeId_ = 0;
};

/// Moves a camera by a command.
class AlarmPTZAction
{
public:
    /// The kind of event that it answers, as the services number it.
    int getEventTypeId() const { return eventTypeId_; }
    void setEventTypeId(int eventTypeId) { eventTypeId_ = eventTypeId; }

    /// The device.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The serial port by which the camera is reached.
    int getComId() const { return comId_; }
    void setComId(int comId) { comId_ = comId; }

    /// The camera's address on that port.
    int getPtzId() const { return ptzId_; }
    void setPtzId(int ptzId) { ptzId_ = ptzId; }

    /// The command, with its length in bytes.
    /// @{
    const std::string& getPtzOperationCmd() const { return ptzOperationCmd_; }
    int getPtzOperationCmdLen() const { return static_cast<int>(ptzOperationCmd_.size()); }
    /// Takes the first @p length bytes of @p command, which must hold as many.
    /// @return false, with the command as it was, for a null pointer or a negative length.
    bool setPtzOperationCmd(const char* command, int length)
    {
        if (command == nullptr || length < 0) return false;
        ptzOperationCmd_.assign(command, static_cast<std::size_t>(length));
        return true;
    }
    /// @}

    /// Of no meaning yet.
    int getReserve() const { return reserve_; }
    void setReserve(int reserve) { reserve_ = reserve; }

private:
    int eventTypeId_ = 0;
    std::string deviceId_;
    int cameraId_ = 0;
    int comId_ = 0;
    int ptzId_ = 0;
    std::string ptzOperationCmd_;
    int reserve_ = 0;
};

/// Moves a camera, as an `AlarmAction` does.
class AlarmPTZActionEx
{
public:
    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The command.
    const std::string& getPtzCmd() const { return ptzCmd_; }
    void setPtzCmd(const std::string& ptzCmd) { ptzCmd_ = ptzCmd; }

private:
    int cameraId_ = 0;
    std::string ptzCmd_;
};

/// Shows text on a camera's picture.
class AlarmOverlayAction
{
public:
    /// The kind of event that it answers, as the services number it.
    int getEventTypeId() const { return eventTypeId_; }
    void setEventTypeId(int eventTypeId) { eventTypeId_ = eventTypeId; }

    /// The device.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The text and its place.
    /// @{
    const OSDInfo& getOSDInfo() const { return osdInfo_; }
    OSDInfo& getOSDInfo() { return osdInfo_; }
    void setOSDInfo(const OSDInfo& osdInfo) { osdInfo_ = osdInfo; }
    /// @}

private:
    int eventTypeId_ = 0;
    std::string deviceId_;
    int cameraId_ = 0;
    OSDInfo osdInfo_;
};

/// Records a camera.
class AlarmRecordAction
{
public:
    /// The device.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How much is kept of the time before the event.
    int getPreRecordTime() const { return preRecordTime_; }
    void setPreRecordTime(int preRecordTime) { preRecordTime_ = preRecordTime; }

    /// How long it records from the event on.
    int getRecordTime() const { return recordTime_; }
    void setRecordTime(int recordTime) { recordTime_ = recordTime; }

    /// The kind of event that it answers, as the services number it.
    int getEventTypeId() const { return eventTypeId_; }
    void setEventTypeId(int eventTypeId) { eventTypeId_ = eventTypeId; }

    /// Whether sound is recorded too.
    bool getEnableRecordAudio() const { return enableRecordAudio_; }
    void setEnableRecordAudio(bool enableRecordAudio) { enableRecordAudio_ = enableRecordAudio; }

private:
    std::string deviceId_;
    int cameraId_ = 0;
    int preRecordTime_ = 0;
    int recordTime_ = 0;
    int eventTypeId_ = 0;
    bool enableRecordAudio_ = false;
};

/// Sends mail.
class SendMailAction
{
public:
    /// Whether mail is sent at all. A document says so by having the element.
    bool getSendMailFlag() const { return sendMailFlag_; }
    void setSendMailFlag(bool sendMailFlag) { sendMailFlag_ = sendMailFlag; }

    /// Whether a picture goes with it.
    bool getSendPictureFlag() const { return sendPictureFlag_; }
    void setSendPictureFlag(bool sendPictureFlag) { sendPictureFlag_ = sendPictureFlag; }

    /// The camera that takes the picture.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

private:
    bool sendMailFlag_ = false;
    bool sendPictureFlag_ = false;
    int cameraId_ = 0;
};

/// What a device does when a source raises an alarm.
class AlarmAction
{
public:
    /// The device.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The alarm's main type, as the services number it.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The alarm's type within the main one.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// What raises the alarm.
    const std::string& getSourceId() const { return sourceId_; }
    void setSourceId(const std::string& sourceId) { sourceId_ = sourceId; }

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZActionEx>& getAlarmPTZList() const { return alarmPTZList_; }
    std::vector<AlarmPTZActionEx>& getAlarmPTZList() { return alarmPTZList_; }
    void setAlarmPTZList(const std::vector<AlarmPTZActionEx>& alarmPTZList) { alarmPTZList_ = alarmPTZList; }
    /// @}

    /// The numbers of the outputs that it drives.
    /// @{
    const std::vector<int>& getAlarmOutList() const { return alarmOutList_; }
    std::vector<int>& getAlarmOutList() { return alarmOutList_; }
    void setAlarmOutList(const std::vector<int>& alarmOutList) { alarmOutList_ = alarmOutList; }
    /// @}

    /// Whether and what mail it sends.
    /// @{
    const SendMailAction& getSendMailAction() const { return sendMailAction_; }
    SendMailAction& getSendMailAction() { return sendMailAction_; }
    void setSendMailAction(const SendMailAction& sendMailAction) { sendMailAction_ = sendMailAction; }
    /// @}

private:
    std::string deviceId_;
    int majorType_ = 0;
    int minorType_ = 0;
    std::string sourceId_;
    std::vector<AlarmPTZActionEx> alarmPTZList_;
    std::vector<int> alarmOutList_;
    SendMailAction sendMailAction_;
};

/// A picture cut into cells, and a block of bytes that tells which of them a detector watches.
class DetectionAreaV2
{
public:
    /// How many cells stand side by side.
    int getWidthCellNumber() const { return widthCellNumber_; }
    void setWidthCellNumber(int widthCellNumber) { widthCellNumber_ = widthCellNumber; }

    /// How many rows of cells there are.
    int getHighCellNumber() const { return highCellNumber_; }
    void setHighCellNumber(int highCellNumber) { highCellNumber_ = highCellNumber; }

    /// The cell map; its layout is the detector's. The bytes are valid until the record changes.
    /// @{
    const char* getData() const { return data_.data(); }
    int getDataLength() const { return static_cast<int>(data_.size()); }
    /// Copies @p length bytes; a null pointer or a negative length gives an empty map.
    void setData(const char* data, int length)
    {
        if (data != nullptr && length > 0)
            data_.assign(data, static_cast<std::size_t>(length)); // also of the map's own bytes
        else
            data_.clear();
    }
    /// @}

private:
    int widthCellNumber_ = 0;
    int highCellNumber_ = 0;
    std::string data_;
};

/// How a detector finds motion.
class MotionDetectionParam
{
public:
    /// Whether it watches for motion upwards.
    bool getToUpCheckFlag() const { return toUpCheckFlag_; }
    void setToUpCheckFlag(bool toUpCheckFlag) { toUpCheckFlag_ = toUpCheckFlag; }

    /// Whether it watches for motion downwards.
    bool getToDownCheckFlag() const { return toDownCheckFlag_; }
    void setToDownCheckFlag(bool toDownCheckFlag) { toDownCheckFlag_ = toDownCheckFlag; }

    /// Whether it watches for motion to the left.
    bool getToLeftCheckFlag() const { return toLeftCheckFlag_; }
    void setToLeftCheckFlag(bool toLeftCheckFlag) { toLeftCheckFlag_ = toLeftCheckFlag; }

    /// Whether it watches for motion to the right.
    bool getToRightCheckFlag() const { return toRightCheckFlag_; }
    void setToRightCheckFlag(bool toRightCheckFlag) { toRightCheckFlag_ = toRightCheckFlag; }

    /// What the areas are for, as the detector has it.
    bool getAreaMaskFlag() const { return areaMaskFlag_; }
    void setAreaMaskFlag(bool areaMaskFlag) { areaMaskFlag_ = areaMaskFlag; }

    /// How many blocks have to change, as the detector counts them.
    int getCheckBlockNum() const { return checkBlockNum_; }
    void setCheckBlockNum(int checkBlockNum) { checkBlockNum_ = checkBlockNum; }

    /// How sensitive it is, as the detector scales it.
    int getSensitivity() const { return sensitivity_; }
    void setSensitivity(int sensitivity) { sensitivity_ = sensitivity; }

    /// The size of the picture, as the detector numbers it.
    int getImageFormatId() const { return imageFormatId_; }
    void setImageFormatId(int imageFormatId) { imageFormatId_ = imageFormatId; }

    /// How many frames apart it compares.
    int getFrameInterval() const { return frameInterval_; }
    void setFrameInterval(int frameInterval) { frameInterval_ = frameInterval; }

    /// Where it watches.
    /// @{
    const std::vector<DetectionArea>& getDetectionArea() const { return detectionArea_; }
    std::vector<DetectionArea>& getDetectionArea() { return detectionArea_; }
    void setDetectionArea(const std::vector<DetectionArea>& detectionArea) { detectionArea_ = detectionArea; }
    /// @}

private:
    bool toUpCheckFlag_ = false;
    bool toDownCheckFlag_ = false;
    bool toLeftCheckFlag_ = false;
    bool toRightCheckFlag_ = false;
    bool areaMaskFlag_ = false;
    int checkBlockNum_ = 0;
    int sensitivity_ = 0;
    int imageFormatId_ = 0;
    int frameInterval_ = 0;
    std::vector<DetectionArea> detectionArea_;
};

/// How a detector with a cell map finds motion.
class MotionDetectionParamV2
{
public:
    /// How many blocks have to change, as the detector counts them.
    int getCheckBlockNum() const { return checkBlockNum_; }
    void setCheckBlockNum(int checkBlockNum) { checkBlockNum_ = checkBlockNum; }

    /// How sensitive it is, as the detector scales it.
    int getSensitivity() const { return sensitivity_; }
    void setSensitivity(int sensitivity) { sensitivity_ = sensitivity; }

    /// Where it watches.
    /// @{
    const DetectionAreaV2& getDetectionArea() const { return detectionArea_; }
    DetectionAreaV2& getDetectionArea() { return detectionArea_; }
    void setDetectionArea(const DetectionAreaV2& detectionArea) { detectionArea_ = detectionArea; }
    /// @}

private:
    int checkBlockNum_ = 0;
    int sensitivity_ = 0;
    DetectionAreaV2 detectionArea_;
};

/// What a device does when a camera sees motion.
class MotionDetectionEvent
{
public:
    /// The event's number.
    int getEventId() const { return eventId_; }
    void setEventId(int eventId) { eventId_ = eventId; }

    /// The policy's number.
    int getPolicyId() const { return policyId_; }
    void setPolicyId(int policyId) { policyId_ = policyId; }

    /// The device that it watches.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera that it watches.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether the policy is in force.
    bool getMotionDetectionEnableFlag() const { return motionDetectionEnableFlag_; }
    void setMotionDetectionEnableFlag(bool motionDetectionEnableFlag)
    {
        motionDetectionEnableFlag_ = motionDetectionEnableFlag;
    }

    /// How motion is found.
    /// @{
    const MotionDetectionParam& getMotionDetectionParam() const { return motionDetectionParam_; }
    MotionDetectionParam& getMotionDetectionParam() { return motionDetectionParam_; }
    void setMotionDetectionParam(const MotionDetectionParam& motionDetectionParam)
    {
        motionDetectionParam_ = motionDetectionParam;
    }
    /// @}

    /// When the policy is armed.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it records.
    /// @{
    const std::vector<AlarmRecordAction>& getAlarmRecordAction() const { return alarmRecordAction_; }
    std::vector<AlarmRecordAction>& getAlarmRecordAction() { return alarmRecordAction_; }
    void setAlarmRecordAction(const std::vector<AlarmRecordAction>& alarmRecordAction)
    {
        alarmRecordAction_ = alarmRecordAction;
    }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

    /// Where it shows text.
    /// @{
    const std::vector<AlarmOverlayAction>& getAlarmOverlayAction() const { return alarmOverlayAction_; }
    std::vector<AlarmOverlayAction>& getAlarmOverlayAction() { return alarmOverlayAction_; }
    void setAlarmOverlayAction(const std::vector<AlarmOverlayAction>& alarmOverlayAction)
    {
        alarmOverlayAction_ = alarmOverlayAction;
    }
    /// @}

private:
    int eventId_ = 0;
    int policyId_ = 0;
    std::string deviceId_;
    int cameraId_ = 0;
    bool motionDetectionEnableFlag_ = false;
    MotionDetectionParam motionDetectionParam_;
    ScheduleTimeParam scheduleTimeParam_;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmRecordAction> alarmRecordAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
    std::vector<AlarmOverlayAction> alarmOverlayAction_;
};

/// What a device does when a camera sees motion in the cells of a map.
class MotionDetectionEventV2
{
public:
    /// The event's number.
    int getEventId() const { return eventId_; }
    void setEventId(int eventId) { eventId_ = eventId; }

    /// The policy's number.
    int getPolicyId() const { return policyId_; }
    void setPolicyId(int policyId) { policyId_ = policyId; }

    /// The device that it watches.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera that it watches.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether the policy is in force.
    bool getMotionDetectionEnableFlag() const { return motionDetectionEnableFlag_; }
    void setMotionDetectionEnableFlag(bool motionDetectionEnableFlag)
    {
        motionDetectionEnableFlag_ = motionDetectionEnableFlag;
    }

    /// How motion is found.
    /// @{
    const MotionDetectionParamV2& getMotionDetectionParam() const { return motionDetectionParam_; }
    MotionDetectionParamV2& getMotionDetectionParam() { return motionDetectionParam_; }
    void setMotionDetectionParam(const MotionDetectionParamV2& motionDetectionParam)
    {
        motionDetectionParam_ = motionDetectionParam;
    }
    /// @}

    /// When the policy is armed.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it records.
    /// @{
    const std::vector<AlarmRecordAction>& getAlarmRecordAction() const { return alarmRecordAction_; }
    std::vector<AlarmRecordAction>& getAlarmRecordAction() { return alarmRecordAction_; }
    void setAlarmRecordAction(const std::vector<AlarmRecordAction>& alarmRecordAction)
    {
        alarmRecordAction_ = alarmRecordAction;
    }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

    /// Where it shows text.
    /// @{
    const std::vector<AlarmOverlayAction>& getAlarmOverlayAction() const { return alarmOverlayAction_; }
    std::vector<AlarmOverlayAction>& getAlarmOverlayAction() { return alarmOverlayAction_; }
    void setAlarmOverlayAction(const std::vector<AlarmOverlayAction>& alarmOverlayAction)
    {
        alarmOverlayAction_ = alarmOverlayAction;
    }
    /// @}

private:
    int eventId_ = 0;
    int policyId_ = 0;
    std::string deviceId_;
    int cameraId_ = 0;
    bool motionDetectionEnableFlag_ = false;
    MotionDetectionParamV2 motionDetectionParam_;
    ScheduleTimeParam scheduleTimeParam_;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmRecordAction> alarmRecordAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
    std::vector<AlarmOverlayAction> alarmOverlayAction_;
};

/// What a device does when a passive infrared detector fires.
class PIRAlarmEvent
{
public:
    /// The event's number.
    int getEventId() const { return eventId_; }
    void setEventId(int eventId) { eventId_ = eventId; }

    /// The policy's number.
    int getPolicyId() const { return policyId_; }
    void setPolicyId(int policyId) { policyId_ = policyId; }

    /// The device that it watches.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera that has the detector.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// How far apart two alarms are at least.
    std::uint32_t getPIRAlarmInterval() const { return pirAlarmInterval_; }
    void setPIRAlarmInterval(std::uint32_t pirAlarmInterval) { pirAlarmInterval_ = pirAlarmInterval; }

    /// Whether the policy is in force.
    bool getPIRAlarmEnableFlag() const { return pirAlarmEnableFlag_; }
    void setPIRAlarmEnableFlag(bool pirAlarmEnableFlag) { pirAlarmEnableFlag_ = pirAlarmEnableFlag; }

    /// When the policy is armed.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it records.
    /// @{
    const std::vector<AlarmRecordAction>& getAlarmRecordAction() const { return alarmRecordAction_; }
    std::vector<AlarmRecordAction>& getAlarmRecordAction() { return alarmRecordAction_; }
    void setAlarmRecordAction(const std::vector<AlarmRecordAction>& alarmRecordAction)
    {
        alarmRecordAction_ = alarmRecordAction;
    }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

    /// Where it shows text.
    /// @{
    const std::vector<AlarmOverlayAction>& getAlarmOverlayAction() const { return alarmOverlayAction_; }
    std::vector<AlarmOverlayAction>& getAlarmOverlayAction() { return alarmOverlayAction_; }
    void setAlarmOverlayAction(const std::vector<AlarmOverlayAction>& alarmOverlayAction)
    {
        alarmOverlayAction_ = alarmOverlayAction;
    }
    /// @}

private:
    int eventId_ = 0;
    int policyId_ = 0;
    std::string deviceId_;
    int cameraId_ = 0;
    std::uint32_t pirAlarmInterval_ = 0;
    bool pirAlarmEnableFlag_ = false;
    ScheduleTimeParam scheduleTimeParam_;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmRecordAction> alarmRecordAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
    std::vector<AlarmOverlayAction> alarmOverlayAction_;
};

/// What a device does when an alarm input fires.
class AlarmIOEvent
{
public:
    /// The event's number.
    int getEventId() const { return eventId_; }
    void setEventId(int eventId) { eventId_ = eventId; }

    /// The policy's number.
    int getPolicyId() const { return policyId_; }
    void setPolicyId(int policyId) { policyId_ = policyId; }

    /// The input's number on the device.
    int getAlarmInId() const { return alarmInId_; }
    void setAlarmInId(int alarmInId) { alarmInId_ = alarmInId; }

    /// Whether the policy is in force.
    bool getAlarmIOEnableFlag() const { return alarmIOEnableFlag_; }
    void setAlarmIOEnableFlag(bool alarmIOEnableFlag) { alarmIOEnableFlag_ = alarmIOEnableFlag; }

    /// The device that has the input.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it records.
    /// @{
    const std::vector<AlarmRecordAction>& getAlarmRecordAction() const { return alarmRecordAction_; }
    std::vector<AlarmRecordAction>& getAlarmRecordAction() { return alarmRecordAction_; }
    void setAlarmRecordAction(const std::vector<AlarmRecordAction>& alarmRecordAction)
    {
        alarmRecordAction_ = alarmRecordAction;
    }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

    /// Where it shows text.
    /// @{
    const std::vector<AlarmOverlayAction>& getAlarmOverlayAction() const { return alarmOverlayAction_; }
    std::vector<AlarmOverlayAction>& getAlarmOverlayAction() { return alarmOverlayAction_; }
    void setAlarmOverlayAction(const std::vector<AlarmOverlayAction>& alarmOverlayAction)
    {
        alarmOverlayAction_ = alarmOverlayAction;
    }
    /// @}

    /// When the policy is armed.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

private:
    int eventId_ = 0;
    int policyId_ = 0;
    int alarmInId_ = 0;
    bool alarmIOEnableFlag_ = false;
    std::string deviceId_;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmRecordAction> alarmRecordAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
    std::vector<AlarmOverlayAction> alarmOverlayAction_;
    ScheduleTimeParam scheduleTimeParam_;
};

/// What a device does when somebody masks a camera.
class CameraMaskEvent
{
public:
    /// How masking is found, as the detector numbers it.
    int getDetectType() const { return detectType_; }
    void setDetectType(int detectType) { detectType_ = detectType; }

    /// The event's number.
    int getEventId() const { return eventId_; }
    void setEventId(int eventId) { eventId_ = eventId; }

    /// The policy's number.
    int getPolicyId() const { return policyId_; }
    void setPolicyId(int policyId) { policyId_ = policyId; }

    /// The device that it watches.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera that it watches.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it records.
    /// @{
    const std::vector<AlarmRecordAction>& getAlarmRecordAction() const { return alarmRecordAction_; }
    std::vector<AlarmRecordAction>& getAlarmRecordAction() { return alarmRecordAction_; }
    void setAlarmRecordAction(const std::vector<AlarmRecordAction>& alarmRecordAction)
    {
        alarmRecordAction_ = alarmRecordAction;
    }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

    /// Where it shows text.
    /// @{
    const std::vector<AlarmOverlayAction>& getAlarmOverlayAction() const { return alarmOverlayAction_; }
    std::vector<AlarmOverlayAction>& getAlarmOverlayAction() { return alarmOverlayAction_; }
    void setAlarmOverlayAction(const std::vector<AlarmOverlayAction>& alarmOverlayAction)
    {
        alarmOverlayAction_ = alarmOverlayAction;
    }
    /// @}

private:
    int detectType_ = 0;
    int eventId_ = 0;
    int policyId_ = 0;
    std::string deviceId_;
    int cameraId_ = 0;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmRecordAction> alarmRecordAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
    std::vector<AlarmOverlayAction> alarmOverlayAction_;
};

/// How a detector finds that a camera's view is blocked.
class OcclusionDetectionParam
{
public:
    /// How sensitive it is, as the detector scales it.
    int getSensitivity() const { return sensitivity_; }
    void setSensitivity(int sensitivity) { sensitivity_ = sensitivity; }

    /// Where it watches.
    /// @{
    const std::vector<DetectionArea>& getDetectionArea() const { return detectionArea_; }
    std::vector<DetectionArea>& getDetectionArea() { return detectionArea_; }
    void setDetectionArea(const std::vector<DetectionArea>& detectionArea) { detectionArea_ = detectionArea; }
    /// @}

private:
    int sensitivity_ = 0;
    std::vector<DetectionArea> detectionArea_;
};

/// What a device does when a camera's view is blocked.
class OcclusionDetectionEvent
{
public:
    /// The device that it watches.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera that it watches.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether the policy is in force.
    bool getOcclusionDetectionEnableFlag() const { return occlusionDetectionEnableFlag_; }
    void setOcclusionDetectionEnableFlag(bool occlusionDetectionEnableFlag)
    {
        occlusionDetectionEnableFlag_ = occlusionDetectionEnableFlag;
    }

    /// How blocking is found.
    /// @{
    const OcclusionDetectionParam& getOcclusionDetectionParam() const { return occlusionDetectionParam_; }
    OcclusionDetectionParam& getOcclusionDetectionParam() { return occlusionDetectionParam_; }
    void setOcclusionDetectionParam(const OcclusionDetectionParam& occlusionDetectionParam)
    {
        occlusionDetectionParam_ = occlusionDetectionParam;
    }
    /// @}

    /// When the policy is armed.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

private:
    std::string deviceId_;
    int cameraId_ = 0;
    bool occlusionDetectionEnableFlag_ = false;
    OcclusionDetectionParam occlusionDetectionParam_;
    ScheduleTimeParam scheduleTimeParam_;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
};

/// What a device does when it loses a camera's video.
class VideoLoseDetectionEvent
{
public:
    /// The device that it watches.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera that it watches.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// Whether the policy is in force.
    bool getVideoLoseDetectionEnableFlag() const { return videoLoseDetectionEnableFlag_; }
    void setVideoLoseDetectionEnableFlag(bool videoLoseDetectionEnableFlag)
    {
        videoLoseDetectionEnableFlag_ = videoLoseDetectionEnableFlag;
    }

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

private:
    std::string deviceId_;
    int cameraId_ = 0;
    bool videoLoseDetectionEnableFlag_ = false;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
};

/// What a device does when one of its network cards goes down.
class NetworkAlarmEvent
{
public:
    /// The card's number on the device.
    int getNetworkCardId() const { return networkCardId_; }
    void setNetworkCardId(int networkCardId) { networkCardId_ = networkCardId; }

    /// Whether it raises an alarm.
    bool getAlarmEnableFlag() const { return alarmEnableFlag_; }
    void setAlarmEnableFlag(bool alarmEnableFlag) { alarmEnableFlag_ = alarmEnableFlag; }

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

private:
    int networkCardId_ = 0;
    bool alarmEnableFlag_ = false;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
};

/// What a device does when its network cards go down.
class NetworkAlarmParam
{
public:
    /// How far apart two alarms are, as the services count it.
    int getInterval() const { return interval_; }
    void setInterval(int interval) { interval_ = interval; }

    /// The cards.
    /// @{
    const std::vector<NetworkAlarmEvent>& getNetworkAlarmEvent() const { return networkAlarmEvent_; }
    std::vector<NetworkAlarmEvent>& getNetworkAlarmEvent() { return networkAlarmEvent_; }
    void setNetworkAlarmEvent(const std::vector<NetworkAlarmEvent>& networkAlarmEvent)
    {
        networkAlarmEvent_ = networkAlarmEvent;
    }
    /// @}

private:
    int interval_ = 0;
    std::vector<NetworkAlarmEvent> networkAlarmEvent_;
};

/// When a device raises an alarm about its disks.
class DiskAlarmParam
{
public:
    /// Whether a full disk raises an alarm.
    bool getDiskFullAlarmCheckFlag() const { return diskFullAlarmCheckFlag_; }
    void setDiskFullAlarmCheckFlag(bool diskFullAlarmCheckFlag) { diskFullAlarmCheckFlag_ = diskFullAlarmCheckFlag; }

    /// The upper limit of the space in use, in percent.
    int getMaxDiskPercent() const { return maxDiskPercent_; }
    void setMaxDiskPercent(int maxDiskPercent) { maxDiskPercent_ = maxDiskPercent; }

    /// The lower limit of the space in use, in percent.
    int getMinDiskPercent() const { return minDiskPercent_; }
    void setMinDiskPercent(int minDiskPercent) { minDiskPercent_ = minDiskPercent; }

    /// Whether a faulty disk raises an alarm.
    bool getDiskErrorAlarmCheckFlag() const { return diskErrorAlarmCheckFlag_; }
    void setDiskErrorAlarmCheckFlag(bool diskErrorAlarmCheckFlag)
    {
        diskErrorAlarmCheckFlag_ = diskErrorAlarmCheckFlag;
    }

private:
    bool diskFullAlarmCheckFlag_ = false;
    int maxDiskPercent_ = 0;
    int minDiskPercent_ = 0;
    bool diskErrorAlarmCheckFlag_ = false;
};

/// What a device does when its disks fill up.
class DiskAlarmParamV2
{
public:
    /// Whether it raises an alarm.
    bool getAlarmEnableFlag() const { return alarmEnableFlag_; }
    void setAlarmEnableFlag(bool alarmEnableFlag) { alarmEnableFlag_ = alarmEnableFlag; }

    /// How far apart two alarms are, as the services count it.
    int getInterval() const { return interval_; }
    void setInterval(int interval) { interval_ = interval; }

    /// From how much space in use on it does, in percent.
    int getAlarmThreshold() const { return alarmThreshold_; }
    void setAlarmThreshold(int alarmThreshold) { alarmThreshold_ = alarmThreshold; }

    /// Which alarm outputs it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutAction() const { return alarmOutAction_; }
    std::vector<AlarmOutAction>& getAlarmOutAction() { return alarmOutAction_; }
    void setAlarmOutAction(const std::vector<AlarmOutAction>& alarmOutAction) { alarmOutAction_ = alarmOutAction; }
    /// @}

    /// Which cameras it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZAction() const { return alarmPTZAction_; }
    std::vector<AlarmPTZAction>& getAlarmPTZAction() { return alarmPTZAction_; }
    void setAlarmPTZAction(const std::vector<AlarmPTZAction>& alarmPTZAction) { alarmPTZAction_ = alarmPTZAction; }
    /// @}

private:
    bool alarmEnableFlag_ = false;
    int interval_ = 0;
    int alarmThreshold_ = 0;
    std::vector<AlarmOutAction> alarmOutAction_;
    std::vector<AlarmPTZAction> alarmPTZAction_;
};

/// What holds for all alarms of a device.
class AlarmParam
{
public:
    /// How far apart two alarms are, as the services count it.
    int getAlarmInterval() const { return alarmInterval_; }
    void setAlarmInterval(int alarmInterval) { alarmInterval_ = alarmInterval; }

private:
    int alarmInterval_ = 0;
};

/// A kind of alarm.
class AlarmEvent
{
public:
    /// The alarm's number.
    int getAlarmId() const { return alarmId_; }
    void setAlarmId(int alarmId) { alarmId_ = alarmId; }

    /// Its main type, as the services number it.
    int getMajorAlarmType() const { return majorAlarmType_; }
    void setMajorAlarmType(int majorAlarmType) { majorAlarmType_ = majorAlarmType; }

    /// Its type within the main one.
    int getAlarmType() const { return alarmType_; }
    void setAlarmType(int alarmType) { alarmType_ = alarmType; }

private:
    int alarmId_ = 0;
    int majorAlarmType_ = 0;
    int alarmType_ = 0;
};

/// An alarm input of a device.
class AlarmInDevice
{
public:
    /// The number of the input on the device.
    int getAlarmInId() const { return alarmInId_; }
    void setAlarmInId(int alarmInId) { alarmInId_ = alarmInId; }

    /// Its name, as set by the user.
    const std::string& getAlarmInName() const { return alarmInName_; }
    void setAlarmInName(const std::string& alarmInName) { alarmInName_ = alarmInName; }

    /// The level that counts as an alarm, as the device numbers it.
    int getAlarmInValidLevel() const { return alarmInValidLevel_; }
    void setAlarmInValidLevel(int alarmInValidLevel) { alarmInValidLevel_ = alarmInValidLevel; }

private:
    int alarmInId_ = 0;
    std::string alarmInName_;
    int alarmInValidLevel_ = 0;
};

/// Which alarm input is meant.
class AlarmInDeviceInfo
{
public:
    /// The number of the input on the device.
    int getAlarmInId() const { return alarmInId_; }
    void setAlarmInId(int alarmInId) { alarmInId_ = alarmInId; }

    /// Its name, as set by the user.
    const std::string& getAlarmInName() const { return alarmInName_; }
    void setAlarmInName(const std::string& alarmInName) { alarmInName_ = alarmInName; }

private:
    int alarmInId_ = 0;
    std::string alarmInName_;
};

/// Which alarm output is meant.
class AlarmOutDeviceInfo
{
public:
    /// The number of the output on the device.
    int getAlarmOutId() const { return alarmOutId_; }
    void setAlarmOutId(int alarmOutId) { alarmOutId_ = alarmOutId; }

    /// Its name, as set by the user.
    const std::string& getAlarmOutName() const { return alarmOutName_; }
    void setAlarmOutName(const std::string& alarmOutName) { alarmOutName_ = alarmOutName; }

private:
    int alarmOutId_ = 0;
    std::string alarmOutName_;
};

/// An alarm output of a device.
class AlarmOutDevice
{
public:
    /// The number of the output on the device.
    int getAlarmOutId() const { return alarmOutId_; }
    void setAlarmOutId(int alarmOutId) { alarmOutId_ = alarmOutId; }

    /// Its name, as set by the user.
    const std::string& getAlarmOutName() const { return alarmOutName_; }
    void setAlarmOutName(const std::string& alarmOutName) { alarmOutName_ = alarmOutName; }

    /// The signal that drives it, as the device numbers it.
    int getAlarmValidSignal() const { return alarmValidSignal_; }
    void setAlarmValidSignal(int alarmValidSignal) { alarmValidSignal_ = alarmValidSignal; }

    /// How it is driven, as the device numbers it.
    int getAlarmMode() const { return alarmMode_; }
    void setAlarmMode(int alarmMode) { alarmMode_ = alarmMode; }

    /// The frequency of a pulsed output, in the device's unit.
    float getAlarmOutFrequency() const { return alarmOutFrequency_; }
    void setAlarmOutFrequency(float alarmOutFrequency) { alarmOutFrequency_ = alarmOutFrequency; }

    /// How long it stays on, in the device's unit.
    int getAlarmTime() const { return alarmTime_; }
    void setAlarmTime(int alarmTime) { alarmTime_ = alarmTime; }

    /// Since when it is on, in the device's unit.
    long getActivatedStartTime() const { return activatedStartTime_; }
    void setActivatedStartTime(long activatedStartTime) { activatedStartTime_ = activatedStartTime; }

    /// Until when it is on, in the device's unit.
    long getActivatedEndTime() const { return activatedEndTime_; }
    void setActivatedEndTime(long activatedEndTime) { activatedEndTime_ = activatedEndTime; }

private:
    int alarmOutId_ = 0;
    std::string alarmOutName_;
    int alarmValidSignal_ = 0;
    int alarmMode_ = 0;
    float alarmOutFrequency_ = 0.0F;
    int alarmTime_ = 0;
    long activatedStartTime_ = 0;
    long activatedEndTime_ = 0;
};

/// How a device's alarm inputs and outputs work.
class AlarmIOMode
{
public:
    /// The mode, as the device numbers it; the document says "AlarmIOModeType".
    int getAlarmIOModeID() const { return alarmIOModeID_; }
    void setAlarmIOModeID(int alarmIOModeID) { alarmIOModeID_ = alarmIOModeID; }

private:
    int alarmIOModeID_ = 0;
};

/// A type of alarm that a device knows.
class AlarmType
{
public:
    /// The number of the type.
    int getAlarmTypeId() const { return alarmTypeId_; }
    void setAlarmTypeId(int alarmTypeId) { alarmTypeId_ = alarmTypeId; }

    /// Its name.
    const std::string& getAlarmTypeName() const { return alarmTypeName_; }
    void setAlarmTypeName(const std::string& alarmTypeName) { alarmTypeName_ = alarmTypeName; }

private:
    int alarmTypeId_ = 0;
    std::string alarmTypeName_;
};

/// One alarm.
class AlarmData
{
public:
    /// What happened, as the device numbers it.
    int getAlarmCode() const { return alarmCode_; }
    void setAlarmCode(int alarmCode) { alarmCode_ = alarmCode; }

    /// Whether the alarm begins or ends, as the device numbers it.
    int getAlarmFlag() const { return alarmFlag_; }
    void setAlarmFlag(int alarmFlag) { alarmFlag_ = alarmFlag; }

    /// The number of its source.
    int getAlarmSourceId() const { return alarmSourceId_; }
    void setAlarmSourceId(int alarmSourceId) { alarmSourceId_ = alarmSourceId; }

    /// The name of its source.
    const std::string& getAlarmSourceName() const { return alarmSourceName_; }
    void setAlarmSourceName(const std::string& alarmSourceName) { alarmSourceName_ = alarmSourceName; }

    /// When it happened, in the device's unit.
    long getAlarmTime() const { return alarmTime_; }
    void setAlarmTime(long alarmTime) { alarmTime_ = alarmTime; }

    /// The type of the alarm.
    int getAlarmType() const { return alarmType_; }
    void setAlarmType(int alarmType) { alarmType_ = alarmType; }

    /// The type of the event behind it.
    int getEventType() const { return eventType_; }
    void setEventType(int eventType) { eventType_ = eventType; }

private:
    int alarmCode_ = 0;
    int alarmFlag_ = 0;
    int alarmSourceId_ = 0;
    std::string alarmSourceName_;
    long alarmTime_ = 0;
    int alarmType_ = 0;
    int eventType_ = 0;
};

/// An alarm, and the device that raised it.
class AlarmInfo
{
public:
    /// The identity of the device on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// The alarm.
    /// @{
    const AlarmData& getAlarmData() const { return alarmData_; }
    AlarmData& getAlarmData() { return alarmData_; }
    void setAlarmData(const AlarmData& alarmData) { alarmData_ = alarmData; }
    /// @}

private:
    std::string deviceId_;
    int deviceType_ = 0;
    std::string deviceIp_;
    AlarmData alarmData_;
};

/// An alarm, and the device that raised it, with types of two levels.
class AlarmInfoEx
{
public:
    /// The identity of the device on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// The type of the alarm.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The kind within that type.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// The identity of its source.
    const std::string& getSourceId() const { return sourceId_; }
    void setSourceId(const std::string& sourceId) { sourceId_ = sourceId; }

    /// The name of its source.
    const std::string& getSourceName() const { return sourceName_; }
    void setSourceName(const std::string& sourceName) { sourceName_ = sourceName; }

    /// Whether the alarm begins or ends, as the device numbers it.
    int getAlarmFlag() const { return alarmFlag_; }
    void setAlarmFlag(int alarmFlag) { alarmFlag_ = alarmFlag; }

    /// When it happened, in the device's unit.
    unsigned long getAlarmTime() const { return alarmTime_; }
    void setAlarmTime(unsigned long alarmTime) { alarmTime_ = alarmTime; }

    /// What happened, in words.
    const std::string& getDescription() const { return description_; }
    void setDescription(const std::string& description) { description_ = description; }

    /// When it happened, by the calendar.
    /// @{
    const TimeStruct& getStructAlarmTime() const { return structAlarmTime_; }
    TimeStruct& getStructAlarmTime() { return structAlarmTime_; }
    void setStructAlarmTime(const TimeStruct& structAlarmTime) { structAlarmTime_ = structAlarmTime; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int deviceType_ = 0;
    int majorType_ = 0;
    int minorType_ = 0;
    std::string sourceId_;
    std::string sourceName_;
    int alarmFlag_ = 0;
    unsigned long alarmTime_ = 0;
    std::string description_;
    TimeStruct structAlarmTime_;
};

/// An alarm in the log, from its beginning to its end.
class AlarmInfoExRecordSet
{
public:
    /// The identity of the device on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// The type of the alarm.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The kind within that type.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// The identity of its source.
    const std::string& getSourceId() const { return sourceId_; }
    void setSourceId(const std::string& sourceId) { sourceId_ = sourceId; }

    /// The name of its source.
    const std::string& getSourceName() const { return sourceName_; }
    void setSourceName(const std::string& sourceName) { sourceName_ = sourceName; }

    /// When it began, in the device's unit.
    unsigned long getAlarmBeginTime() const { return alarmBeginTime_; }
    void setAlarmBeginTime(unsigned long alarmBeginTime) { alarmBeginTime_ = alarmBeginTime; }

    /// When it ended, in the device's unit.
    unsigned long getAlarmEndTime() const { return alarmEndTime_; }
    void setAlarmEndTime(unsigned long alarmEndTime) { alarmEndTime_ = alarmEndTime; }

    /// What happened, in words.
    const std::string& getDescription() const { return description_; }
    void setDescription(const std::string& description) { description_ = description; }

    /// When it began, by the calendar.
    /// @{
    const TimeStruct& getStructAlarmBeginTime() const { return structAlarmBeginTime_; }
    TimeStruct& getStructAlarmBeginTime() { return structAlarmBeginTime_; }
    void setStructAlarmBeginTime(const TimeStruct& structAlarmBeginTime)
    {
        structAlarmBeginTime_ = structAlarmBeginTime;
    }
    /// @}

    /// When it ended, by the calendar.
    /// @{
    const TimeStruct& getStructAlarmEndTime() const { return structAlarmEndTime_; }
    TimeStruct& getStructAlarmEndTime() { return structAlarmEndTime_; }
    void setStructAlarmEndTime(const TimeStruct& structAlarmEndTime) { structAlarmEndTime_ = structAlarmEndTime; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    int deviceType_ = 0;
    int majorType_ = 0;
    int minorType_ = 0;
    std::string sourceId_;
    std::string sourceName_;
    unsigned long alarmBeginTime_ = 0;
    unsigned long alarmEndTime_ = 0;
    std::string description_;
    TimeStruct structAlarmBeginTime_;
    TimeStruct structAlarmEndTime_;
};

/// What to look for in the log of alarms, with types of two levels.
class AlarmInfoExQueryParam
{
public:
    /// The identity of the device on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// The identity of the source.
    const std::string& getSourceId() const { return sourceId_; }
    void setSourceId(const std::string& sourceId) { sourceId_ = sourceId; }

    /// The name of the source.
    const std::string& getSourceName() const { return sourceName_; }
    void setSourceName(const std::string& sourceName) { sourceName_ = sourceName; }

    /// From when on, in the device's unit.
    unsigned long getAlarmBeginTime() const { return alarmBeginTime_; }
    void setAlarmBeginTime(unsigned long alarmBeginTime) { alarmBeginTime_ = alarmBeginTime; }

    /// Until when, in the device's unit.
    unsigned long getAlarmEndTime() const { return alarmEndTime_; }
    void setAlarmEndTime(unsigned long alarmEndTime) { alarmEndTime_ = alarmEndTime; }

    /// The type of the alarms.
    int getMajorType() const { return majorType_; }
    void setMajorType(int majorType) { majorType_ = majorType; }

    /// The kind within that type.
    int getMinorType() const { return minorType_; }
    void setMinorType(int minorType) { minorType_ = minorType; }

    /// From when on, by the calendar.
    /// @{
    const TimeStruct& getStructAlarmBeginTime() const { return structAlarmBeginTime_; }
    TimeStruct& getStructAlarmBeginTime() { return structAlarmBeginTime_; }
    void setStructAlarmBeginTime(const TimeStruct& structAlarmBeginTime)
    {
        structAlarmBeginTime_ = structAlarmBeginTime;
    }
    /// @}

    /// Until when, by the calendar.
    /// @{
    const TimeStruct& getStructAlarmEndTime() const { return structAlarmEndTime_; }
    TimeStruct& getStructAlarmEndTime() { return structAlarmEndTime_; }
    void setStructAlarmEndTime(const TimeStruct& structAlarmEndTime) { structAlarmEndTime_ = structAlarmEndTime; }
    /// @}

private:
    std::string deviceId_;
    std::string deviceIP_;
    std::string sourceId_;
    std::string sourceName_;
    unsigned long alarmBeginTime_ = 0;
    unsigned long alarmEndTime_ = 0;
    int majorType_ = 0;
    int minorType_ = 0;
    TimeStruct structAlarmBeginTime_;
    TimeStruct structAlarmEndTime_;
};

/// What to look for in the log of alarms.
class AlarmLogQueryParam
{
public:
    /// The identity of the device on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// From when on, in the device's unit.
    unsigned long getStartTime() const { return startTime_; }
    void setStartTime(unsigned long startTime) { startTime_ = startTime; }

    /// Until when, in the device's unit.
    unsigned long getEndTime() const { return endTime_; }
    void setEndTime(unsigned long endTime) { endTime_ = endTime; }

    /// The type of the alarms.
    int getAlarmType() const { return alarmType_; }
    void setAlarmType(int alarmType) { alarmType_ = alarmType; }

private:
    std::string deviceId_;
    std::string deviceIp_;
    unsigned long startTime_ = 0;
    unsigned long endTime_ = 0;
    int alarmType_ = 0;
};

/// An alarm in the log.
class AlarmLogRecordSet
{
public:
    /// The identity of the device on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// Its address, as text.
    const std::string& getDeviceIp() const { return deviceIp_; }
    void setDeviceIp(const std::string& deviceIp) { deviceIp_ = deviceIp; }

    /// When it happened, in the device's unit.
    unsigned long getAlarmTime() const { return alarmTime_; }
    void setAlarmTime(unsigned long alarmTime) { alarmTime_ = alarmTime; }

    /// The type of the alarm.
    int getAlarmType() const { return alarmType_; }
    void setAlarmType(int alarmType) { alarmType_ = alarmType; }

    /// The number of its source.
    int getAlarmSourceId() const { return alarmSourceId_; }
    void setAlarmSourceId(int alarmSourceId) { alarmSourceId_ = alarmSourceId; }

    /// The name of its source.
    const std::string& getAlarmSourceName() const { return alarmSourceName_; }
    void setAlarmSourceName(const std::string& alarmSourceName) { alarmSourceName_ = alarmSourceName; }

private:
    std::string deviceId_;
    std::string deviceIp_;
    unsigned long alarmTime_ = 0;
    int alarmType_ = 0;
    int alarmSourceId_ = 0;
    std::string alarmSourceName_;
};

/// Where a device reports its alarms.
class AlarmServiceParam
{
public:
    /// Whether alarms go to a centre.
    bool getAlarmCenterEnableFlag() const { return alarmCenterEnableFlag_; }
    void setAlarmCenterEnableFlag(bool alarmCenterEnableFlag) { alarmCenterEnableFlag_ = alarmCenterEnableFlag; }

    /// The centre's address, as text.
    const std::string& getAlarmCenterServerIP() const { return alarmCenterServerIP_; }
    void setAlarmCenterServerIP(const std::string& alarmCenterServerIP) { alarmCenterServerIP_ = alarmCenterServerIP; }

    /// The centre's port.
    std::uint16_t getAlarmCenterServerPort() const { return alarmCenterServerPort_; }
    void setAlarmCenterServerPort(std::uint16_t alarmCenterServerPort)
    {
        alarmCenterServerPort_ = alarmCenterServerPort;
    }

    /// Whether alarms go out by mail.
    bool getAlarmEmailEnableFlag() const { return alarmEmailEnableFlag_; }
    void setAlarmEmailEnableFlag(bool alarmEmailEnableFlag) { alarmEmailEnableFlag_ = alarmEmailEnableFlag; }

    /// The address that they are mailed to.
    const std::string& getAlarmEmailAddress() const { return alarmEmailAddress_; }
    void setAlarmEmailAddress(const std::string& alarmEmailAddress) { alarmEmailAddress_ = alarmEmailAddress; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool alarmCenterEnableFlag_ = false;
    std::string alarmCenterServerIP_;
    std::uint16_t alarmCenterServerPort_ = 0;
    bool alarmEmailEnableFlag_ = false;
    std::string alarmEmailAddress_;
    int ipProtoVer_ = 0;
};
