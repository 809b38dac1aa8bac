// <IntelligenceAnalyseAbility>
//     <Version value="1" />
//     <LIBCommon>
//         <LIB ID="1" enable="true">
//             <Resolution videoWidth="320" videoHeight="240" />
//             <Common totalAnalyseRegionNum="8" MaxEnableFunsNum="4" />
//         </LIB>
//     </LIBCommon>
//     <Functions>
//         <MotionDetection enable="true" LibId="1">
//             <Sensitivity enable="true" min="0" max="100" unit="" />
//             <Cell enable="true" WidthCellNumber="22" HeightCellNumber="18" />
//         </MotionDetection>
//         <Perimeter enable="true" LibId="1">
//             <Region enable="true" edgeNum="6" maxRegionNum="4" />
//             <DetailGet enable="true" unit="" />
//             <TargetTypeConstrain enable="true" min="0" max="1" unit="u" />
//             ...
//         </Perimeter>
//         ...
//     </Functions>
// </IntelligenceAnalyseAbility>
//
// Flags and ranges without a unit bear an empty "unit": peers write it for every parameter, and read it where it means
// something.

#include "analysis/IntelligenceAnalyseAbilityXml.h"

#include "core/Frame.h"

#include <cstdio>
#include <utility>
#include <vector>

namespace
{

using Node = SafePointer<DomainXmlNode>;

// Writing. A builder adds a node to its parent and gives it to those that have more to add.

Node getNormalNode(Node& parent, const char* name, bool enable, int libId)
{
    Node node = frame::appendNode(parent, name);
    node->setProperty("enable", enable);
    node->setProperty("LibId", libId);
    return node;
}

void getNormalNode(Node& parent, const char* name, bool enable, const std::string& unit)
{
    Node node = frame::appendNode(parent, name);
    node->setProperty("enable", enable);
    node->setProperty("unit", unit);
}

void getNormalNode(Node& parent, const char* name, bool enable, int min, int max, const std::string& unit)
{
    Node node = frame::appendNode(parent, name);
    node->setProperty("enable", enable);
    node->setProperty("min", min);
    node->setProperty("max", max);
    node->setProperty("unit", unit);
}

void getNormalNode(Node& parent, const char* name, bool enable, float min, float max, const std::string& unit)
{
    Node node = frame::appendNode(parent, name);
    node->setProperty("enable", enable);
    node->setProperty("min", min);
    node->setProperty("max", max);
    node->setProperty("unit", unit);
}

void getNormalNode(Node& parent, const char* name, bool flag)
{
    getNormalNode(parent, name, flag, "");
}

void getNormalNode(Node& parent, const char* name, const AbilityUnit& ability)
{
    getNormalNode(parent, name, ability.enable, ability.unit);
}

void getNormalNode(Node& parent, const char* name, const AbilityLimits& ability)
{
    getNormalNode(parent, name, ability.enable, ability.min, ability.max, "");
}

void getNormalNode(Node& parent, const char* name, const AbilityRange& ability)
{
    getNormalNode(parent, name, ability.enable, ability.min, ability.max, ability.unit);
}

void getNormalNode(Node& parent, const char* name, const AbilityFloatRange& ability)
{
    getNormalNode(parent, name, ability.enable, ability.min, ability.max, ability.unit);
}

void getRegionNode(Node& parent, const AbilityRegion& region)
{
    Node node = frame::appendNode(parent, "Region");
    node->setProperty("enable", region.enable);
    node->setProperty("edgeNum", region.edgeNum);
    node->setProperty("maxRegionNum", region.maxRegionNum);
}

// What several functions share.

void createRegionNodes(Node& node, const RegionAbility& ability)
{
    getRegionNode(node, ability.getRegion());
    getNormalNode(node, "DetailGet", ability.getDetailGetEnable());
}

void createTargetSizeNodes(Node& node, const RegionAbility& ability)
{
    getNormalNode(node, "MinTargetSize", ability.getMinTargetSize());
    getNormalNode(node, "MaxTargetSize", ability.getMaxTargetSize());
}

void createTargetNodes(Node& node, const TargetAbility& ability)
{
    getNormalNode(node, "TargetTypeConstrain", ability.getTargetTypeConstrain());
    getNormalNode(node, "TargetType", ability.getTargetType());
    getNormalNode(node, "TargetSizeConstrain", ability.getTargetSizeConstrain());
    createTargetSizeNodes(node, ability);
}

// The nodes, in their order.

void createLibCommonNode(Node& root, const IntelligenceAnalyseAbility& abilities)
{
    Node libraries = frame::appendNode(root, "LIBCommon");
    for (const LibCommonAbility& ability : abilities.getLibCommonAbilityList())
    {
        Node node = frame::appendNode(libraries, "LIB");
        node->setProperty("ID", ability.getLibId());
        node->setProperty("enable", ability.getEnable());

        Node resolution = frame::appendNode(node, "Resolution");
        resolution->setProperty("videoWidth", ability.getResolutionWidth());
        resolution->setProperty("videoHeight", ability.getResolutionHeight());

        Node common = frame::appendNode(node, "Common");
        common->setProperty("totalAnalyseRegionNum", ability.getTotalAnalyseRegionNum());
        common->setProperty("MaxEnableFunsNum", ability.getMaxEnableFunsNum());
    }
}

void createMotionDetectionNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const MotionDetectionAbilityV2& ability = abilities.getMotionDetectionAbilityV2();
    Node node = getNormalNode(functions, "MotionDetection", ability.getEnable(), ability.getLibId());
    getNormalNode(node, "Sensitivity", ability.getSensitivity());

