#pragma once

/// @file
/// The records of the analysis of pictures.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/AlarmRecords.h"

#include <string>
#include <vector>

/// A parameter that takes numbers of a range.
struct AbilityRange
{
    bool enable = false; ///< whether the parameter can be set
    int min = 0;
    int max = 0;
    std::string unit; ///< what the numbers count
};

/// A parameter that takes fractional numbers of a range.
struct AbilityFloatRange
{
    bool enable = false; ///< whether the parameter can be set
    float min = 0.0F;
    float max = 0.0F;
    std::string unit; ///< what the numbers count
};

/// A parameter that takes numbers of a range without a unit.
struct AbilityLimits
{
    bool enable = false; ///< whether the parameter can be set
    int min = 0;
    int max = 0;
};

/// A parameter that takes any number of a unit.
struct AbilityUnit
{
    bool enable = false; ///< whether the parameter can be set
    std::string unit;    ///< what the numbers count
};

/// The regions that a function watches.
struct AbilityRegion
{
    bool enable = false;  ///< whether regions can be set
    int edgeNum = 0;      ///< the most edges of one
    int maxRegionNum = 0; ///< the most regions
};

/// One analysis library of a device.
class LibCommonAbility
{
public:
    /// The number of the library; -1 where it is not told.
    int getLibId() const { return libId_; }
    void setLibId(int libId) { libId_ = libId; }

    /// Whether the library runs.
    bool getEnable() const { return enable_; }
    void setEnable(bool enable) { enable_ = enable; }

    /// The width of the pictures that it works on, in pixels.
    int getResolutionWidth() const { return resolutionWidth_; }
    void setResolutionWidth(int resolutionWidth) { resolutionWidth_ = resolutionWidth; }

    /// Their height, in pixels.
    int getResolutionHeight() const { return resolutionHeight_; }
    void setResolutionHeight(int resolutionHeight) { resolutionHeight_ = resolutionHeight; }

    /// The most regions of all its functions together.
    int getTotalAnalyseRegionNum() const { return totalAnalyseRegionNum_; }
    void setTotalAnalyseRegionNum(int totalAnalyseRegionNum) { totalAnalyseRegionNum_ = totalAnalyseRegionNum; }

    /// The most functions that run at once.
    int getMaxEnableFunsNum() const { return maxEnableFunsNum_; }
    void setMaxEnableFunsNum(int maxEnableFunsNum) { maxEnableFunsNum_ = maxEnableFunsNum; }

private:
    int libId_ = 0;
    bool enable_ = false;
    int resolutionWidth_ = 0;
    int resolutionHeight_ = 0;
    int totalAnalyseRegionNum_ = 0;
    int maxEnableFunsNum_ = 0;
};

/// What all analysis functions have.
class FunctionAbility
{
public:
    /// Whether the function can be used.
    bool getEnable() const { return enable_; }
    void setEnable(bool enable) { enable_ = enable; }

    /// The library that serves it; -1 for a function that the device lacks.
    int getLibId() const { return libId_; }
    void setLibId(int libId) { libId_ = libId; }

private:
    bool enable_ = false;
    int libId_ = 0;
};

/// What all functions have that watch regions for objects.
class RegionAbility : public FunctionAbility
{
public:
    /// The regions that it watches.
    /// @{
    const AbilityRegion& getRegion() const { return region_; }
    AbilityRegion& getRegion() { return region_; }
    bool getRegionEnable() const { return region_.enable; }
    void setRegionEnable(bool enable) { region_.enable = enable; }
    int getEdgeNum() const { return region_.edgeNum; }
    void setEdgeNum(int edgeNum) { region_.edgeNum = edgeNum; }
    int getMaxRegionNum() const { return region_.maxRegionNum; }
    void setMaxRegionNum(int maxRegionNum) { region_.maxRegionNum = maxRegionNum; }
    /// @}

    /// Whether details of its alarms can be asked for.
    bool getDetailGetEnable() const { return detailGetEnable_; }
    void setDetailGetEnable(bool detailGetEnable) { detailGetEnable_ = detailGetEnable; }

    /// The size of the smallest object.
    /// @{
    const AbilityRange& getMinTargetSize() const { return minTargetSize_; }
    AbilityRange& getMinTargetSize() { return minTargetSize_; }
    bool getMinTargetSizeEnable() const { return minTargetSize_.enable; }
    void setMinTargetSizeEnable(bool enable) { minTargetSize_.enable = enable; }
    int getMinTargetSizeMin() const { return minTargetSize_.min; }
    void setMinTargetSizeMin(int min) { minTargetSize_.min = min; }
    int getMinTargetSizeMax() const { return minTargetSize_.max; }
    void setMinTargetSizeMax(int max) { minTargetSize_.max = max; }
    const std::string& getMinTargetSizeUnit() const { return minTargetSize_.unit; }
    void setMinTargetSizeUnit(const std::string& unit) { minTargetSize_.unit = unit; }
    /// @}

    /// The size of the largest object.
    /// @{
    const AbilityRange& getMaxTargetSize() const { return maxTargetSize_; }
    AbilityRange& getMaxTargetSize() { return maxTargetSize_; }
    bool getMaxTargetSizeEnable() const { return maxTargetSize_.enable; }
    void setMaxTargetSizeEnable(bool enable) { maxTargetSize_.enable = enable; }
    int getMaxTargetSizeMin() const { return maxTargetSize_.min; }
    void setMaxTargetSizeMin(int min) { maxTargetSize_.min = min; }
    int getMaxTargetSizeMax() const { return maxTargetSize_.max; }
    void setMaxTargetSizeMax(int max) { maxTargetSize_.max = max; }
    const std::string& getMaxTargetSizeUnit() const { return maxTargetSize_.unit; }
    void setMaxTargetSizeUnit(const std::string& unit) { maxTargetSize_.unit = unit; }
    /// @}

private:
    AbilityRegion region_;
    bool detailGetEnable_ = false;
    AbilityRange minTargetSize_;
    AbilityRange maxTargetSize_;
};

/// What all functions have that tell sorts of objects apart.
class TargetAbility : public RegionAbility
{
public:
    /// Whether the sort of the objects is looked at.
    /// @{
    const AbilityRange& getTargetTypeConstrain() const { return targetTypeConstrain_; }
    AbilityRange& getTargetTypeConstrain() { return targetTypeConstrain_; }
    bool getTargetTypeConstrainEnable() const { return targetTypeConstrain_.enable; }
    void setTargetTypeConstrainEnable(bool enable) { targetTypeConstrain_.enable = enable; }
    int getTargetTypeConstrainMin() const { return targetTypeConstrain_.min; }
    void setTargetTypeConstrainMin(int min) { targetTypeConstrain_.min = min; }
    int getTargetTypeConstrainMax() const { return targetTypeConstrain_.max; }
    void setTargetTypeConstrainMax(int max) { targetTypeConstrain_.max = max; }
    const std::string& getTargetTypeConstrainUnit() const { return targetTypeConstrain_.unit; }
    void setTargetTypeConstrainUnit(const std::string& unit) { targetTypeConstrain_.unit = unit; }
    /// @}

