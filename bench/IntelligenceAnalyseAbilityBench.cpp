#include "analysis/IntelligenceAnalyseAbilityXml.h"
#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"

namespace
{

// The record.

void makeRegion(RegionAbility& ability, int libId)
{
    ability.setEnable(true);
    ability.setLibId(libId);
    ability.getRegion() = {true, 20, 8};
    ability.setDetailGetEnable(true);
    ability.getMinTargetSize() = {true, 1, 8191, "pixel"};
    ability.getMaxTargetSize() = {true, 2, 8192, "pixel"};
}

void makeTarget(TargetAbility& ability, int libId)
{
    makeRegion(ability, libId);
    ability.getTargetTypeConstrain() = {true, 0, 1, "flag"};
    ability.getTargetType() = {true, 1, 7, "type"};
    ability.getTargetSizeConstrain() = {true, 0, 2, "flag"};
}

void makeLinger(LingerAbility& ability, int libId)
{
    makeRegion(ability, libId);
    ability.getMinTime() = {true, 1, 3600, "second"};
}

LibCommonAbility makeLib(int libId)
{
    LibCommonAbility ability;
    ability.setLibId(libId);
    ability.setEnable(libId % 2 == 1);
    ability.setResolutionWidth(704);
    ability.setResolutionHeight(576);
    ability.setTotalAnalyseRegionNum(16 + libId);
    ability.setMaxEnableFunsNum(8);
    return ability;
}

MotionDetectionAbilityV2 makeMotionDetection()
{
    MotionDetectionAbilityV2 ability;
    ability.setEnable(true);
    ability.setLibId(1);
    ability.getSensitivity() = {true, 1, 100};
    ability.setCellEnable(true);
    ability.setCellWidthCellNumber(22);
    ability.setCellHeightCellNumber(18);
    return ability;
}

PerimeterAbility makePerimeter()
{
    PerimeterAbility ability;
    makeTarget(ability, 1);
    ability.getSensitivity() = {true, 1, 10};
    return ability;
}

TripWireAbility makeTripWire()
{
    TripWireAbility ability;
    makeTarget(ability, 1);
    ability.setTriggerDirectionEnable(true);
    ability.setBidirectionEnable(true);
    return ability;
}

MultiTripWireAbility makeMultiTripWire()
{
    MultiTripWireAbility ability;
    makeTarget(ability, 1);
    ability.setTriggerDirectionEnable(true);
    ability.getTimeInterval() = {true, 1, 600, "second"};
    return ability;
}

LoiterAbility makeLoiter()
{
    LoiterAbility ability;
    makeTarget(ability, 2);
    ability.getAnalysisPath() = {true, 0, 3, "path"};
    ability.getMinTime() = {true, 5, 3600, "second"};
    return ability;
}

MultiLoiterAbility makeMultiLoiter()
{
    MultiLoiterAbility ability;
    makeLinger(ability, 2);
    ability.getAnalysisPath() = {true, 0, 3, "path"};
    ability.getTargetSizeConstrain() = {true, 0, 2, "flag"};
    ability.setForbiddenTypeEnable(true);
    ability.getMinimum() = {true, 2, 10, "person"};
    ability.getMaximum() = {true, 3, 50, "person"};
    return ability;
}

AbnormalSpeedAbility makeAbnormalSpeed()
{
    AbnormalSpeedAbility ability;
    makeTarget(ability, 4);
    ability.getRateLimitingType() = {true, 0, 2, "type"};
    ability.getMinRate() = {true, 1, 40, "km/h"};
    ability.getMaxRate() = {true, 30, 200, "km/h"};
    return ability;
}

ConverseAbility makeConverse()
{
    ConverseAbility ability;
    makeTarget(ability, 4);
    ability.getConverseAngle() = {true, 0.5F, 179.9F, "degree"};
    return ability;
}

SignalBadAbility makeSignalBad()
{
    SignalBadAbility ability;
    ability.setEnable(true);
    ability.setLibId(6);
    ability.setDetailGet(true);
    return ability;
}

CameraTamperAbility makeCameraTamper()
{
    CameraTamperAbility ability;
    ability.setEnable(true);
    ability.setLibId(6);
    ability.getMinTime() = {true, 1, 60, "second"};
    return ability;
}

CameraMoveAbility makeCameraMove()
{
    CameraMoveAbility ability;
    ability.setEnable(true);
    ability.setLibId(7);
    return ability;
}

AdvancedAbility makeAdvanced()
{
    AdvancedAbility ability;
    ability.setEnable(true);
    ability.setLibId(8);
    ability.getScene() = {true, 0, 4, "scene"};
    ability.getHight() = {true, "metre"};
    ability.getAngle() = {true, "degree"};
    ability.getFOV() = {true, "degree"};
    ability.getCameraShake() = {true, 1, 10};
    ability.getHighNoise() = {true, 1, 20};
    ability.getLowContrast() = {true, 1, 30};
    ability.getPeriodMotion() = {true, 1, 40};
    ability.getPeriodMotionTime() = {true, 1, 120, "second"};
    ability.setPixelToRealSizeEnable(true);
    ability.getRealSize() = {true, "metre"};
    ability.setSegmentLayTypeEnable(true);
    ability.setSegmentEnable(true);
    return ability;
}

IntelligenceAnalyseAbility makeAbility()
{
    IntelligenceAnalyseAbility ability;
    ability.setVersion(3);
    for (int libId = 1; libId <= 8; ++libId)
        ability.getLibCommonAbilityList().push_back(makeLib(libId));

    ObjLeftAbility objLeft;
    makeLinger(objLeft, 3);
    ObjMoveAbility objMove;
    makeLinger(objMove, 3);
    NoParkingAbility noParking;
    makeLinger(noParking, 5);

    ability.setMotionDetectionAbilityV2(makeMotionDetection());
    ability.setPerimeterAbility(makePerimeter());
    ability.setTripWireAbility(makeTripWire());
    ability.setMultiTripWireAbility(makeMultiTripWire());
    ability.setLoiterAbility(makeLoiter());
    ability.setMultiLoiterAbility(makeMultiLoiter());
    ability.setObjLeftAbility(objLeft);
    ability.setObjMoveAbility(objMove);
    ability.setAbnormalSpeedAbility(makeAbnormalSpeed());
    ability.setConverseAbility(makeConverse());
    ability.setNoParkingAbility(noParking);
    ability.setSignalBadAbility(makeSignalBad());
    ability.setCameraTamperAbility(makeCameraTamper());
    ability.setCameraMoveAbility(makeCameraMove());
    ability.setAdvancedAbility(makeAdvanced());
    return ability;
}

// Writing.

TiXmlElement& writeEnabled(TiXmlElement& parent, const char* name, bool enable)
{
    TiXmlElement& element = bare::appendElement(parent, name);
    bare::setFlag(element, "enable", enable);
    return element;
}

TiXmlElement& writeFunction(TiXmlElement& functions, const char* name, const FunctionAbility& ability)
{
    TiXmlElement& element = writeEnabled(functions, name, ability.getEnable());
    element.SetAttribute("LibId", ability.getLibId());
    return element;
}

void writeParameter(TiXmlElement& parent, const char* name, bool enable)
{
    writeEnabled(parent, name, enable).SetAttribute("unit", "");
}

void writeParameter(TiXmlElement& parent, const char* name, const AbilityUnit& ability)
{
    writeEnabled(parent, name, ability.enable).SetAttribute("unit", ability.unit.c_str());
}

void writeParameter(TiXmlElement& parent, const char* name, const AbilityLimits& ability)
{
    TiXmlElement& element = writeEnabled(parent, name, ability.enable);
    element.SetAttribute("min", ability.min);
    element.SetAttribute("max", ability.max);
    element.SetAttribute("unit", "");
}

void writeParameter(TiXmlElement& parent, const char* name, const AbilityRange& ability)
{
    TiXmlElement& element = writeEnabled(parent, name, ability.enable);
    element.SetAttribute("min", ability.min);
    element.SetAttribute("max", ability.max);
    element.SetAttribute("unit", ability.unit.c_str());
}

void writeParameter(TiXmlElement& parent, const char* name, const AbilityFloatRange& ability)
{
    TiXmlElement& element = writeEnabled(parent, name, ability.enable);
    bare::setNumber(element, "min", ability.min);
    bare::setNumber(element, "max", ability.max);
    element.SetAttribute("unit", ability.unit.c_str());
}

void writeRegion(TiXmlElement& function, const RegionAbility& ability)
{
    TiXmlElement& element = writeEnabled(function, "Region", ability.getRegion().enable);
    element.SetAttribute("edgeNum", ability.getRegion().edgeNum);
    element.SetAttribute("maxRegionNum", ability.getRegion().maxRegionNum);
    writeParameter(function, "DetailGet", ability.getDetailGetEnable());
}

void writeTargetSize(TiXmlElement& function, const RegionAbility& ability)
{
    writeParameter(function, "MinTargetSize", ability.getMinTargetSize());
    writeParameter(function, "MaxTargetSize", ability.getMaxTargetSize());
}

void writeTarget(TiXmlElement& function, const TargetAbility& ability)
{
    writeParameter(function, "TargetTypeConstrain", ability.getTargetTypeConstrain());
    writeParameter(function, "TargetType", ability.getTargetType());
    writeParameter(function, "TargetSizeConstrain", ability.getTargetSizeConstrain());
    writeTargetSize(function, ability);
}

void writeLibs(TiXmlElement& root, const std::vector<LibCommonAbility>& abilities)
{
    TiXmlElement& list = bare::appendElement(root, "LIBCommon");
    for (const LibCommonAbility& ability : abilities)
    {
        TiXmlElement& element = bare::appendElement(list, "LIB");
        element.SetAttribute("ID", ability.getLibId());
        bare::setFlag(element, "enable", ability.getEnable());

        TiXmlElement& resolution = bare::appendElement(element, "Resolution");
        resolution.SetAttribute("videoWidth", ability.getResolutionWidth());
        resolution.SetAttribute("videoHeight", ability.getResolutionHeight());

        TiXmlElement& common = bare::appendElement(element, "Common");
        common.SetAttribute("totalAnalyseRegionNum", ability.getTotalAnalyseRegionNum());
        common.SetAttribute("MaxEnableFunsNum", ability.getMaxEnableFunsNum());
    }
}

void writeMotionDetection(TiXmlElement& functions, const MotionDetectionAbilityV2& ability)
{
    TiXmlElement& function = writeFunction(functions, "MotionDetection", ability);
    writeParameter(function, "Sensitivity", ability.getSensitivity());

    TiXmlElement& cell = writeEnabled(function, "Cell", ability.getCellEnable());
    cell.SetAttribute("WidthCellNumber", ability.getCellWidthCellNumber());
    cell.SetAttribute("HeightCellNumber", ability.getCellHeightCellNumber());
}

void writePerimeter(TiXmlElement& functions, const PerimeterAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "Perimeter", ability);
    writeRegion(function, ability);
    writeTarget(function, ability);
    writeParameter(function, "Sensitivity", ability.getSensitivity());
}