    Node cell = frame::appendNode(node, "Cell");
    cell->setProperty("enable", ability.getCellEnable());
    cell->setProperty("WidthCellNumber", ability.getCellWidthCellNumber());
    cell->setProperty("HeightCellNumber", ability.getCellHeightCellNumber());
}

void createPerimeterNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const PerimeterAbility& ability = abilities.getPerimeterAbility();
    Node node = getNormalNode(functions, "Perimeter", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    createTargetNodes(node, ability);
    getNormalNode(node, "Sensitivity", ability.getSensitivity());
}

void createTripWireNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const TripWireAbility& ability = abilities.getTripWireAbility();
    Node node = getNormalNode(functions, "TripWire", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    getNormalNode(node, "TriggerDirection", ability.getTriggerDirectionEnable());
    getNormalNode(node, "Bidirection", ability.getBidirectionEnable());
    createTargetNodes(node, ability);
}

void createMultiTripWireNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const MultiTripWireAbility& ability = abilities.getMultiTripWireAbility();
    Node node = getNormalNode(functions, "MultiTripWire", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    getNormalNode(node, "TriggerDirection", ability.getTriggerDirectionEnable());
    getNormalNode(node, "TimeInterval", ability.getTimeInterval());
    createTargetNodes(node, ability);
}

void createLoiterNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const LoiterAbility& ability = abilities.getLoiterAbility();
    Node node = getNormalNode(functions, "Loiter", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    getNormalNode(node, "AnalysisPath", ability.getAnalysisPath());
    createTargetNodes(node, ability);
    getNormalNode(node, "MinTime", ability.getMinTime());
}

void createMultiLoiterNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const MultiLoiterAbility& ability = abilities.getMultiLoiterAbility();
    Node node = getNormalNode(functions, "MultiLoiter", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    getNormalNode(node, "AnalysisPath", ability.getAnalysisPath());
    getNormalNode(node, "TargetSizeConstrain", ability.getTargetSizeConstrain());
    createTargetSizeNodes(node, ability);
    getNormalNode(node, "MinTime", ability.getMinTime());
    getNormalNode(node, "ForbiddenType", ability.getForbiddenTypeEnable());
    getNormalNode(node, "Minimum", ability.getMinimum());
    getNormalNode(node, "Maximum", ability.getMaximum());
}