    /// The sort of the objects.
    /// @{
    const AbilityRange& getTargetType() const { return targetType_; }
    AbilityRange& getTargetType() { return targetType_; }
    bool getTargetTypeEnable() const { return targetType_.enable; }
    void setTargetTypeEnable(bool enable) { targetType_.enable = enable; }
    int getTargetTypeMin() const { return targetType_.min; }
    void setTargetTypeMin(int min) { targetType_.min = min; }
    int getTargetTypeMax() const { return targetType_.max; }
    void setTargetTypeMax(int max) { targetType_.max = max; }
    const std::string& getTargetTypeUnit() const { return targetType_.unit; }
    void setTargetTypeUnit(const std::string& unit) { targetType_.unit = unit; }
    /// @}

    /// Whether the size of the objects is looked at.
    /// @{
    const AbilityRange& getTargetSizeConstrain() const { return targetSizeConstrain_; }
    AbilityRange& getTargetSizeConstrain() { return targetSizeConstrain_; }
    bool getTargetSizeConstrainEnable() const { return targetSizeConstrain_.enable; }
    void setTargetSizeConstrainEnable(bool enable) { targetSizeConstrain_.enable = enable; }
    int getTargetSizeConstrainMin() const { return targetSizeConstrain_.min; }
    void setTargetSizeConstrainMin(int min) { targetSizeConstrain_.min = min; }
    int getTargetSizeConstrainMax() const { return targetSizeConstrain_.max; }
    void setTargetSizeConstrainMax(int max) { targetSizeConstrain_.max = max; }
    const std::string& getTargetSizeConstrainUnit() const { return targetSizeConstrain_.unit; }
    void setTargetSizeConstrainUnit(const std::string& unit) { targetSizeConstrain_.unit = unit; }
    /// @}

private:
    AbilityRange targetTypeConstrain_;
    AbilityRange targetType_;
    AbilityRange targetSizeConstrain_;
};

/// What all functions have that wait before they alarm.
class LingerAbility : public RegionAbility
{
public:
    /// The time from which on it alarms.
    /// @{
    const AbilityRange& getMinTime() const { return minTime_; }
    AbilityRange& getMinTime() { return minTime_; }
    bool getMinTimeEnable() const { return minTime_.enable; }
    void setMinTimeEnable(bool enable) { minTime_.enable = enable; }
    int getMinTimeMin() const { return minTime_.min; }
    void setMinTimeMin(int min) { minTime_.min = min; }
    int getMinTimeMax() const { return minTime_.max; }
    void setMinTimeMax(int max) { minTime_.max = max; }
    const std::string& getMinTimeUnit() const { return minTime_.unit; }
    void setMinTimeUnit(const std::string& unit) { minTime_.unit = unit; }
    /// @}

private:
    AbilityRange minTime_;
};

/// Detection of motion.
class MotionDetectionAbilityV2 : public FunctionAbility
{
public:
    /// How readily it alarms.
    /// @{
    const AbilityLimits& getSensitivity() const { return sensitivity_; }
    AbilityLimits& getSensitivity() { return sensitivity_; }
    bool getSensitivityEnable() const { return sensitivity_.enable; }
    void setSensitivityEnable(bool enable) { sensitivity_.enable = enable; }
    int getSensitivityMin() const { return sensitivity_.min; }
    void setSensitivityMin(int min) { sensitivity_.min = min; }
    int getSensitivityMax() const { return sensitivity_.max; }
    void setSensitivityMax(int max) { sensitivity_.max = max; }
    /// @}

    /// The cells that the picture is divided into: whether they can be set, and how many stand in a row and in a
    /// column.
    /// @{
    bool getCellEnable() const { return cellEnable_; }
    void setCellEnable(bool cellEnable) { cellEnable_ = cellEnable; }
    int getCellWidthCellNumber() const { return cellWidthCellNumber_; }
    void setCellWidthCellNumber(int cellWidthCellNumber) { cellWidthCellNumber_ = cellWidthCellNumber; }
    int getCellHeightCellNumber() const { return cellHeightCellNumber_; }
    void setCellHeightCellNumber(int cellHeightCellNumber) { cellHeightCellNumber_ = cellHeightCellNumber; }
    /// @}

private:
    AbilityLimits sensitivity_;
    bool cellEnable_ = false;
    int cellWidthCellNumber_ = 0;
    int cellHeightCellNumber_ = 0;
};

/// Objects that enter a region.
class PerimeterAbility : public TargetAbility
{
public:
    /// How readily it alarms.
    /// @{
    const AbilityLimits& getSensitivity() const { return sensitivity_; }
    AbilityLimits& getSensitivity() { return sensitivity_; }
    bool getSensitivityEnable() const { return sensitivity_.enable; }
    void setSensitivityEnable(bool enable) { sensitivity_.enable = enable; }
    int getSensitivityMin() const { return sensitivity_.min; }
    void setSensitivityMin(int min) { sensitivity_.min = min; }
    int getSensitivityMax() const { return sensitivity_.max; }
    void setSensitivityMax(int max) { sensitivity_.max = max; }
    /// @}

private:
    AbilityLimits sensitivity_;
};

/// Objects that cross a line.
class TripWireAbility : public TargetAbility
{
public:
    /// Whether the direction that alarms can be set.
    bool getTriggerDirectionEnable() const { return triggerDirectionEnable_; }
    void setTriggerDirectionEnable(bool triggerDirectionEnable) { triggerDirectionEnable_ = triggerDirectionEnable; }

    /// Whether both directions can alarm.
    bool getBidirectionEnable() const { return bidirectionEnable_; }
    void setBidirectionEnable(bool bidirectionEnable) { bidirectionEnable_ = bidirectionEnable; }

private:
    bool triggerDirectionEnable_ = false;
    bool bidirectionEnable_ = false;
};

/// Objects that cross two lines.
class MultiTripWireAbility : public TargetAbility
{
public:
    /// Whether the direction that alarms can be set.
    bool getTriggerDirectionEnable() const { return triggerDirectionEnable_; }
    void setTriggerDirectionEnable(bool triggerDirectionEnable) { triggerDirectionEnable_ = triggerDirectionEnable; }

    /// The time between the lines.
    /// @{
    const AbilityRange& getTimeInterval() const { return timeInterval_; }
    AbilityRange& getTimeInterval() { return timeInterval_; }
    bool getTimeIntervalEnable() const { return timeInterval_.enable; }
    void setTimeIntervalEnable(bool enable) { timeInterval_.enable = enable; }
    int getTimeIntervalMin() const { return timeInterval_.min; }
    void setTimeIntervalMin(int min) { timeInterval_.min = min; }
    int getTimeIntervalMax() const { return timeInterval_.max; }
    void setTimeIntervalMax(int max) { timeInterval_.max = max; }
    const std::string& getTimeIntervalUnit() const { return timeInterval_.unit; }
    void setTimeIntervalUnit(const std::string& unit) { timeInterval_.unit = unit; }
    /// @}

private:
    bool triggerDirectionEnable_ = false;
    AbilityRange timeInterval_;
};