void writeTripWire(TiXmlElement& functions, const TripWireAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "TripWire", ability);
    writeRegion(function, ability);
    writeParameter(function, "TriggerDirection", ability.getTriggerDirectionEnable());
    writeParameter(function, "Bidirection", ability.getBidirectionEnable());
    writeTarget(function, ability);
}

void writeMultiTripWire(TiXmlElement& functions, const MultiTripWireAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "MultiTripWire", ability);
    writeRegion(function, ability);
    writeParameter(function, "TriggerDirection", ability.getTriggerDirectionEnable());
    writeParameter(function, "TimeInterval", ability.getTimeInterval());
    writeTarget(function, ability);
}

void writeLoiter(TiXmlElement& functions, const LoiterAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "Loiter", ability);
    writeRegion(function, ability);
    writeParameter(function, "AnalysisPath", ability.getAnalysisPath());
    writeTarget(function, ability);
    writeParameter(function, "MinTime", ability.getMinTime());
}

void writeMultiLoiter(TiXmlElement& functions, const MultiLoiterAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "MultiLoiter", ability);
    writeRegion(function, ability);
    writeParameter(function, "AnalysisPath", ability.getAnalysisPath());
    writeParameter(function, "TargetSizeConstrain", ability.getTargetSizeConstrain());
    writeTargetSize(function, ability);
    writeParameter(function, "MinTime", ability.getMinTime());
    writeParameter(function, "ForbiddenType", ability.getForbiddenTypeEnable());
    writeParameter(function, "Minimum", ability.getMinimum());
    writeParameter(function, "Maximum", ability.getMaximum());
}

