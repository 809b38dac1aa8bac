// <PTZAbilityParam>
//     <MaxOpticalMagnificationParam maxOpticalMaginification="30" maxRealOpticalMagnification="28" />
//     <PTZOSDParamList>
//         <PTZOSDParam OSDType="1" ShowTime="5" X="10" Y="20" />
//     </PTZOSDParamList>
//     <PTZSpeedConfig enable="true" minSpeed="1" maxSpeed="64">
//         <StepPeriod pan="10" tilt="12" />
//         <MoveSpeed SpeedType="1">
//             <Magnify magnify="4">
//                 <MagnifyItem level="1" pan="100" tilt="80" />
//             </Magnify>
//         </MoveSpeed>
//         <GotoMaxSpeed pan="300" tilt="200" />
//     </PTZSpeedConfig>
//     <ThreeDimensionalPosition enable="true" />
//     <TraceAbilityParam enable="true" traceMaxSecond="60" traceMaxCmdNum="99" idRangeFrom="1" idRangeTo="4" />
//     <TourAbilityParam enable="true" tourMaxPresetNum="16" idRangeFrom="1" idRangeTo="8" />
//     <ScanAbilityParam enable="true" scanMaxNum="5" idRangeFrom="1" idRangeTo="5" />
//     <PresetPosAbilityParam enable="true" presetMaxNum="255" idRangeFrom="1" idRangeTo="255" />
//     <GuardPosAbilityParam enable="true" />
//     <InfraredLampAbilityParam enable="true" />
//     <DueNorthAbilityParam enable="true" />
//     <TimerAbilityParam enable="true" />
// </PTZAbilityParam>

#include "ptz/PTZAbilityParamXml.h"

#include "core/Frame.h"

#include <utility>