void createLingerNode(Node& functions, const char* name, const LingerAbility& ability)
{
    Node node = getNormalNode(functions, name, ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    createTargetSizeNodes(node, ability);
    getNormalNode(node, "MinTime", ability.getMinTime());
}

void createObjLeftNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    createLingerNode(functions, "ObjLeft", abilities.getObjLeftAbility());
}

void createObjMoveNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    createLingerNode(functions, "ObjMove", abilities.getObjMoveAbility());
}

void createAbnormalSpeedNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const AbnormalSpeedAbility& ability = abilities.getAbnormalSpeedAbility();
    Node node = getNormalNode(functions, "AbnormalSpeed", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    createTargetNodes(node, ability);
    getNormalNode(node, "RateLimitingType", ability.getRateLimitingType());
    getNormalNode(node, "MinRate", ability.getMinRate());
    getNormalNode(node, "MaxRate", ability.getMaxRate());
}

void createConverseNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const ConverseAbility& ability = abilities.getConverseAbility();
    Node node = getNormalNode(functions, "Converse", ability.getEnable(), ability.getLibId());
    createRegionNodes(node, ability);
    createTargetNodes(node, ability);
    getNormalNode(node, "ConverseAngle", ability.getConverseAngle());
}

void createNoParkingNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    createLingerNode(functions, "NoParking", abilities.getNoParkingAbility());
}

void createSignalBadNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const SignalBadAbility& ability = abilities.getSignalBadAbility();
    Node node = getNormalNode(functions, "SignalBad", ability.getEnable(), ability.getLibId());
    getNormalNode(node, "DetailGet", ability.getDetailGet());
}

void createCameraTamperNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const CameraTamperAbility& ability = abilities.getCameraTamperAbility();
    Node node = getNormalNode(functions, "CameraTamper", ability.getEnable(), ability.getLibId());
    getNormalNode(node, "MinTime", ability.getMinTime());
}

void createCameraMoveNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const CameraMoveAbility& ability = abilities.getCameraMoveAbility();
    getNormalNode(functions, "CameraMove", ability.getEnable(), ability.getLibId());
}

void createAdvancedNode(Node& functions, const IntelligenceAnalyseAbility& abilities)
{
    const AdvancedAbility& ability = abilities.getAdvancedAbility();
    Node node = getNormalNode(functions, "Advanced", ability.getEnable(), ability.getLibId());
    getNormalNode(node, "Scene", ability.getScene());
    getNormalNode(node, "Hight", ability.getHight()); // so spelt
    getNormalNode(node, "Angle", ability.getAngle());
    getNormalNode(node, "FOV", ability.getFOV());
    getNormalNode(node, "CameraShake", ability.getCameraShake());
    getNormalNode(node, "HighNoise", ability.getHighNoise());
    getNormalNode(node, "LowContrast", ability.getLowContrast());
    getNormalNode(node, "PeriodMotion", ability.getPeriodMotion());
    getNormalNode(node, "PeriodMotionTime", ability.getPeriodMotionTime());

    Node pixel = frame::appendNode(node, "PixelToRealSize");
    pixel->setProperty("enable", ability.getPixelToRealSizeEnable());
    getNormalNode(pixel, "RealSize", ability.getRealSize());
    getNormalNode(pixel, "SegmentLayType", ability.getSegmentLayTypeEnable());
    getNormalNode(pixel, "Segment", ability.getSegmentEnable());
}

void createFunctionsNode(Node& root, const IntelligenceAnalyseAbility& abilities)
{
    Node functions = frame::appendNode(root, "Functions");
    createMotionDetectionNode(functions, abilities);
    createPerimeterNode(functions, abilities);
    createTripWireNode(functions, abilities);
    createMultiTripWireNode(functions, abilities);
    createLoiterNode(functions, abilities);
    createMultiLoiterNode(functions, abilities);
    createObjLeftNode(functions, abilities);
    createObjMoveNode(functions, abilities);
    createAbnormalSpeedNode(functions, abilities);
    createConverseNode(functions, abilities);
    createNoParkingNode(functions, abilities);
    createSignalBadNode(functions, abilities);
    createCameraTamperNode(functions, abilities);
    createCameraMoveNode(functions, abilities);
    createAdvancedNode(functions, abilities);
}