void writeLinger(TiXmlElement& functions, const char* name, const LingerAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, name, ability);
    writeRegion(function, ability);
    writeTargetSize(function, ability);
    writeParameter(function, "MinTime", ability.getMinTime());
}

void writeAbnormalSpeed(TiXmlElement& functions, const AbnormalSpeedAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "AbnormalSpeed", ability);
    writeRegion(function, ability);
    writeTarget(function, ability);
    writeParameter(function, "RateLimitingType", ability.getRateLimitingType());
    writeParameter(function, "MinRate", ability.getMinRate());
    writeParameter(function, "MaxRate", ability.getMaxRate());
}

void writeConverse(TiXmlElement& functions, const ConverseAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "Converse", ability);
    writeRegion(function, ability);
    writeTarget(function, ability);
    writeParameter(function, "ConverseAngle", ability.getConverseAngle());
}

void writeAdvanced(TiXmlElement& functions, const AdvancedAbility& ability)
{
    TiXmlElement& function = writeFunction(functions, "Advanced", ability);
    writeParameter(function, "Scene", ability.getScene());
    writeParameter(function, "Hight", ability.getHight());
    writeParameter(function, "Angle", ability.getAngle());
    writeParameter(function, "FOV", ability.getFOV());
    writeParameter(function, "CameraShake", ability.getCameraShake());
    writeParameter(function, "HighNoise", ability.getHighNoise());
    writeParameter(function, "LowContrast", ability.getLowContrast());
    writeParameter(function, "PeriodMotion", ability.getPeriodMotion());
    writeParameter(function, "PeriodMotionTime", ability.getPeriodMotionTime());

    TiXmlElement& pixel = writeEnabled(function, "PixelToRealSize", ability.getPixelToRealSizeEnable());
    writeParameter(pixel, "RealSize", ability.getRealSize());
    writeParameter(pixel, "SegmentLayType", ability.getSegmentLayTypeEnable());
    writeParameter(pixel, "Segment", ability.getSegmentEnable());
}