namespace
{

using Node = SafePointer<DomainXmlNode>;

// A misspelling of the wire format; nobody knows the other name.
constexpr const char* maxOpticalMagnification = "maxOpticalMaginification";

void writeMagnification(const MaxOpticalMagnificationParamV2& magnification, Node& root)
{
    Node node = frame::appendNode(root, "MaxOpticalMagnificationParam");
    node->setProperty(maxOpticalMagnification, magnification.getMaxOpticalMagnification());
    node->setProperty("maxRealOpticalMagnification", magnification.getMaxRealOpticalMagnification());
}

void writeTexts(const std::vector<PTZOSDParam>& texts, Node& root)
{
    Node list = frame::appendNode(root, "PTZOSDParamList");
    for (const PTZOSDParam& text : texts)
    {
        Node node = frame::appendNode(list, "PTZOSDParam");
        node->setProperty("OSDType", text.getOSDType());
        node->setProperty("ShowTime", text.getShowTime());
        node->setProperty("X", text.getX());
        node->setProperty("Y", text.getY());
    }
}

void writePanTilt(const char* name, int pan, int tilt, Node& parent)
{
    Node node = frame::appendNode(parent, name);
    node->setProperty("pan", pan);
    node->setProperty("tilt", tilt);
}

void writeTable(const PTSpeedTable& table, Node& parent)
{
    Node node = frame::appendNode(parent, "MoveSpeed");
    node->setProperty("SpeedType", table.getSpeedType());
    for (const MagnifyPTSpeedParam& magnify : table.getMagnifyPTSpeedParamList())
    {
        Node list = frame::appendNode(node, "Magnify");
        list->setProperty("magnify", magnify.getMagnify());
        for (const PTZStageToSpeedParam& stage : magnify.getPTZStageToSpeedParamList())
        {
            Node item = frame::appendNode(list, "MagnifyItem");
            item->setProperty("level", stage.getStage());
            item->setProperty("pan", stage.getPanSpeed());
            item->setProperty("tilt", stage.getTiltSpeed());
        }
    }
}

Node writeModule(const char* name, const IPTZModuleAbilityParam& module, Node& root)
{
    Node node = frame::appendNode(root, name);
    node->setProperty("enable", module.getEnable());
    return node;
}

void writeRange(int from, int to, Node& node)
{
    node->setProperty("idRangeFrom", from);
    node->setProperty("idRangeTo", to);
}

void writeSpeed(const PTZSpeedParamV2& speed, const PTSpeedTable& table, Node& root)
{
    int slowest = 0;
    int fastest = 0;
    speed.getSpeedRange(slowest, fastest);

    Node node = writeModule("PTZSpeedConfig", speed, root);
    node->setProperty("minSpeed", slowest);
    node->setProperty("maxSpeed", fastest);
    writePanTilt("StepPeriod", speed.getPanStepPeriod(), speed.getTiltStepPeriod(), node);
    writeTable(table, node);
    writePanTilt("GotoMaxSpeed", speed.getPanGotoMaxSpeed(), speed.getTiltGotoMaxSpeed(), node);
}

void writeTrace(const TraceAbilityParamV2& trace, Node& root)
{
    int from = 0;
    int to = 0;
    trace.getIDRange(from, to);

    Node node = writeModule("TraceAbilityParam", trace, root);
    node->setProperty("traceMaxSecond", trace.getTraceMaxSecond());
    node->setProperty("traceMaxCmdNum", trace.getTraceMaxCmdNum());
    writeRange(from, to, node);
}

void writeTour(const TourAbilityParamV2& tour, Node& root)
{
    int from = 0;
    int to = 0;
    tour.getIDRange(from, to);

    Node node = writeModule("TourAbilityParam", tour, root);
    node->setProperty("tourMaxPresetNum", tour.getTourMaxPresetNum());
    writeRange(from, to, node);
}

void writeScan(const ScanAbilityParamV2& scan, Node& root)
{
    int from = 0;
    int to = 0;
    scan.getIDRange(from, to);

    Node node = writeModule("ScanAbilityParam", scan, root);
    node->setProperty("scanMaxNum", scan.getScanMaxNum());
    writeRange(from, to, node);
}

void writePreset(const PresetPosAbilityParam& preset, Node& root)
{
    int from = 0;
    int to = 0;
    preset.getIDRange(from, to);

    Node node = writeModule("PresetPosAbilityParam", preset, root);
    node->setProperty("presetMaxNum", preset.getPresetMaxNum());
    writeRange(from, to, node);
}

bool readMagnification(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    int most = 0;
    int mostReal = 0;
    if (!root->getConfigNode("MaxOpticalMagnificationParam", node) ||
        !node->getProperty(maxOpticalMagnification, most) ||
        !node->getProperty("maxRealOpticalMagnification", mostReal))
        return false;

    MaxOpticalMagnificationParamV2 magnification;
    magnification.setMaxOpticalMagnification(most);
    magnification.setMaxRealOpticalMagnification(mostReal);
    ability.setMaxOpticalMagnificationParam(magnification);
    return true;
}

bool readTexts(const Node& root, PTZAbilityParam& ability)
{
    Node list;
    if (!root->getConfigNode("PTZOSDParamList", list)) return false;

    std::vector<PTZOSDParam> texts;
    TiXmlElement* item = list->getXmlNode()->FirstChildElement("PTZOSDParam");
    for (; item != nullptr; item = item->NextSiblingElement("PTZOSDParam"))
    {
        const Node node = frame::nodeOf(*item);
        int type = 0;
        int showTime = 0;
        int x = 0;
        int y = 0;
        if (!node->getProperty("OSDType", type) || !node->getProperty("ShowTime", showTime) ||
            !node->getProperty("X", x) || !node->getProperty("Y", y))
            return false;

        PTZOSDParam text;
        text.setOSDType(type);
        text.setShowTime(showTime);
        text.setX(x);
        text.setY(y);
        texts.push_back(text);
    }
    ability.getPTZOSDParamList() = std::move(texts);
    return true;
}

bool readPanTilt(const Node& parent, const char* name, int& pan, int& tilt)
{
    Node node;
    return parent->getConfigNode(name, node) && node->getProperty("pan", pan) && node->getProperty("tilt", tilt);
}

bool readStages(TiXmlElement& magnify, std::vector<PTZStageToSpeedParam>& stages)
{
    TiXmlElement* item = magnify.FirstChildElement("MagnifyItem");
    for (; item != nullptr; item = item->NextSiblingElement("MagnifyItem"))
    {
        const Node node = frame::nodeOf(*item);
        int level = 0;
        int pan = 0;
        int tilt = 0;
        if (!node->getProperty("level", level) || !node->getProperty("pan", pan) || !node->getProperty("tilt", tilt))
            return false;

        PTZStageToSpeedParam stage;
        stage.setStage(level);
        stage.setPanSpeed(pan);
        stage.setTiltSpeed(tilt);
        stages.push_back(stage);
    }
    return true;
}

bool readTable(const Node& parent, PTZAbilityParam& ability)
{
    Node node;
    int type = 0;
    if (!parent->getConfigNode("MoveSpeed", node) || !node->getProperty("SpeedType", type)) return false;

    PTSpeedTable table;
    table.setSpeedType(type);
    TiXmlElement* item = node->getXmlNode()->FirstChildElement("Magnify");
    for (; item != nullptr; item = item->NextSiblingElement("Magnify"))
    {
        MagnifyPTSpeedParam magnify;
        int magnification = 0;
        if (!frame::nodeOf(*item)->getProperty("magnify", magnification) ||
            !readStages(*item, magnify.getPTZStageToSpeedParamList()))
            return false;

        magnify.setMagnify(magnification);
        table.getMagnifyPTSpeedParamList().push_back(std::move(magnify));
    }
    ability.getPTSpeedTable() = std::move(table);
    return true;
}

bool readModule(const Node& root, const char* name, IPTZModuleAbilityParam& module, Node& node)
{
    bool enable = false;
    if (!root->getConfigNode(name, node) || !node->getProperty("enable", enable)) return false;

    module.setEnable(enable);
    return true;
}

bool readRange(const Node& node, int& from, int& to)
{
    return node->getProperty("idRangeFrom", from) && node->getProperty("idRangeTo", to);
}

bool readSpeed(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    PTZSpeedParamV2 speed;
    int slowest = 0;
    int fastest = 0;
    int pan = 0;
    int tilt = 0;
    if (!readModule(root, "PTZSpeedConfig", speed, node) || !node->getProperty("minSpeed", slowest) ||
        !node->getProperty("maxSpeed", fastest) || !readPanTilt(node, "StepPeriod", pan, tilt))
        return false;

    speed.setSpeedRange(slowest, fastest);
    speed.setPanStepPeriod(pan);
    speed.setTiltStepPeriod(tilt);

    // The table is a part of its own: it stays when what follows is missing.
    if (!readTable(node, ability) || !readPanTilt(node, "GotoMaxSpeed", pan, tilt)) return false;

    speed.setPanGotoMaxSpeed(pan);
    speed.setTiltGotoMaxSpeed(tilt);
    ability.setPTZSpeedParam(speed);
    return true;
}

bool readPosition(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    ThreeDimensionalPositionAbilityParam position;
    if (!readModule(root, "ThreeDimensionalPosition", position, node)) return false;

    ability.setThreeDimensionalPositionAbilityParam(position);
    return true;
}

bool readTrace(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    TraceAbilityParamV2 trace;
    int mostSeconds = 0;
    int mostCommands = 0;
    int from = 0;
    int to = 0;
    if (!readModule(root, "TraceAbilityParam", trace, node) || !node->getProperty("traceMaxSecond", mostSeconds) ||
        !node->getProperty("traceMaxCmdNum", mostCommands) || !readRange(node, from, to))
        return false;

    trace.setTraceMaxSecond(mostSeconds);
    trace.setTraceMaxCmdNum(mostCommands);
    trace.setIDRange(from, to);
    ability.setTraceAbilityParam(trace);
    return true;
}

bool readTour(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    TourAbilityParamV2 tour;
    int mostPresets = 0;
    int from = 0;
    int to = 0;
    if (!readModule(root, "TourAbilityParam", tour, node) || !node->getProperty("tourMaxPresetNum", mostPresets) ||
        !readRange(node, from, to))
        return false;

    tour.setTourMaxPresetNum(mostPresets);
    tour.setIDRange(from, to);
    ability.setTourAbilityParam(tour);
    return true;
}

bool readScan(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    ScanAbilityParamV2 scan;
    int most = 0;
    int from = 0;
    int to = 0;
    if (!readModule(root, "ScanAbilityParam", scan, node) || !node->getProperty("scanMaxNum", most) ||
        !readRange(node, from, to))
        return false;

    scan.setScanMaxNum(most);
    scan.setIDRange(from, to);
    ability.setScanAbilityParam(scan);
    return true;
}

bool readPreset(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    PresetPosAbilityParam preset;
    int most = 0;
    int from = 0;
    int to = 0;
    if (!readModule(root, "PresetPosAbilityParam", preset, node) || !node->getProperty("presetMaxNum", most) ||
        !readRange(node, from, to))
        return false;

    preset.setPresetMaxNum(most);
    preset.setIDRange(from, to);
    ability.setPresetPosAbilityParam(preset);
    return true;
}

bool readGuard(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    GuardPosAbilityParam guard;
    if (!readModule(root, "GuardPosAbilityParam", guard, node)) return false;

    ability.setGuardPosAbilityParam(guard);
    return true;
}

bool readLamp(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    InfraredLampAbilityParam lamp;
    if (!readModule(root, "InfraredLampAbilityParam", lamp, node)) return false;

    ability.setInfraredLampAbilityParam(lamp);
    return true;
}

bool readNorth(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    DueNorthAbilityParam north;
    if (!readModule(root, "DueNorthAbilityParam", north, node)) return false;

    ability.setDueNorthAbilityParam(north);
    return true;
}

bool readTimer(const Node& root, PTZAbilityParam& ability)
{
    Node node;
    TimerAbilityParam timer;
    if (!readModule(root, "TimerAbilityParam", timer, node)) return false;

    ability.setTimerAbilityParam(timer);
    return true;
}

} // namespace