/// Objects that loiter in a region.
class LoiterAbility : public TargetAbility
{
public:
    /// The way by which an object is followed.
    /// @{
    const AbilityRange& getAnalysisPath() const { return analysisPath_; }
    AbilityRange& getAnalysisPath() { return analysisPath_; }
    bool getAnalysisPathEnable() const { return analysisPath_.enable; }
    void setAnalysisPathEnable(bool enable) { analysisPath_.enable = enable; }
    int getAnalysisPathMin() const { return analysisPath_.min; }
    void setAnalysisPathMin(int min) { analysisPath_.min = min; }
    int getAnalysisPathMax() const { return analysisPath_.max; }
    void setAnalysisPathMax(int max) { analysisPath_.max = max; }
    const std::string& getAnalysisPathUnit() const { return analysisPath_.unit; }
    void setAnalysisPathUnit(const std::string& unit) { analysisPath_.unit = unit; }
    /// @}

    /// The time from which on it alarms.
    /// @{
    const AbilityRange& getMinTime() const { return minTime_; }
    AbilityRange& getMinTime() { return minTime_; }
    bool getMinTimeEnable() const { return minTime_.enable; }
    void setMinTimeEnable(bool enable) { minTime_.enable = enable; }
    int getMinTimeMin() const { return minTime_.min; }
    void setMinTimeMin(int min) { minTime_.min = min; }
    int getMinTimeMax() const { return minTime_.max; }
    void setMinTimeMax(int max) { minTime_.max = max; }
    const std::string& getMinTimeUnit() const { return minTime_.unit; }
    void setMinTimeUnit(const std::string& unit) { minTime_.unit = unit; }
    /// @}

private:
    AbilityRange analysisPath_;
    AbilityRange minTime_;
};

/// Several objects that loiter in a region.
class MultiLoiterAbility : public LingerAbility
{
public:
    /// The way by which an object is followed.
    /// @{
    const AbilityRange& getAnalysisPath() const { return analysisPath_; }
    AbilityRange& getAnalysisPath() { return analysisPath_; }
    bool getAnalysisPathEnable() const { return analysisPath_.enable; }
    void setAnalysisPathEnable(bool enable) { analysisPath_.enable = enable; }
    int getAnalysisPathMin() const { return analysisPath_.min; }
    void setAnalysisPathMin(int min) { analysisPath_.min = min; }
    int getAnalysisPathMax() const { return analysisPath_.max; }
    void setAnalysisPathMax(int max) { analysisPath_.max = max; }
    const std::string& getAnalysisPathUnit() const { return analysisPath_.unit; }
    void setAnalysisPathUnit(const std::string& unit) { analysisPath_.unit = unit; }
    /// @}

    /// Whether the size of the objects is looked at.
    /// @{
    const AbilityRange& getTargetSizeConstrain() const { return targetSizeConstrain_; }
    AbilityRange& getTargetSizeConstrain() { return targetSizeConstrain_; }
    bool getTargetSizeConstrainEnable() const { return targetSizeConstrain_.enable; }
    void setTargetSizeConstrainEnable(bool enable) { targetSizeConstrain_.enable = enable; }
    int getTargetSizeConstrainMin() const { return targetSizeConstrain_.min; }
    void setTargetSizeConstrainMin(int min) { targetSizeConstrain_.min = min; }
    int getTargetSizeConstrainMax() const { return targetSizeConstrain_.max; }
    void setTargetSizeConstrainMax(int max) { targetSizeConstrain_.max = max; }
    const std::string& getTargetSizeConstrainUnit() const { return targetSizeConstrain_.unit; }
    void setTargetSizeConstrainUnit(const std::string& unit) { targetSizeConstrain_.unit = unit; }
    /// @}

    /// Whether what is forbidden can be set.
    bool getForbiddenTypeEnable() const { return forbiddenTypeEnable_; }
    void setForbiddenTypeEnable(bool forbiddenTypeEnable) { forbiddenTypeEnable_ = forbiddenTypeEnable; }

    /// The least number of objects.
    /// @{
    const AbilityRange& getMinimum() const { return minimum_; }
    AbilityRange& getMinimum() { return minimum_; }
    bool getMinimumEnable() const { return minimum_.enable; }
    void setMinimumEnable(bool enable) { minimum_.enable = enable; }
    int getMinimumMin() const { return minimum_.min; }
    void setMinimumMin(int min) { minimum_.min = min; }
    int getMinimumMax() const { return minimum_.max; }
    void setMinimumMax(int max) { minimum_.max = max; }
    const std::string& getMinimumUnit() const { return minimum_.unit; }
    void setMinimumUnit(const std::string& unit) { minimum_.unit = unit; }
    /// @}

    /// The largest number of objects.
    /// @{
    const AbilityRange& getMaximum() const { return maximum_; }
    AbilityRange& getMaximum() { return maximum_; }
    bool getMaximumEnable() const { return maximum_.enable; }
    void setMaximumEnable(bool enable) { maximum_.enable = enable; }
    int getMaximumMin() const { return maximum_.min; }
    void setMaximumMin(int min) { maximum_.min = min; }
    int getMaximumMax() const { return maximum_.max; }
    void setMaximumMax(int max) { maximum_.max = max; }
    const std::string& getMaximumUnit() const { return maximum_.unit; }
    void setMaximumUnit(const std::string& unit) { maximum_.unit = unit; }
    /// @}

private:
    AbilityRange analysisPath_;
    AbilityRange targetSizeConstrain_;
    bool forbiddenTypeEnable_ = false;
    AbilityRange minimum_;
    AbilityRange maximum_;
};

/// Objects that are left behind.
class ObjLeftAbility : public LingerAbility
{
};

/// Objects that are taken away.
class ObjMoveAbility : public LingerAbility
{
};

/// Objects that are too fast or too slow.
class AbnormalSpeedAbility : public TargetAbility
{
public:
    /// Which speeds alarm.
    /// @{
    const AbilityRange& getRateLimitingType() const { return rateLimitingType_; }
    AbilityRange& getRateLimitingType() { return rateLimitingType_; }
    bool getRateLimitingTypeEnable() const { return rateLimitingType_.enable; }
    void setRateLimitingTypeEnable(bool enable) { rateLimitingType_.enable = enable; }
    int getRateLimitingTypeMin() const { return rateLimitingType_.min; }
    void setRateLimitingTypeMin(int min) { rateLimitingType_.min = min; }
    int getRateLimitingTypeMax() const { return rateLimitingType_.max; }
    void setRateLimitingTypeMax(int max) { rateLimitingType_.max = max; }
    const std::string& getRateLimitingTypeUnit() const { return rateLimitingType_.unit; }
    void setRateLimitingTypeUnit(const std::string& unit) { rateLimitingType_.unit = unit; }
    /// @}

    /// The lowest speed.
    /// @{
    const AbilityRange& getMinRate() const { return minRate_; }
    AbilityRange& getMinRate() { return minRate_; }
    bool getMinRateEnable() const { return minRate_.enable; }
    void setMinRateEnable(bool enable) { minRate_.enable = enable; }
    int getMinRateMin() const { return minRate_.min; }
    void setMinRateMin(int min) { minRate_.min = min; }
    int getMinRateMax() const { return minRate_.max; }
    void setMinRateMax(int max) { minRate_.max = max; }
    const std::string& getMinRateUnit() const { return minRate_.unit; }
    void setMinRateUnit(const std::string& unit) { minRate_.unit = unit; }
    /// @}