std::string writeFloor(const IntelligenceAnalyseAbility& ability)
{
    TiXmlDocument document;
    TiXmlElement& root = bare::appendElement(document, "IntelligenceAnalyseAbility");
    bare::appendElement(root, "Version").SetAttribute("value", ability.getVersion());
    writeLibs(root, ability.getLibCommonAbilityList());

    TiXmlElement& functions = bare::appendElement(root, "Functions");
    writeMotionDetection(functions, ability.getMotionDetectionAbilityV2());
    writePerimeter(functions, ability.getPerimeterAbility());
    writeTripWire(functions, ability.getTripWireAbility());
    writeMultiTripWire(functions, ability.getMultiTripWireAbility());
    writeLoiter(functions, ability.getLoiterAbility());
    writeMultiLoiter(functions, ability.getMultiLoiterAbility());
    writeLinger(functions, "ObjLeft", ability.getObjLeftAbility());
    writeLinger(functions, "ObjMove", ability.getObjMoveAbility());
    writeAbnormalSpeed(functions, ability.getAbnormalSpeedAbility());
    writeConverse(functions, ability.getConverseAbility());
    writeLinger(functions, "NoParking", ability.getNoParkingAbility());
    TiXmlElement& signalBad = writeFunction(functions, "SignalBad", ability.getSignalBadAbility());
    writeParameter(signalBad, "DetailGet", ability.getSignalBadAbility().getDetailGet());
    TiXmlElement& cameraTamper = writeFunction(functions, "CameraTamper", ability.getCameraTamperAbility());
    writeParameter(cameraTamper, "MinTime", ability.getCameraTamperAbility().getMinTime());
    writeFunction(functions, "CameraMove", ability.getCameraMoveAbility());
    writeAdvanced(functions, ability.getAdvancedAbility());
    return bare::print(document);
}

// Reading.

/// The element of a function, whose head it reads; null without it.
const TiXmlElement* readFunction(const TiXmlElement& functions, const char* name, FunctionAbility& ability)
{
    const TiXmlElement* element = functions.FirstChildElement(name);
    ability.setEnable(element != nullptr && bare::flagOf(*element, "enable"));
    ability.setLibId(element != nullptr ? bare::intOf(*element, "LibId", -1) : -1);
    return element;
}

bool readFlag(const TiXmlElement& parent, const char* name)
{
    const TiXmlElement* element = parent.FirstChildElement(name);
    return element != nullptr && bare::flagOf(*element, "enable");
}