// Reading. What a missing node or property gives is false, 0 or empty; its line names the node and its parent.

std::string nameOf(const Node& node)
{
    std::string name;
    node->getNodeName(name);
    return name;
}

void getNormalParam(const Node& node, FunctionAbility& ability)
{
    bool enable = false;
    if (!node->getProperty("enable", enable))
        std::printf("IntelligenceAnalyseAbilityXml Failed! get Enable Attr In %s Node failed! Default false! \n",
                    nameOf(node).c_str());
    ability.setEnable(enable);

    int libId = -1;
    if (!node->getProperty("LibId", libId))
        std::printf("IntelligenceAnalyseAbilityXml Failed! get LibId Attr In %s Node failed! Default -1! \n",
                    nameOf(node).c_str());
    ability.setLibId(libId);
}

/// Looks up a child; without it, @p child stays empty.
bool getChild(const Node& node, const char* name, Node& child)
{
    if (node->getConfigNode(name, child)) return true;
    std::printf("IntelligenceAnalyseAbilityXml Failed! get %s Node In %s Node failed! can not find this node! \n", name,
                nameOf(node).c_str());
    return false;
}

bool enableOf(const Node& node, const char* name, const Node& child)
{
    bool enable = false;
    if (!child->getProperty("enable", enable))
        std::printf("IntelligenceAnalyseAbilityXml Failed! get Enable of %s Node In %s Node failed! Default false! \n",
                    name, nameOf(node).c_str());
    return enable;
}

void printNoMin(const Node& node, const char* name)
{
    std::printf("IntelligenceAnalyseAbilityXml Failed! get Min of %s Node In %s Node failed! Default 0! \n", name,
                nameOf(node).c_str());
}

void printNoMax(const Node& node, const char* name)
{
    std::printf("IntelligenceAnalyseAbilityXml Failed! get Max of %s Node In %s Node failed! Default 0! \n", name,
                nameOf(node).c_str());
}

bool getNormalParam(const Node& node, const char* name)
{
    Node child;
    return getChild(node, name, child) && enableOf(node, name, child);
}

void getNormalParam(const Node& node, const char* name, AbilityUnit& ability)
{
    Node child;
    if (!getChild(node, name, child)) return;

    ability.enable = enableOf(node, name, child);
    child->getProperty("unit", ability.unit);
}

void getNormalParam(const Node& node, const char* name, AbilityLimits& ability)
{
    Node child;
    if (!getChild(node, name, child)) return;

    ability.enable = enableOf(node, name, child);
    if (!child->getProperty("min", ability.min)) printNoMin(node, name);
    if (!child->getProperty("max", ability.max)) printNoMax(node, name);
}

void getNormalParam(const Node& node, const char* name, AbilityRange& ability)
{
    Node child;
    if (!getChild(node, name, child)) return;

    ability.enable = enableOf(node, name, child);
    if (!child->getProperty("min", ability.min)) printNoMin(node, name);
    if (!child->getProperty("max", ability.max)) printNoMax(node, name);
    child->getProperty("unit", ability.unit);
}

void getNormalParam(const Node& node, const char* name, AbilityFloatRange& ability)
{
    Node child;
    if (!getChild(node, name, child)) return;

    ability.enable = enableOf(node, name, child);
    if (!child->getProperty("min", ability.min)) printNoMin(node, name);
    if (!child->getProperty("max", ability.max)) printNoMax(node, name);
    child->getProperty("unit", ability.unit);
}