    /// The highest speed.
    /// @{
    const AbilityRange& getMaxRate() const { return maxRate_; }
    AbilityRange& getMaxRate() { return maxRate_; }
    bool getMaxRateEnable() const { return maxRate_.enable; }
    void setMaxRateEnable(bool enable) { maxRate_.enable = enable; }
    int getMaxRateMin() const { return maxRate_.min; }
    void setMaxRateMin(int min) { maxRate_.min = min; }
    int getMaxRateMax() const { return maxRate_.max; }
    void setMaxRateMax(int max) { maxRate_.max = max; }
    const std::string& getMaxRateUnit() const { return maxRate_.unit; }
    void setMaxRateUnit(const std::string& unit) { maxRate_.unit = unit; }
    /// @}

private:
    AbilityRange rateLimitingType_;
    AbilityRange minRate_;
    AbilityRange maxRate_;
};

/// Objects that move against the permitted direction.
class ConverseAbility : public TargetAbility
{
public:
    /// The angle from which on a direction is wrong.
    /// @{
    const AbilityFloatRange& getConverseAngle() const { return converseAngle_; }
    AbilityFloatRange& getConverseAngle() { return converseAngle_; }
    bool getConverseAngleEnable() const { return converseAngle_.enable; }
    void setConverseAngleEnable(bool enable) { converseAngle_.enable = enable; }
    float getConverseAngleMin() const { return converseAngle_.min; }
    void setConverseAngleMin(float min) { converseAngle_.min = min; }
    float getConverseAngleMax() const { return converseAngle_.max; }
    void setConverseAngleMax(float max) { converseAngle_.max = max; }
    const std::string& getConverseAngleUnit() const { return converseAngle_.unit; }
    void setConverseAngleUnit(const std::string& unit) { converseAngle_.unit = unit; }
    /// @}

private:
    AbilityFloatRange converseAngle_;
};

/// Vehicles that park.
class NoParkingAbility : public LingerAbility
{
};

/// Pictures of bad quality.
class SignalBadAbility : public FunctionAbility
{
public:
    /// Whether details of its alarms can be asked for.
    bool getDetailGet() const { return detailGet_; }
    void setDetailGet(bool detailGet) { detailGet_ = detailGet; }

private:
    bool detailGet_ = false;
};

/// A camera that is covered.
class CameraTamperAbility : public FunctionAbility
{
public:
    /// The time from which on it alarms.
    /// @{
    const AbilityRange& getMinTime() const { return minTime_; }
    AbilityRange& getMinTime() { return minTime_; }
    bool getMinTimeEnable() const { return minTime_.enable; }
    void setMinTimeEnable(bool enable) { minTime_.enable = enable; }
    int getMinTimeMin() const { return minTime_.min; }
    void setMinTimeMin(int min) { minTime_.min = min; }
    int getMinTimeMax() const { return minTime_.max; }
    void setMinTimeMax(int max) { minTime_.max = max; }
    const std::string& getMinTimeUnit() const { return minTime_.unit; }
    void setMinTimeUnit(const std::string& unit) { minTime_.unit = unit; }
    /// @}

private:
    AbilityRange minTime_;
};

/// A camera that is turned away.
class CameraMoveAbility : public FunctionAbility
{
};

/// The settings of the scene.
class AdvancedAbility : public FunctionAbility
{
public:
    /// The sort of the scene.
    /// @{
    const AbilityRange& getScene() const { return scene_; }
    AbilityRange& getScene() { return scene_; }
    bool getSceneEnable() const { return scene_.enable; }
    void setSceneEnable(bool enable) { scene_.enable = enable; }
    int getSceneMin() const { return scene_.min; }
    void setSceneMin(int min) { scene_.min = min; }
    int getSceneMax() const { return scene_.max; }
    void setSceneMax(int max) { scene_.max = max; }
    const std::string& getSceneUnit() const { return scene_.unit; }
    void setSceneUnit(const std::string& unit) { scene_.unit = unit; }
    /// @}

    /// How high the camera hangs.
    /// @{
    const AbilityUnit& getHight() const { return hight_; }
    AbilityUnit& getHight() { return hight_; }
    bool getHightEnable() const { return hight_.enable; }
    void setHightEnable(bool enable) { hight_.enable = enable; }
    const std::string& getHightUnit() const { return hight_.unit; }
    void setHightUnit(const std::string& unit) { hight_.unit = unit; }
    /// @}

    /// How far it looks down.
    /// @{
    const AbilityUnit& getAngle() const { return angle_; }
    AbilityUnit& getAngle() { return angle_; }
    bool getAngleEnable() const { return angle_.enable; }
    void setAngleEnable(bool enable) { angle_.enable = enable; }
    const std::string& getAngleUnit() const { return angle_.unit; }
    void setAngleUnit(const std::string& unit) { angle_.unit = unit; }
    /// @}

    /// The width of its view.
    /// @{
    const AbilityUnit& getFOV() const { return fov_; }
    AbilityUnit& getFOV() { return fov_; }
    bool getFOVEnable() const { return fov_.enable; }
    void setFOVEnable(bool enable) { fov_.enable = enable; }
    const std::string& getFOVUnit() const { return fov_.unit; }
    void setFOVUnit(const std::string& unit) { fov_.unit = unit; }
    /// @}

    /// How far it shakes.
    /// @{
    const AbilityLimits& getCameraShake() const { return cameraShake_; }
    AbilityLimits& getCameraShake() { return cameraShake_; }
    bool getCameraShakeEnable() const { return cameraShake_.enable; }
    void setCameraShakeEnable(bool enable) { cameraShake_.enable = enable; }
    int getCameraShakeMin() const { return cameraShake_.min; }
    void setCameraShakeMin(int min) { cameraShake_.min = min; }
    int getCameraShakeMax() const { return cameraShake_.max; }
    void setCameraShakeMax(int max) { cameraShake_.max = max; }
    /// @}

    /// How noisy the picture is.
    /// @{
    const AbilityLimits& getHighNoise() const { return highNoise_; }
    AbilityLimits& getHighNoise() { return highNoise_; }
    bool getHighNoiseEnable() const { return highNoise_.enable; }
    void setHighNoiseEnable(bool enable) { highNoise_.enable = enable; }
    int getHighNoiseMin() const { return highNoise_.min; }
    void setHighNoiseMin(int min) { highNoise_.min = min; }
    int getHighNoiseMax() const { return highNoise_.max; }
    void setHighNoiseMax(int max) { highNoise_.max = max; }
    /// @}

    /// How flat the picture is.
    /// @{
    const AbilityLimits& getLowContrast() const { return lowContrast_; }
    AbilityLimits& getLowContrast() { return lowContrast_; }
    bool getLowContrastEnable() const { return lowContrast_.enable; }
    void setLowContrastEnable(bool enable) { lowContrast_.enable = enable; }
    int getLowContrastMin() const { return lowContrast_.min; }
    void setLowContrastMin(int min) { lowContrast_.min = min; }
    int getLowContrastMax() const { return lowContrast_.max; }
    void setLowContrastMax(int max) { lowContrast_.max = max; }
    /// @}