void readParameter(const TiXmlElement& parent, const char* name, AbilityUnit& ability)
{
    const TiXmlElement* element = parent.FirstChildElement(name);
    if (element == nullptr) return;

    ability.enable = bare::flagOf(*element, "enable");
    ability.unit = bare::textOf(*element, "unit");
}

void readParameter(const TiXmlElement& parent, const char* name, AbilityLimits& ability)
{
    const TiXmlElement* element = parent.FirstChildElement(name);
    if (element == nullptr) return;

    ability.enable = bare::flagOf(*element, "enable");
    ability.min = bare::intOf(*element, "min", 0);
    ability.max = bare::intOf(*element, "max", 0);
}

void readParameter(const TiXmlElement& parent, const char* name, AbilityRange& ability)
{
    const TiXmlElement* element = parent.FirstChildElement(name);
    if (element == nullptr) return;

    ability.enable = bare::flagOf(*element, "enable");
    ability.min = bare::intOf(*element, "min", 0);
    ability.max = bare::intOf(*element, "max", 0);
    ability.unit = bare::textOf(*element, "unit");
}

void readParameter(const TiXmlElement& parent, const char* name, AbilityFloatRange& ability)
{
    const TiXmlElement* element = parent.FirstChildElement(name);
    if (element == nullptr) return;

    ability.enable = bare::flagOf(*element, "enable");
    ability.min = bare::floatOf(*element, "min", 0.0F);
    ability.max = bare::floatOf(*element, "max", 0.0F);
    ability.unit = bare::textOf(*element, "unit");
}

void readRegion(const TiXmlElement& function, RegionAbility& ability)
{
    const TiXmlElement* element = function.FirstChildElement("Region");
    if (element != nullptr)
    {
        ability.getRegion().enable = bare::flagOf(*element, "enable");
        ability.getRegion().edgeNum = bare::intOf(*element, "edgeNum", 0);
        ability.getRegion().maxRegionNum = bare::intOf(*element, "maxRegionNum", 0);
    }
    ability.setDetailGetEnable(readFlag(function, "DetailGet"));
}

void readTargetSize(const TiXmlElement& function, RegionAbility& ability)
{
    readParameter(function, "MinTargetSize", ability.getMinTargetSize());
    readParameter(function, "MaxTargetSize", ability.getMaxTargetSize());
}

void readTarget(const TiXmlElement& function, TargetAbility& ability)
{
    readParameter(function, "TargetTypeConstrain", ability.getTargetTypeConstrain());
    readParameter(function, "TargetType", ability.getTargetType());
    readParameter(function, "TargetSizeConstrain", ability.getTargetSizeConstrain());
    readTargetSize(function, ability);
}

/// False if a library lacks one of its two children.
bool readLibs(const TiXmlElement& list, std::vector<LibCommonAbility>& abilities)
{
    abilities.clear();
    const TiXmlElement* item = list.FirstChildElement("LIB");
    for (; item != nullptr; item = item->NextSiblingElement("LIB"))
    {
        const TiXmlElement* resolution = item->FirstChildElement("Resolution");
        const TiXmlElement* common = item->FirstChildElement("Common");
        if (resolution == nullptr || common == nullptr) return false;

        LibCommonAbility ability;
        ability.setLibId(bare::intOf(*item, "ID", -1));
        ability.setEnable(bare::flagOf(*item, "enable"));
        ability.setResolutionWidth(bare::intOf(*resolution, "videoWidth", 320));
        ability.setResolutionHeight(bare::intOf(*resolution, "videoHeight", 240));
        ability.setTotalAnalyseRegionNum(bare::intOf(*common, "totalAnalyseRegionNum", 0));
        ability.setMaxEnableFunsNum(bare::intOf(*common, "MaxEnableFunsNum", 0));
        abilities.push_back(ability);
    }
    return true;
}

/// False if the function lacks its cells.
bool readMotionDetection(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    MotionDetectionAbilityV2 ability;
    const TiXmlElement* function = readFunction(functions, "MotionDetection", ability);
    if (function != nullptr)
    {
        readParameter(*function, "Sensitivity", ability.getSensitivity());

        const TiXmlElement* cell = function->FirstChildElement("Cell");
        if (cell == nullptr) return false;

        ability.setCellEnable(bare::flagOf(*cell, "enable"));
        ability.setCellWidthCellNumber(bare::intOf(*cell, "WidthCellNumber", 0));
        ability.setCellHeightCellNumber(bare::intOf(*cell, "HeightCellNumber", 0));
    }
    abilities.setMotionDetectionAbilityV2(ability);
    return true;
}

