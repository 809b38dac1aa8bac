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

    /// The numbers of the objects that broke it, at most 255.
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