    /// How much moves to and fro.
    /// @{
    const AbilityLimits& getPeriodMotion() const { return periodMotion_; }
    AbilityLimits& getPeriodMotion() { return periodMotion_; }
    bool getPeriodMotionEnable() const { return periodMotion_.enable; }
    void setPeriodMotionEnable(bool enable) { periodMotion_.enable = enable; }
    int getPeriodMotionMin() const { return periodMotion_.min; }
    void setPeriodMotionMin(int min) { periodMotion_.min = min; }
    int getPeriodMotionMax() const { return periodMotion_.max; }
    void setPeriodMotionMax(int max) { periodMotion_.max = max; }
    /// @}

    /// The period of that.
    /// @{
    const AbilityRange& getPeriodMotionTime() const { return periodMotionTime_; }
    AbilityRange& getPeriodMotionTime() { return periodMotionTime_; }
    bool getPeriodMotionTimeEnable() const { return periodMotionTime_.enable; }
    void setPeriodMotionTimeEnable(bool enable) { periodMotionTime_.enable = enable; }
    int getPeriodMotionTimeMin() const { return periodMotionTime_.min; }
    void setPeriodMotionTimeMin(int min) { periodMotionTime_.min = min; }
    int getPeriodMotionTimeMax() const { return periodMotionTime_.max; }
    void setPeriodMotionTimeMax(int max) { periodMotionTime_.max = max; }
    const std::string& getPeriodMotionTimeUnit() const { return periodMotionTime_.unit; }
    void setPeriodMotionTimeUnit(const std::string& unit) { periodMotionTime_.unit = unit; }
    /// @}

    /// Whether lengths on the picture can be given real sizes.
    bool getPixelToRealSizeEnable() const { return pixelToRealSizeEnable_; }
    void setPixelToRealSizeEnable(bool pixelToRealSizeEnable) { pixelToRealSizeEnable_ = pixelToRealSizeEnable; }

    /// The real size of a length.
    /// @{
    const AbilityUnit& getRealSize() const { return realSize_; }
    AbilityUnit& getRealSize() { return realSize_; }
    bool getRealSizeEnable() const { return realSize_.enable; }
    void setRealSizeEnable(bool enable) { realSize_.enable = enable; }
    const std::string& getRealSizeUnit() const { return realSize_.unit; }
    void setRealSizeUnit(const std::string& unit) { realSize_.unit = unit; }
    /// @}

    /// Whether it can be told how a length lies.
    bool getSegmentLayTypeEnable() const { return segmentLayTypeEnable_; }
    void setSegmentLayTypeEnable(bool segmentLayTypeEnable) { segmentLayTypeEnable_ = segmentLayTypeEnable; }

    /// Whether the lengths can be set.
    bool getSegmentEnable() const { return segmentEnable_; }
    void setSegmentEnable(bool segmentEnable) { segmentEnable_ = segmentEnable; }

private:
    AbilityRange scene_;
    AbilityUnit hight_;
    AbilityUnit angle_;
    AbilityUnit fov_;
    AbilityLimits cameraShake_;
    AbilityLimits highNoise_;
    AbilityLimits lowContrast_;
    AbilityLimits periodMotion_;
    AbilityRange periodMotionTime_;
    bool pixelToRealSizeEnable_ = false;
    AbilityUnit realSize_;
    bool segmentLayTypeEnable_ = false;
    bool segmentEnable_ = false;
};

/// What the analysis libraries of a device can do.
class IntelligenceAnalyseAbility
{
public:
    /// The version of the catalogue.
    int getVersion() const { return version_; }
    void setVersion(int version) { version_ = version; }

    /// The libraries.
    /// @{
    const std::vector<LibCommonAbility>& getLibCommonAbilityList() const { return libCommonAbilityList_; }
    std::vector<LibCommonAbility>& getLibCommonAbilityList() { return libCommonAbilityList_; }
    void setLibCommonAbilityList(const std::vector<LibCommonAbility>& list) { libCommonAbilityList_ = list; }
    /// @}

    /// @name The functions
    /// @{
    const MotionDetectionAbilityV2& getMotionDetectionAbilityV2() const { return motionDetectionAbilityV2_; }
    void setMotionDetectionAbilityV2(const MotionDetectionAbilityV2& ability) { motionDetectionAbilityV2_ = ability; }
    const PerimeterAbility& getPerimeterAbility() const { return perimeterAbility_; }
    void setPerimeterAbility(const PerimeterAbility& ability) { perimeterAbility_ = ability; }
    const TripWireAbility& getTripWireAbility() const { return tripWireAbility_; }
    void setTripWireAbility(const TripWireAbility& ability) { tripWireAbility_ = ability; }
    const MultiTripWireAbility& getMultiTripWireAbility() const { return multiTripWireAbility_; }
    void setMultiTripWireAbility(const MultiTripWireAbility& ability) { multiTripWireAbility_ = ability; }
    const LoiterAbility& getLoiterAbility() const { return loiterAbility_; }
    void setLoiterAbility(const LoiterAbility& ability) { loiterAbility_ = ability; }
    const MultiLoiterAbility& getMultiLoiterAbility() const { return multiLoiterAbility_; }
    void setMultiLoiterAbility(const MultiLoiterAbility& ability) { multiLoiterAbility_ = ability; }
    const ObjLeftAbility& getObjLeftAbility() const { return objLeftAbility_; }
    void setObjLeftAbility(const ObjLeftAbility& ability) { objLeftAbility_ = ability; }
    const ObjMoveAbility& getObjMoveAbility() const { return objMoveAbility_; }
    void setObjMoveAbility(const ObjMoveAbility& ability) { objMoveAbility_ = ability; }
    const AbnormalSpeedAbility& getAbnormalSpeedAbility() const { return abnormalSpeedAbility_; }
    void setAbnormalSpeedAbility(const AbnormalSpeedAbility& ability) { abnormalSpeedAbility_ = ability; }
    const ConverseAbility& getConverseAbility() const { return converseAbility_; }
    void setConverseAbility(const ConverseAbility& ability) { converseAbility_ = ability; }
    const NoParkingAbility& getNoParkingAbility() const { return noParkingAbility_; }
    void setNoParkingAbility(const NoParkingAbility& ability) { noParkingAbility_ = ability; }
    const SignalBadAbility& getSignalBadAbility() const { return signalBadAbility_; }
    void setSignalBadAbility(const SignalBadAbility& ability) { signalBadAbility_ = ability; }
    const CameraTamperAbility& getCameraTamperAbility() const { return cameraTamperAbility_; }
    void setCameraTamperAbility(const CameraTamperAbility& ability) { cameraTamperAbility_ = ability; }
    const CameraMoveAbility& getCameraMoveAbility() const { return cameraMoveAbility_; }
    void setCameraMoveAbility(const CameraMoveAbility& ability) { cameraMoveAbility_ = ability; }
    const AdvancedAbility& getAdvancedAbility() const { return advancedAbility_; }
    void setAdvancedAbility(const AdvancedAbility& ability) { advancedAbility_ = ability; }
    /// @}

private:
    int version_ = 0;
    std::vector<LibCommonAbility> libCommonAbilityList_;
    MotionDetectionAbilityV2 motionDetectionAbilityV2_;
    PerimeterAbility perimeterAbility_;
    TripWireAbility tripWireAbility_;
    MultiTripWireAbility multiTripWireAbility_;
    LoiterAbility loiterAbility_;
    MultiLoiterAbility multiLoiterAbility_;
    ObjLeftAbility objLeftAbility_;
    ObjMoveAbility objMoveAbility_;
    AbnormalSpeedAbility abnormalSpeedAbility_;
    ConverseAbility converseAbility_;
    NoParkingAbility noParkingAbility_;
    SignalBadAbility signalBadAbility_;
    CameraTamperAbility cameraTamperAbility_;
    CameraMoveAbility cameraMoveAbility_;
    AdvancedAbility advancedAbility_;
};