void readPerimeter(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    PerimeterAbility ability;
    const TiXmlElement* function = readFunction(functions, "Perimeter", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        readTarget(*function, ability);
        readParameter(*function, "Sensitivity", ability.getSensitivity());
    }
    abilities.setPerimeterAbility(ability);
}

void readTripWire(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    TripWireAbility ability;
    const TiXmlElement* function = readFunction(functions, "TripWire", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        ability.setTriggerDirectionEnable(readFlag(*function, "TriggerDirection"));
        ability.setBidirectionEnable(readFlag(*function, "Bidirection"));
        readTarget(*function, ability);
    }
    abilities.setTripWireAbility(ability);
}

void readMultiTripWire(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    MultiTripWireAbility ability;
    const TiXmlElement* function = readFunction(functions, "MultiTripWire", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        ability.setTriggerDirectionEnable(readFlag(*function, "TriggerDirection"));
        readParameter(*function, "TimeInterval", ability.getTimeInterval());
        readTarget(*function, ability);
    }
    abilities.setMultiTripWireAbility(ability);
}

void readLoiter(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    LoiterAbility ability;
    const TiXmlElement* function = readFunction(functions, "Loiter", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        readParameter(*function, "AnalysisPath", ability.getAnalysisPath());
        readTarget(*function, ability);
        readParameter(*function, "MinTime", ability.getMinTime());
    }
    abilities.setLoiterAbility(ability);
}

void readMultiLoiter(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    MultiLoiterAbility ability;
    const TiXmlElement* function = readFunction(functions, "MultiLoiter", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        readParameter(*function, "AnalysisPath", ability.getAnalysisPath());
        readParameter(*function, "TargetSizeConstrain", ability.getTargetSizeConstrain());
        readTargetSize(*function, ability);
        readParameter(*function, "MinTime", ability.getMinTime());
        ability.setForbiddenTypeEnable(readFlag(*function, "ForbiddenType"));
        readParameter(*function, "Minimum", ability.getMinimum());
        readParameter(*function, "Maximum", ability.getMaximum());
    }
    abilities.setMultiLoiterAbility(ability);
}

void readLinger(const TiXmlElement& functions, const char* name, LingerAbility& ability)
{
    const TiXmlElement* function = readFunction(functions, name, ability);
    if (function == nullptr) return;

    readRegion(*function, ability);
    readTargetSize(*function, ability);
    readParameter(*function, "MinTime", ability.getMinTime());
}

void readLingers(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    ObjLeftAbility objLeft;
    readLinger(functions, "ObjLeft", objLeft);
    abilities.setObjLeftAbility(objLeft);

    ObjMoveAbility objMove;
    readLinger(functions, "ObjMove", objMove);
    abilities.setObjMoveAbility(objMove);

    NoParkingAbility noParking;
    readLinger(functions, "NoParking", noParking);
    abilities.setNoParkingAbility(noParking);
}

void readAbnormalSpeed(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    AbnormalSpeedAbility ability;
    const TiXmlElement* function = readFunction(functions, "AbnormalSpeed", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        readTarget(*function, ability);
        readParameter(*function, "RateLimitingType", ability.getRateLimitingType());
        readParameter(*function, "MinRate", ability.getMinRate());
        readParameter(*function, "MaxRate", ability.getMaxRate());
    }
    abilities.setAbnormalSpeedAbility(ability);
}

void readConverse(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    ConverseAbility ability;
    const TiXmlElement* function = readFunction(functions, "Converse", ability);
    if (function != nullptr)
    {
        readRegion(*function, ability);
        readTarget(*function, ability);
        readParameter(*function, "ConverseAngle", ability.getConverseAngle());
    }
    abilities.setConverseAbility(ability);
}

void readCamera(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    SignalBadAbility signalBad;
    const TiXmlElement* function = readFunction(functions, "SignalBad", signalBad);
    if (function != nullptr) signalBad.setDetailGet(readFlag(*function, "DetailGet"));
    abilities.setSignalBadAbility(signalBad);

    CameraTamperAbility cameraTamper;
    function = readFunction(functions, "CameraTamper", cameraTamper);
    if (function != nullptr) readParameter(*function, "MinTime", cameraTamper.getMinTime());
    abilities.setCameraTamperAbility(cameraTamper);

    CameraMoveAbility cameraMove;
    readFunction(functions, "CameraMove", cameraMove);
    abilities.setCameraMoveAbility(cameraMove);
}