void printNoEdgeNum(const Node& node)
{
    std::printf(
        "IntelligenceAnalyseAbilityXml::getRegionParam get EdgeNum of Region Node In %s Node Failed! Default 0! \n",
        nameOf(node).c_str());
}

void getRegionParam(const Node& node, AbilityRegion& region)
{
    Node child;
    if (!node->getConfigNode("Region", child))
    {
        std::printf("IntelligenceAnalyseAbilityXml::getRegionParam get Region Node In %s Node Failed! \n",
                    nameOf(node).c_str());
        return;
    }

    if (!child->getProperty("enable", region.enable))
        std::printf("IntelligenceAnalyseAbilityXml::getRegionParam get Enable of Region Node In %s Node Failed! "
                    "Default false! \n",
                    nameOf(node).c_str());
    if (!child->getProperty("edgeNum", region.edgeNum)) printNoEdgeNum(node);
    // The line is that of the edges: peers' logs know no other.
    if (!child->getProperty("maxRegionNum", region.maxRegionNum)) printNoEdgeNum(node);
}

// What several functions share.

void parseRegionNodes(const Node& node, RegionAbility& ability)
{
    getRegionParam(node, ability.getRegion());
    ability.setDetailGetEnable(getNormalParam(node, "DetailGet"));
}

void parseTargetSizeNodes(const Node& node, RegionAbility& ability)
{
    getNormalParam(node, "MinTargetSize", ability.getMinTargetSize());
    getNormalParam(node, "MaxTargetSize", ability.getMaxTargetSize());
}

void parseTargetNodes(const Node& node, TargetAbility& ability)
{
    getNormalParam(node, "TargetTypeConstrain", ability.getTargetTypeConstrain());
    getNormalParam(node, "TargetType", ability.getTargetType());
    getNormalParam(node, "TargetSizeConstrain", ability.getTargetSizeConstrain());
    parseTargetSizeNodes(node, ability);
}

/// Looks up the node of a function and reads its head. Without it, prints @p line, and the function is disabled.
bool getFunction(const Node& functions, const char* name, const char* line, Node& node, FunctionAbility& ability)
{
    if (functions->getConfigNode(name, node))
    {
        getNormalParam(node, ability);
        return true;
    }
    std::puts(line);
    ability.setEnable(false);
    ability.setLibId(-1);
    return false;
}

// The nodes, in their order.

LibCommonAbility parseLib(const Node& node)
{
    LibCommonAbility ability;
    ability.setLibId(frame::intProperty(node, "ID", -1, "LibCommon get LibId Failed! Set Default Value -1 "));
    ability.setEnable(
        frame::flagProperty(node, "enable", false, "LibCommon get Enable Failed! Set Default Value false "));

    // A library without one of these two raises, when the empty pointer is read from.
    Node resolution;
    node->getConfigNode("Resolution", resolution);
    ability.setResolutionWidth(
        frame::intProperty(resolution, "videoWidth", 320, "LibCommon get VideoWidth Failed! Set Default Value 320 "));
    ability.setResolutionHeight(
        frame::intProperty(resolution, "videoHeight", 240, "LibCommon get VideoHeight Failed! Set Default Value 240 "));
    Node common;
    node->getConfigNode("Common", common);
    ability.setTotalAnalyseRegionNum(frame::intProperty(
        common, "totalAnalyseRegionNum", 0, "LibCommon get TotalAnalyseRegionNum Failed! Set Default Value 0 "));
    ability.setMaxEnableFunsNum(frame::intProperty(common, "MaxEnableFunsNum", 0,
                                                   "LibCommon get MaxEnableFunsNum Failed! Set Default Value 0 "));
    return ability;
}