/// What all analysis rules have in common.
class IntelligeBaseParam
{
public:
    /// The device.
    const std::string& getDeviceID() const { return deviceID_; }
    void setDeviceID(const std::string& deviceID) { deviceID_ = deviceID; }

    /// The camera.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// Whether the rule is watched.
    bool getEnable() const { return enable_; }
    void setEnable(bool enable) { enable_ = enable; }

    /// The least time between two alarms, in the unit of the analysis service.
    int getAlarmInterval() const { return alarmInterval_; }
    void setAlarmInterval(int alarmInterval) { alarmInterval_ = alarmInterval; }

    /// The alarm outputs that it drives.
    /// @{
    const std::vector<AlarmOutAction>& getAlarmOutActionList() const { return alarmOutActionList_; }
    std::vector<AlarmOutAction>& getAlarmOutActionList() { return alarmOutActionList_; }
    void setAlarmOutActionList(const std::vector<AlarmOutAction>& list) { alarmOutActionList_ = list; }
    /// @}

    /// The heads that it moves.
    /// @{
    const std::vector<AlarmPTZAction>& getAlarmPTZActionList() const { return alarmPTZActionList_; }
    std::vector<AlarmPTZAction>& getAlarmPTZActionList() { return alarmPTZActionList_; }
    void setAlarmPTZActionList(const std::vector<AlarmPTZAction>& list) { alarmPTZActionList_ = list; }
    /// @}

    /// The recordings that it starts.
    /// @{
    const std::vector<AlarmRecordAction>& getAlarmRecordActionList() const { return alarmRecordActionList_; }
    std::vector<AlarmRecordAction>& getAlarmRecordActionList() { return alarmRecordActionList_; }
    void setAlarmRecordActionList(const std::vector<AlarmRecordAction>& list) { alarmRecordActionList_ = list; }
    /// @}

    /// The texts that it puts on pictures.
    /// @{
    const std::vector<AlarmOverlayAction>& getAlarmOverlayActionList() const { return alarmOverlayActionList_; }
    std::vector<AlarmOverlayAction>& getAlarmOverlayActionList() { return alarmOverlayActionList_; }
    void setAlarmOverlayActionList(const std::vector<AlarmOverlayAction>& list) { alarmOverlayActionList_ = list; }
    /// @}

    /// When it is watched.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

private:
    std::string deviceID_;
    int cameraID_ = 0;
    bool enable_ = false;
    int alarmInterval_ = 0;
    std::vector<AlarmOutAction> alarmOutActionList_;
    std::vector<AlarmPTZAction> alarmPTZActionList_;
    std::vector<AlarmRecordAction> alarmRecordActionList_;
    std::vector<AlarmOverlayAction> alarmOverlayActionList_;
    ScheduleTimeParam scheduleTimeParam_;
};

/// What the regions have in common whose rules tell sorts of objects apart.
class TargetRegionParam
{
public:
    /// Whether the sort of the objects is looked at.
    bool getTargetTypeConstrain() const { return targetTypeConstrain_; }
    void setTargetTypeConstrain(bool targetTypeConstrain) { targetTypeConstrain_ = targetTypeConstrain; }

    /// The sort of the objects, as the analysis service numbers it.
    int getTargetType() const { return targetType_; }
    void setTargetType(int targetType) { targetType_ = targetType; }

    /// Whether the size of the objects is looked at.
    bool getTargetSizeConstrain() const { return targetSizeConstrain_; }
    void setTargetSizeConstrain(bool targetSizeConstrain) { targetSizeConstrain_ = targetSizeConstrain; }

    /// The size of the smallest object, in the unit of the analysis service.
    int getMinTargetSize() const { return minTargetSize_; }
    void setMinTargetSize(int minTargetSize) { minTargetSize_ = minTargetSize; }

    /// The size of the largest object, in the same unit.
    int getMaxTargetSize() const { return maxTargetSize_; }
    void setMaxTargetSize(int maxTargetSize) { maxTargetSize_ = maxTargetSize; }

private:
    bool targetTypeConstrain_ = false;
    int targetType_ = 0;
    bool targetSizeConstrain_ = false;
    int minTargetSize_ = 0;
    int maxTargetSize_ = 0;
};

/// What the regions have in common whose rules wait before they alarm.
class LingerRegionParam
{
public:
    /// The size of the smallest object, in the unit of the analysis service.
    int getMinTargetSize() const { return minTargetSize_; }
    void setMinTargetSize(int minTargetSize) { minTargetSize_ = minTargetSize; }

    /// The size of the largest object, in the same unit.
    int getMaxTargetSize() const { return maxTargetSize_; }
    void setMaxTargetSize(int maxTargetSize) { maxTargetSize_ = maxTargetSize; }

    /// The time from which on it alarms, in the unit of the analysis service.
    int getMinTime() const { return minTime_; }
    void setMinTime(int minTime) { minTime_ = minTime; }

    /// The region.
    /// @{
    const PolygonArea& getRegion() const { return region_; }
    PolygonArea& getRegion() { return region_; }
    void setRegion(const PolygonArea& region) { region_ = region; }
    /// @}

private:
    int minTargetSize_ = 0;
    int maxTargetSize_ = 0;
    int minTime_ = 0;
    PolygonArea region_;
};

/// A line that objects must not cross.
class TripWireRegionParam : public TargetRegionParam
{
public:
    /// Whether both directions alarm.
    bool getIsBidirection() const { return isBidirection_; }
    void setIsBidirection(bool isBidirection) { isBidirection_ = isBidirection; }

    /// The direction across the line that alarms, as the analysis service counts it.
    int getTriggerDirection() const { return triggerDirection_; }
    void setTriggerDirection(int triggerDirection) { triggerDirection_ = triggerDirection; }

    /// The line.
    const LineCross& getLineCross() const { return lineCross_; }
    void setLineCross(const LineCross& lineCross) { lineCross_ = lineCross; }

private:
    bool isBidirection_ = false;
    int triggerDirection_ = 0;
    LineCross lineCross_;
};

/// Objects that cross a line.
class TripWireParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<TripWireRegionParam>& getTripWireRegionParamList() const { return tripWireRegionParamList_; }
    std::vector<TripWireRegionParam>& getTripWireRegionParamList() { return tripWireRegionParamList_; }
    void setTripWireRegionParamList(const std::vector<TripWireRegionParam>& list) { tripWireRegionParamList_ = list; }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<TripWireRegionParam> tripWireRegionParamList_;
};

/// Two lines that objects must not cross one after the other.
class MultiTripWireRegionParam : public TargetRegionParam
{
public:
    /// The time between the two, in the unit of the analysis service.
    int getTimeInterval() const { return timeInterval_; }
    void setTimeInterval(int timeInterval) { timeInterval_ = timeInterval; }

    /// The direction across the first line that alarms, as the analysis service counts it.
    int getTriggerDirection1() const { return triggerDirection1_; }
    void setTriggerDirection1(int triggerDirection1) { triggerDirection1_ = triggerDirection1; }