PTZAbilityParamXml::PTZAbilityParamXml() = default;

PTZAbilityParamXml::~PTZAbilityParamXml() = default;

bool PTZAbilityParamXml::createXmlString(const PTZAbilityParam& ability, std::string& text) const
{
    Node root = frame::makeNode("PTZAbilityParam");
    writeMagnification(ability.getMaxOpticalMagnificationParam(), root);
    writeTexts(ability.getPTZOSDParamList(), root);
    writeSpeed(ability.getPTZSpeedParam(), ability.getPTSpeedTable(), root);
    writeModule("ThreeDimensionalPosition", ability.getThreeDimensionalPositionAbilityParam(), root);
    writeTrace(ability.getTraceAbilityParam(), root);
    writeTour(ability.getTourAbilityParam(), root);
    writeScan(ability.getScanAbilityParam(), root);
    writePreset(ability.getPresetPosAbilityParam(), root);
    writeModule("GuardPosAbilityParam", ability.getGuardPosAbilityParam(), root);
    writeModule("InfraredLampAbilityParam", ability.getInfraredLampAbilityParam(), root);
    writeModule("DueNorthAbilityParam", ability.getDueNorthAbilityParam(), root);
    writeModule("TimerAbilityParam", ability.getTimerAbilityParam(), root);
    return DomainXmlNode::toString(root, text);
}

bool PTZAbilityParamXml::parseXmlString(const std::string& text, PTZAbilityParam& ability) const
{
    Node root;
    return DomainXmlNode::parse(text, "PTZAbilityParam", root) && readMagnification(root, ability) &&
           readTexts(root, ability) && readSpeed(root, ability) && readPosition(root, ability) &&
           readTrace(root, ability) && readTour(root, ability) && readScan(root, ability) &&
           readPreset(root, ability) && readGuard(root, ability) && readLamp(root, ability) &&
           readNorth(root, ability) && readTimer(root, ability);
}