void parseLibCommonNode(const Node& root, IntelligenceAnalyseAbility& abilities)
{
    Node libraries;
    if (!root->getConfigNode("LIBCommon", libraries))
    {
        std::puts("IntelligenceAnalyseAbilityXml::parseLibCommonNode get LibCommonAbilityList Failed! Node isn't "
                  "exist! ");
        return;
    }
    std::vector<LibCommonAbility> list;
    std::vector<Node> items;
    if (!libraries->getConfigNodeList("LIB", items))
        std::puts("IntelligenceAnalyseAbilityXml::parseLibCommonNode get LibCommonAbilityList Failed! Node List isn't "
                  "exist! ");
    list.reserve(items.size());
    for (const Node& item : items)
        list.push_back(parseLib(item));
    abilities.getLibCommonAbilityList() = std::move(list);
}

void parseMotionDetectionNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    MotionDetectionAbilityV2 ability;
    if (getFunction(functions, "MotionDetection",
                    "IntelligenceAnalyseAbilityXml::parseMotionDetectionNode Can not find MotionDetection Node! ", node,
                    ability))
    {
        getNormalParam(node, "Sensitivity", ability.getSensitivity());

        // Without it this raises, when the empty pointer is read from. The lines say "false" for numbers too.
        Node cell;
        node->getConfigNode("Cell", cell);
        ability.setCellEnable(frame::flagProperty(
            cell, "enable", false,
            "IntelligenceAnalyseAbilityXml::parseMotionDetectionNode get CellEnable Failed! Default false! "));
        ability.setCellWidthCellNumber(frame::intProperty(
            cell, "WidthCellNumber", 0,
            "IntelligenceAnalyseAbilityXml::parseMotionDetectionNode get WidthCellNumber Failed! Default false! "));
        ability.setCellHeightCellNumber(frame::intProperty(
            cell, "HeightCellNumber", 0,
            "IntelligenceAnalyseAbilityXml::parseMotionDetectionNode get HeightCellNumber Failed! Default false! "));
    }
    abilities.setMotionDetectionAbilityV2(ability);
}

void parsePerimeterNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    PerimeterAbility ability;
    if (getFunction(functions, "Perimeter",
                    "IntelligenceAnalyseAbilityXml::parsePerimeterNode get Perimeter Node Failed! ", node, ability))
    {
        parseRegionNodes(node, ability);
        parseTargetNodes(node, ability);
        getNormalParam(node, "Sensitivity", ability.getSensitivity());
    }
    abilities.setPerimeterAbility(ability);
}

void parseTripWireNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    TripWireAbility ability;
    if (getFunction(functions, "TripWire",
                    "IntelligenceAnalyseAbilityXml::parseTripWireNode get TripWire Node Failed! ", node, ability))
    {
        parseRegionNodes(node, ability);
        ability.setTriggerDirectionEnable(getNormalParam(node, "TriggerDirection"));
        ability.setBidirectionEnable(getNormalParam(node, "Bidirection"));
        parseTargetNodes(node, ability);
    }
    abilities.setTripWireAbility(ability);
}

void parseMultiTripWireNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    MultiTripWireAbility ability;
    if (getFunction(functions, "MultiTripWire",
                    "IntelligenceAnalyseAbilityXml::parseMultiTripWireNode get MultiTripWire Node Failed! ", node,
                    ability))
    {
        parseRegionNodes(node, ability);
        ability.setTriggerDirectionEnable(getNormalParam(node, "TriggerDirection"));
        getNormalParam(node, "TimeInterval", ability.getTimeInterval());
        parseTargetNodes(node, ability);
    }
    abilities.setMultiTripWireAbility(ability);
}

void parseLoiterNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    LoiterAbility ability;
    if (getFunction(functions, "Loiter", "IntelligenceAnalyseAbilityXml::parseLoiterNode get Loiter Node Failed! ",
                    node, ability))
    {
        parseRegionNodes(node, ability);
        getNormalParam(node, "AnalysisPath", ability.getAnalysisPath());
        parseTargetNodes(node, ability);
        getNormalParam(node, "MinTime", ability.getMinTime());
    }
    abilities.setLoiterAbility(ability);
}

void parseMultiLoiterNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    MultiLoiterAbility ability;
    if (getFunction(functions, "MultiLoiter",
                    "IntelligenceAnalyseAbilityXml::parseMultiLoiterNode get MultiLoiter Node Failed! ", node, ability))
    {
        parseRegionNodes(node, ability);
        getNormalParam(node, "AnalysisPath", ability.getAnalysisPath());
        getNormalParam(node, "TargetSizeConstrain", ability.getTargetSizeConstrain());
        parseTargetSizeNodes(node, ability);
        getNormalParam(node, "MinTime", ability.getMinTime());
        ability.setForbiddenTypeEnable(getNormalParam(node, "ForbiddenType"));
        getNormalParam(node, "Minimum", ability.getMinimum());
        getNormalParam(node, "Maximum", ability.getMaximum());
    }
    abilities.setMultiLoiterAbility(ability);
}

void parseLingerNodes(const Node& node, LingerAbility& ability)
{
    parseRegionNodes(node, ability);
    parseTargetSizeNodes(node, ability);
    getNormalParam(node, "MinTime", ability.getMinTime());
}

void parseObjLeftNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    ObjLeftAbility ability;
    if (getFunction(functions, "ObjLeft", "IntelligenceAnalyseAbilityXml::parseObjLeftNode get ObjLeft Node Failed! ",
                    node, ability))
        parseLingerNodes(node, ability);
    abilities.setObjLeftAbility(ability);
}

void parseObjMoveNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    ObjMoveAbility ability;
    if (getFunction(functions, "ObjMove", "IntelligenceAnalyseAbilityXml::parseObjMoveNode get ObjMove Node Failed! ",
                    node, ability))
        parseLingerNodes(node, ability);
    abilities.setObjMoveAbility(ability);
}

void parseAbnormalSpeedNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    AbnormalSpeedAbility ability;
    if (getFunction(functions, "AbnormalSpeed",
                    "IntelligenceAnalyseAbilityXml::parseAbnormalSpeedNode get AbnormalSpeed Node Failed! ", node,
                    ability))
    {
        parseRegionNodes(node, ability);
        parseTargetNodes(node, ability);
        getNormalParam(node, "RateLimitingType", ability.getRateLimitingType());
        getNormalParam(node, "MinRate", ability.getMinRate());
        getNormalParam(node, "MaxRate", ability.getMaxRate());
    }
    abilities.setAbnormalSpeedAbility(ability);
}

void parseConverseNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    ConverseAbility ability;
    if (getFunction(functions, "Converse",
                    "IntelligenceAnalyseAbilityXml::parseConverseNode get Converse Node Failed! ", node, ability))
    {
        parseRegionNodes(node, ability);
        parseTargetNodes(node, ability);
        getNormalParam(node, "ConverseAngle", ability.getConverseAngle());
    }
    abilities.setConverseAbility(ability);
}

void parseNoParkingNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    NoParkingAbility ability;
    if (getFunction(functions, "NoParking",
                    "IntelligenceAnalyseAbilityXml::parseNoParkingNode get NoParking Node Failed! ", node, ability))
        parseLingerNodes(node, ability);
    abilities.setNoParkingAbility(ability);
}

void parseSignalBadNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    SignalBadAbility ability;
    if (getFunction(functions, "SignalBad",
                    "IntelligenceAnalyseAbilityXml::parseSignalBadNode get SignalBad Node Failed! ", node, ability))
        ability.setDetailGet(getNormalParam(node, "DetailGet"));
    abilities.setSignalBadAbility(ability);
}

void parseCameraTamperNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    CameraTamperAbility ability;
    if (getFunction(functions, "CameraTamper",
                    "IntelligenceAnalyseAbilityXml::parseCameraTamperNode get CameraTamper Node Failed! ", node,
                    ability))
        getNormalParam(node, "MinTime", ability.getMinTime());
    abilities.setCameraTamperAbility(ability);
}

void parseCameraMoveNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    CameraMoveAbility ability;
    getFunction(functions, "CameraMove",
                "IntelligenceAnalyseAbilityXml::parseCameraMoveNode get CameraMove Node Failed! ", node, ability);
    abilities.setCameraMoveAbility(ability);
}

void parseAdvancedNode(const Node& functions, IntelligenceAnalyseAbility& abilities)
{
    Node node;
    AdvancedAbility ability;
    if (getFunction(functions, "Advanced",
                    "IntelligenceAnalyseAbilityXml::parseAdvancedNode get Advanced Node Failed! ", node, ability))
    {
        getNormalParam(node, "Scene", ability.getScene());
        getNormalParam(node, "Hight", ability.getHight());
        getNormalParam(node, "Angle", ability.getAngle());
        getNormalParam(node, "FOV", ability.getFOV());
        getNormalParam(node, "CameraShake", ability.getCameraShake());
        getNormalParam(node, "HighNoise", ability.getHighNoise());
        getNormalParam(node, "LowContrast", ability.getLowContrast());
        getNormalParam(node, "PeriodMotion", ability.getPeriodMotion());
        getNormalParam(node, "PeriodMotionTime", ability.getPeriodMotionTime());

        Node pixel;
        if (node->getConfigNode("PixelToRealSize", pixel))
        {
            ability.setPixelToRealSizeEnable(frame::flagProperty(pixel, "enable", false));
            getNormalParam(pixel, "RealSize", ability.getRealSize());
            ability.setSegmentLayTypeEnable(getNormalParam(pixel, "SegmentLayType"));
            ability.setSegmentEnable(getNormalParam(pixel, "Segment"));
        }
    }
    abilities.setAdvancedAbility(ability);
}

void parseFunctionsNode(const Node& root, IntelligenceAnalyseAbility& abilities)
{
    Node functions;
    if (!root->getConfigNode("Functions", functions))
    {
        std::puts("IntelligenceAnalyseAbilityXml::parseFunctionsNode  Can not find Functions Node! ");
        return;
    }
    parseMotionDetectionNode(functions, abilities);
    parsePerimeterNode(functions, abilities);
    parseTripWireNode(functions, abilities);
    parseMultiTripWireNode(functions, abilities);
    parseLoiterNode(functions, abilities);
    parseMultiLoiterNode(functions, abilities);
    parseObjLeftNode(functions, abilities);
    parseObjMoveNode(functions, abilities);
    parseAbnormalSpeedNode(functions, abilities);
    parseConverseNode(functions, abilities);
    parseNoParkingNode(functions, abilities);
    parseSignalBadNode(functions, abilities);
    parseCameraTamperNode(functions, abilities);
    parseCameraMoveNode(functions, abilities);
    parseAdvancedNode(functions, abilities);
}

} // namespace

IntelligenceAnalyseAbilityXml::IntelligenceAnalyseAbilityXml() = default;

IntelligenceAnalyseAbilityXml::~IntelligenceAnalyseAbilityXml() = default;

bool IntelligenceAnalyseAbilityXml::createXmlString(const IntelligenceAnalyseAbility& ability, std::string& text) const
{
    Node root = frame::makeNode("IntelligenceAnalyseAbility");
    Node version = frame::appendNode(root, "Version");
    version->setProperty("value", ability.getVersion());
    createLibCommonNode(root, ability);
    createFunctionsNode(root, ability);
    return DomainXmlNode::toString(root, text);
}

bool IntelligenceAnalyseAbilityXml::parseXmlString(const std::string& text, IntelligenceAnalyseAbility& ability) const
{
    Node root;
    Node version;
    int number = 0;
    if (!DomainXmlNode::parse(text, "IntelligenceAnalyseAbility", root) || !root->getConfigNode("Version", version) ||
        !version->getProperty("value", number))
        return false;

    IntelligenceAnalyseAbility read = ability; // kept whole where the reader raises
    read.setVersion(number);
    parseLibCommonNode(root, read);
    parseFunctionsNode(root, read);
    ability = std::move(read);
    return true;
}