    /// The direction across the second line that alarms, as the analysis service counts it.
    int getTriggerDirection2() const { return triggerDirection2_; }
    void setTriggerDirection2(int triggerDirection2) { triggerDirection2_ = triggerDirection2; }

    /// The first line.
    const LineCross& getTripWireLine1() const { return tripWireLine1_; }
    void setTripWireLine1(const LineCross& tripWireLine1) { tripWireLine1_ = tripWireLine1; }

    /// The second line.
    const LineCross& getTripWireLine2() const { return tripWireLine2_; }
    void setTripWireLine2(const LineCross& tripWireLine2) { tripWireLine2_ = tripWireLine2; }

private:
    int timeInterval_ = 0;
    int triggerDirection1_ = 0;
    int triggerDirection2_ = 0;
    LineCross tripWireLine1_;
    LineCross tripWireLine2_;
};

/// Objects that cross two lines.
class MultiTripWireParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<MultiTripWireRegionParam>& getMultiTripWireRegionParamList() const
    {
        return multiTripWireRegionParamList_;
    }
    std::vector<MultiTripWireRegionParam>& getMultiTripWireRegionParamList() { return multiTripWireRegionParamList_; }
    void setMultiTripWireRegionParamList(const std::vector<MultiTripWireRegionParam>& list)
    {
        multiTripWireRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<MultiTripWireRegionParam> multiTripWireRegionParamList_;
};

/// A region that objects must not enter.
class PerimeterRegionParam : public TargetRegionParam
{
public:
    /// How readily it alarms, as the analysis service counts it.
    int getSensitivity() const { return sensitivity_; }
    void setSensitivity(int sensitivity) { sensitivity_ = sensitivity; }

    /// The region.
    /// @{
    const PolygonArea& getRegion() const { return region_; }
    PolygonArea& getRegion() { return region_; }
    void setRegion(const PolygonArea& region) { region_ = region; }
    /// @}

    /// The same region as a map of cells.
    const DetectionAreaV2& getDetectionAreaV2() const { return detectionAreaV2_; }
    void setDetectionAreaV2(const DetectionAreaV2& detectionAreaV2) { detectionAreaV2_ = detectionAreaV2; }

private:
    int sensitivity_ = 0;
    PolygonArea region_;
    DetectionAreaV2 detectionAreaV2_;
};

/// Objects that enter a region.
class PerimeterParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<PerimeterRegionParam>& getPerimeterRegionParamList() const { return perimeterRegionParamList_; }
    std::vector<PerimeterRegionParam>& getPerimeterRegionParamList() { return perimeterRegionParamList_; }
    void setPerimeterRegionParamList(const std::vector<PerimeterRegionParam>& list)
    {
        perimeterRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<PerimeterRegionParam> perimeterRegionParamList_;
};

/// A region that objects must not loiter in.
class LoiterRegionParam : public TargetRegionParam
{
public:
    /// The time from which on it alarms, in the unit of the analysis service.
    int getMinTime() const { return minTime_; }
    void setMinTime(int minTime) { minTime_ = minTime; }

    /// Whether the way of the objects is followed.
    bool getAnalysisPath() const { return analysisPath_; }
    void setAnalysisPath(bool analysisPath) { analysisPath_ = analysisPath; }

    /// The region.
    /// @{
    const PolygonArea& getRegion() const { return region_; }
    PolygonArea& getRegion() { return region_; }
    void setRegion(const PolygonArea& region) { region_ = region; }
    /// @}

private:
    int minTime_ = 0;
    bool analysisPath_ = false;
    PolygonArea region_;
};

/// Objects that loiter.
class LoiterParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<LoiterRegionParam>& getLoiterRegionParamList() const { return loiterRegionParamList_; }
    std::vector<LoiterRegionParam>& getLoiterRegionParamList() { return loiterRegionParamList_; }
    void setLoiterRegionParamList(const std::vector<LoiterRegionParam>& list) { loiterRegionParamList_ = list; }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<LoiterRegionParam> loiterRegionParamList_;
};

/// A region that several objects must not loiter in.
class MultiLoiterRegionParam : public LingerRegionParam
{
public:
    /// Whether the size of the objects is looked at.
    bool getTargetSizeConstrain() const { return targetSizeConstrain_; }
    void setTargetSizeConstrain(bool targetSizeConstrain) { targetSizeConstrain_ = targetSizeConstrain; }

    /// Whether the way of the objects is followed.
    bool getAnalysisPath() const { return analysisPath_; }
    void setAnalysisPath(bool analysisPath) { analysisPath_ = analysisPath; }

    /// Whether it is forbidden to be there at all.
    bool getForbiddenType() const { return forbiddenType_; }
    void setForbiddenType(bool forbiddenType) { forbiddenType_ = forbiddenType; }

    /// The least number of objects.
    int getMinimum() const { return minimum_; }
    void setMinimum(int minimum) { minimum_ = minimum; }

    /// The largest number of objects.
    int getMaximum() const { return maximum_; }
    void setMaximum(int maximum) { maximum_ = maximum; }

private:
    bool targetSizeConstrain_ = false;
    bool analysisPath_ = false;
    bool forbiddenType_ = false;
    int minimum_ = 0;
    int maximum_ = 0;
};

/// Several objects that loiter.
class MultiLoiterParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<MultiLoiterRegionParam>& getMultiLoiterRegionParamList() const
    {
        return multiLoiterRegionParamList_;
    }
    std::vector<MultiLoiterRegionParam>& getMultiLoiterRegionParamList() { return multiLoiterRegionParamList_; }
    void setMultiLoiterRegionParamList(const std::vector<MultiLoiterRegionParam>& list)
    {
        multiLoiterRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<MultiLoiterRegionParam> multiLoiterRegionParamList_;
};

/// A region with one permitted direction.
class ConverseRegionParam : public TargetRegionParam
{
public:
    /// The angle from which on a direction is wrong, in degrees.
    float getConverseAngle() const { return converseAngle_; }
    void setConverseAngle(float converseAngle) { converseAngle_ = converseAngle; }

    /// The region.
    /// @{
    const PolygonArea& getRegion() const { return region_; }
    PolygonArea& getRegion() { return region_; }
    void setRegion(const PolygonArea& region) { region_ = region; }
    /// @}

private:
    float converseAngle_ = 0.0F;
    PolygonArea region_;
};

/// Objects that move against the permitted direction.
class ConverseParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<ConverseRegionParam>& getConverseRegionParamList() const { return converseRegionParamList_; }
    std::vector<ConverseRegionParam>& getConverseRegionParamList() { return converseRegionParamList_; }
    void setConverseRegionParamList(const std::vector<ConverseRegionParam>& list) { converseRegionParamList_ = list; }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<ConverseRegionParam> converseRegionParamList_;
};

/// A region with a range of permitted speeds.
class AbnormalSpeedRegionParam : public TargetRegionParam
{
public:
    /// Which speeds alarm, as the analysis service numbers it.
    int getRateLimitingType() const { return rateLimitingType_; }
    void setRateLimitingType(int rateLimitingType) { rateLimitingType_ = rateLimitingType; }

    /// The lowest speed, in the unit of the analysis service.
    int getMinRate() const { return minRate_; }
    void setMinRate(int minRate) { minRate_ = minRate; }