void readAdvanced(const TiXmlElement& functions, IntelligenceAnalyseAbility& abilities)
{
    AdvancedAbility ability;
    const TiXmlElement* function = readFunction(functions, "Advanced", ability);
    if (function != nullptr)
    {
        readParameter(*function, "Scene", ability.getScene());
        readParameter(*function, "Hight", ability.getHight());
        readParameter(*function, "Angle", ability.getAngle());
        readParameter(*function, "FOV", ability.getFOV());
        readParameter(*function, "CameraShake", ability.getCameraShake());
        readParameter(*function, "HighNoise", ability.getHighNoise());
        readParameter(*function, "LowContrast", ability.getLowContrast());
        readParameter(*function, "PeriodMotion", ability.getPeriodMotion());
        readParameter(*function, "PeriodMotionTime", ability.getPeriodMotionTime());

        const TiXmlElement* pixel = function->FirstChildElement("PixelToRealSize");
        if (pixel != nullptr)
        {
            ability.setPixelToRealSizeEnable(bare::flagOf(*pixel, "enable"));
            readParameter(*pixel, "RealSize", ability.getRealSize());
            ability.setSegmentLayTypeEnable(readFlag(*pixel, "SegmentLayType"));
            ability.setSegmentEnable(readFlag(*pixel, "Segment"));
        }
    }
    abilities.setAdvancedAbility(ability);
}

bool readFloor(const std::string& text, IntelligenceAnalyseAbility& ability)
{
    TiXmlDocument document;
    const TiXmlElement* root = bare::parse(document, text, "IntelligenceAnalyseAbility");
    const TiXmlElement* version = root != nullptr ? root->FirstChildElement("Version") : nullptr;
    if (version == nullptr || version->Attribute("value") == nullptr) return false;
    ability.setVersion(bare::intOf(*version, "value", 0));

    const TiXmlElement* libs = root->FirstChildElement("LIBCommon");
    if (libs != nullptr && !readLibs(*libs, ability.getLibCommonAbilityList())) return false;

    const TiXmlElement* functions = root->FirstChildElement("Functions");
    if (functions == nullptr) return true;
    if (!readMotionDetection(*functions, ability)) return false;
    readPerimeter(*functions, ability);
    readTripWire(*functions, ability);
    readMultiTripWire(*functions, ability);
    readLoiter(*functions, ability);
    readMultiLoiter(*functions, ability);
    readLingers(*functions, ability);
    readAbnormalSpeed(*functions, ability);
    readConverse(*functions, ability);
    readCamera(*functions, ability);
    readAdvanced(*functions, ability);
    return true;
}

// The library.

std::string writeNode(const IntelligenceAnalyseAbility& ability)
{
    std::string text;
    IntelligenceAnalyseAbilityXml().createXmlString(ability, text);
    return text;
}

bool readNode(const std::string& text, IntelligenceAnalyseAbility& ability)
{
    return IntelligenceAnalyseAbilityXml().parseXmlString(text, ability);
}

void removeAttributes(TiXmlElement& element)
{
    while (element.FirstAttribute() != nullptr)
        element.RemoveAttribute(element.FirstAttribute()->Name());
    for (TiXmlElement* child = element.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
        removeAttributes(*child);
}

/// The document with all its nodes, as some must be there, and with its version, without which it is refused.
std::string makeEmptyText(const IntelligenceAnalyseAbility& ability)
{
    TiXmlDocument document;
    document.Parse(writeFloor(ability).c_str());
    TiXmlElement* root = document.RootElement();
    removeAttributes(*root);
    root->FirstChildElement("Version")->SetAttribute("value", ability.getVersion());
    return bare::print(document);
}

} // namespace

void addIntelligenceAnalyseAbility()
{
    const IntelligenceAnalyseAbility ability = makeAbility();
    // The reader prints a line for nearly all that is missing: that of the check prints hundreds.
    compare<IntelligenceAnalyseAbility>("IntelligenceAnalyseAbility.node", ability, makeEmptyText(ability),
                                        {writeFloor, readFloor}, {writeNode, readNode});
}