    /// The highest speed, in the same unit.
    int getMaxRate() const { return maxRate_; }
    void setMaxRate(int maxRate) { maxRate_ = maxRate; }

    /// The region.
    /// @{
    const PolygonArea& getRegion() const { return region_; }
    PolygonArea& getRegion() { return region_; }
    void setRegion(const PolygonArea& region) { region_ = region; }
    /// @}

private:
    int rateLimitingType_ = 0;
    int minRate_ = 0;
    int maxRate_ = 0;
    PolygonArea region_;
};

/// Objects that are too fast or too slow.
class AbnormalSpeedParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<AbnormalSpeedRegionParam>& getAbnormalSpeedRegionParamList() const
    {
        return abnormalSpeedRegionParamList_;
    }
    std::vector<AbnormalSpeedRegionParam>& getAbnormalSpeedRegionParamList() { return abnormalSpeedRegionParamList_; }
    void setAbnormalSpeedRegionParamList(const std::vector<AbnormalSpeedRegionParam>& list)
    {
        abnormalSpeedRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<AbnormalSpeedRegionParam> abnormalSpeedRegionParamList_;
};

/// A region that vehicles must not park in.
class NoParkingRegionParam : public LingerRegionParam
{
};

/// Vehicles that park.
class NoParkingParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<NoParkingRegionParam>& getNoParkingRegionParamList() const { return noParkingRegionParamList_; }
    std::vector<NoParkingRegionParam>& getNoParkingRegionParamList() { return noParkingRegionParamList_; }
    void setNoParkingRegionParamList(const std::vector<NoParkingRegionParam>& list)
    {
        noParkingRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<NoParkingRegionParam> noParkingRegionParamList_;
};

/// A region that no object may be left in.
class ObjectLeftRegionParam : public LingerRegionParam
{
};

/// Objects that are left behind.
class ObjectLeftParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<ObjectLeftRegionParam>& getObjectLeftRegionParamList() const
    {
        return objectLeftRegionParamList_;
    }
    std::vector<ObjectLeftRegionParam>& getObjectLeftRegionParamList() { return objectLeftRegionParamList_; }
    void setObjectLeftRegionParamList(const std::vector<ObjectLeftRegionParam>& list)
    {
        objectLeftRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<ObjectLeftRegionParam> objectLeftRegionParamList_;
};

/// A region that no object may be taken from.
class ObjectMovedRegionParam : public LingerRegionParam
{
};

/// Objects that are taken away.
class ObjectMovedParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// What is watched.
    /// @{
    const std::vector<ObjectMovedRegionParam>& getObjectMovedRegionParamList() const
    {
        return objectMovedRegionParamList_;
    }
    std::vector<ObjectMovedRegionParam>& getObjectMovedRegionParamList() { return objectMovedRegionParamList_; }
    void setObjectMovedRegionParamList(const std::vector<ObjectMovedRegionParam>& list)
    {
        objectMovedRegionParamList_ = list;
    }
    /// @}

private:
    bool isGetDetail_ = false;
    std::vector<ObjectMovedRegionParam> objectMovedRegionParamList_;
};

/// A camera that is turned away.
class CameraMovedParam : public IntelligeBaseParam
{
};

/// Pictures of bad quality.
class SignalBadParam : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

private:
    bool isGetDetail_ = false;
};

/// A camera that is covered.
class CameraTamperParam : public IntelligeBaseParam
{
public:
    /// The time from which on it alarms, in the unit of the analysis service.
    int getMinTime() const { return minTime_; }
    void setMinTime(int minTime) { minTime_ = minTime; }

private:
    int minTime_ = 0;
};

/// Motion in some cells of the picture.
class MotionDetectionParamV3 : public IntelligeBaseParam
{
public:
    /// Whether its alarms come with details.
    bool getIsGetDetail() const { return isGetDetail_; }
    void setIsGetDetail(bool isGetDetail) { isGetDetail_ = isGetDetail; }

    /// The cells.
    const DetectionAreaV2& getDetectionAreaV2() const { return detectionAreaV2_; }
    void setDetectionAreaV2(const DetectionAreaV2& detectionAreaV2) { detectionAreaV2_ = detectionAreaV2; }

private:
    bool isGetDetail_ = false;
    DetectionAreaV2 detectionAreaV2_;
};

/// A line on the picture whose real length is known.
class PixelToRealSize
{
public:
    /// The length, in the unit of the analysis service.
    int getRealSize() const { return realSize_; }
    void setRealSize(int realSize) { realSize_ = realSize; }

    /// How the line lies, as the analysis service numbers it.
    int getSegmentLayType() const { return segmentLayType_; }
    void setSegmentLayType(int segmentLayType) { segmentLayType_ = segmentLayType; }

    /// The line.
    const LineCross& getSegment() const { return segment_; }
    void setSegment(const LineCross& segment) { segment_ = segment; }

private:
    int realSize_ = 0;
    int segmentLayType_ = 0;
    LineCross segment_;
};

/// The scene that an analysis looks at.
class AdvancedParam
{
public:
    /// The sort of the scene, as the analysis service numbers it.
    int getScene() const { return scene_; }
    void setScene(int scene) { scene_ = scene; }

    /// How high the camera hangs.
    int getHight() const { return hight_; }
    void setHight(int hight) { hight_ = hight; }

    /// How far it looks down, in degrees.
    float getAngle() const { return angle_; }
    void setAngle(float angle) { angle_ = angle; }

    /// The width of its view, in degrees.
    float getFOV() const { return fov_; }
    void setFOV(float fov) { fov_ = fov; }

    /// How far it shakes.
    int getCameraShake() const { return cameraShake_; }
    void setCameraShake(int cameraShake) { cameraShake_ = cameraShake; }

    /// How noisy the picture is.
    int getHighNoise() const { return highNoise_; }
    void setHighNoise(int highNoise) { highNoise_ = highNoise; }

    /// How flat the picture is.
    int getLowContrast() const { return lowContrast_; }
    void setLowContrast(int lowContrast) { lowContrast_ = lowContrast; }

    /// How much moves to and fro.
    int getPeriodMotion() const { return periodMotion_; }
    void setPeriodMotion(int periodMotion) { periodMotion_ = periodMotion; }

    /// The period of that.
    int getPeriodMotionTime() const { return periodMotionTime_; }
    void setPeriodMotionTime(int periodMotionTime) { periodMotionTime_ = periodMotionTime; }

    /// Lines of known length.
    /// @{
    const std::vector<PixelToRealSize>& getPixelToRealSizeList() const { return pixelToRealSizeList_; }
    std::vector<PixelToRealSize>& getPixelToRealSizeList() { return pixelToRealSizeList_; }
    void setPixelToRealSizeList(const std::vector<PixelToRealSize>& list) { pixelToRealSizeList_ = list; }
    /// @}

private:
    int scene_ = 0;
    int hight_ = 0;
    float angle_ = 0.0F;
    float fov_ = 0.0F;
    int cameraShake_ = 0;
    int highNoise_ = 0;
    int lowContrast_ = 0;
    int periodMotion_ = 0;
    int periodMotionTime_ = 0;
    std::vector<PixelToRealSize> pixelToRealSizeList_;
};
