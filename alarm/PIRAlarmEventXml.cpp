// <PIRAlarmEvent PIRAlarmEventLEN="1" EventId="1" PolicyId="1" DeviceId="D1" CameraId="1" AlarmInterval="10"
//                PIRAlarmEnableFlag="1">
//     <ScheduleTimeParam ... />
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmRecordActionList />
//     <AlarmPTZActionList />
//     <AlarmOverlayActionList />
// </PIRAlarmEvent>
//
// A document has such an element for each event, side by side. The node form has no "PIRAlarmEventLEN"; it writes
// "true" or "false" for the flag, and that before the interval.

#include "alarm/PIRAlarmEventXml.h"

#include "alarm/PolicySteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace
{

/// What a document without an interval means; peers read a node without one as 0.
constexpr std::uint32_t usualInterval = 10;

void writeEvent(TiXmlNode& parent, const PIRAlarmEvent& event, std::size_t count)
{
    TiXmlElement& element = frame::appendElement(parent, "PIRAlarmEvent");
    frame::setInt(element, "PIRAlarmEventLEN", static_cast<int>(count));
    frame::setInt(element, "EventId", event.getEventId());
    frame::setInt(element, "PolicyId", event.getPolicyId());
    frame::setText(element, "DeviceId", event.getDeviceId());
    frame::setInt(element, "CameraId", event.getCameraId());
    frame::setUnsigned(element, "AlarmInterval", event.getPIRAlarmInterval());
    frame::setInt(element, "PIRAlarmEnableFlag", event.getPIRAlarmEnableFlag() ? 1 : 0);

    ScheduleTimeParamXml::writeElement(element, event.getScheduleTimeParam());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmRecordActionList", event.getAlarmRecordAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    frame::writeActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}

bool readEvent(const TiXmlElement& element, PIRAlarmEvent& event)
{
    event.setEventId(frame::intOf(element, "EventId", 0));
    event.setPolicyId(frame::intOf(element, "PolicyId", 0));
    event.setDeviceId(frame::textOf(element, "DeviceId", ""));
    event.setCameraId(frame::intOf(element, "CameraId", 0));
    event.setPIRAlarmInterval(frame::uint32Of(element, "AlarmInterval", usualInterval));
    event.setPIRAlarmEnableFlag(frame::intOf(element, "PIRAlarmEnableFlag", 0) != 0);

    if (!frame::readSchedule(element, event.getScheduleTimeParam())) return false;
    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmRecordActionList", event.getAlarmRecordAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction())) return false;
    return frame::readActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}

} // namespace

PIRAlarmEventXml::PIRAlarmEventXml() = default;

PIRAlarmEventXml::~PIRAlarmEventXml() = default;

void PIRAlarmEventXml::createXmlNode()
{
    writeElement(document_, events_);
}

bool PIRAlarmEventXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PIRAlarmEventXml::parseXmlString()
{
    return frame::parseRoot(text_, "PIRAlarmEvent", document_, node_) && parseXmlNode();
}

bool PIRAlarmEventXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, events_);
}

void PIRAlarmEventXml::writeElement(TiXmlNode& parent, const std::vector<PIRAlarmEvent>& events)
{
    for (const PIRAlarmEvent& event : events)
        writeEvent(parent, event, events.size());
}

bool PIRAlarmEventXml::readElement(const TiXmlElement& element, std::vector<PIRAlarmEvent>& events)
{
    for (const TiXmlElement* item : frame::repeatedElements(element, "PIRAlarmEventLEN"))
    {
        PIRAlarmEvent event;
        if (!readEvent(*item, event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}

bool PIRAlarmEventXml::createDomainXmlNode(const PIRAlarmEvent& event, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EventId", event.getEventId());
    node->setProperty("PolicyId", event.getPolicyId());
    node->setProperty("DeviceId", event.getDeviceId());
    node->setProperty("CameraId", event.getCameraId());
    node->setProperty("PIRAlarmEnableFlag", event.getPIRAlarmEnableFlag());
    node->setProperty("AlarmInterval", static_cast<unsigned long long>(event.getPIRAlarmInterval()));

    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleTimeParam");
    if (!ScheduleTimeParamXml().createDomainXmlNode(event.getScheduleTimeParam(), schedule)) return false;

    SafePointer<DomainXmlNode> outs = frame::appendNode(node, "AlarmOutActionList");
    if (!frame::writeActions(outs, event.getAlarmOutAction())) return false;

    SafePointer<DomainXmlNode> records = frame::appendNode(node, "AlarmRecordActionList");
    if (!frame::writeActions(records, event.getAlarmRecordAction())) return false;

    SafePointer<DomainXmlNode> ptzs = frame::appendNode(node, "AlarmPTZActionList");
    if (!frame::writeActions(ptzs, event.getAlarmPTZAction())) return false;

    SafePointer<DomainXmlNode> overlays = frame::appendNode(node, "AlarmOverlayActionList");
    return frame::writeActions(overlays, event.getAlarmOverlayAction());
}

bool PIRAlarmEventXml::createDomainXmlNode(const std::vector<PIRAlarmEvent>& events,
                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const PIRAlarmEvent& event : events)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PIRAlarmEvent");
        if (!createDomainXmlNode(event, item)) return false;
    }
    return true;
}

bool PIRAlarmEventXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PIRAlarmEvent& event) const
{
    if (!node) return false;

    event.setEventId(
        frame::intProperty(node, "EventId", 0, "PIRAlarmEventXml::parseDomainXmlNode get EventId failed "));
    event.setPolicyId(
        frame::intProperty(node, "PolicyId", 0, "PIRAlarmEventXml::parseDomainXmlNode get PolicyId failed "));
    event.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "PIRAlarmEventXml::parseDomainXmlNode get DeviceId failed "));
    event.setCameraId(
        frame::intProperty(node, "CameraId", 0, "PIRAlarmEventXml::parseDomainXmlNode get CameraId failed "));
    event.setPIRAlarmEnableFlag(frame::flagProperty(
        node, "PIRAlarmEnableFlag", false, "PIRAlarmEventXml::parseDomainXmlNode get PIRAlarmEnableFlag failed "));
    event.setPIRAlarmInterval(frame::uint32Property(node, "AlarmInterval", 0,
                                                    "PIRAlarmEventXml::parseDomainXmlNode get AlarmInterval failed "));

    SafePointer<DomainXmlNode> scheduleChild;
    ScheduleTimeParam schedule;
    if (node->getConfigNode("ScheduleTimeParam", scheduleChild))
        ScheduleTimeParamXml().parseDomainXmlNode(scheduleChild, schedule);
    event.getScheduleTimeParam() = std::move(schedule);

    event.setAlarmOutAction(frame::alarmOutActions(node, "AlarmOutActionList"));
    event.setAlarmRecordAction(frame::alarmRecordActions(node, "AlarmRecordActionList"));
    event.setAlarmPTZAction(frame::alarmPTZActions(node, "AlarmPTZActionList"));
    event.setAlarmOverlayAction(frame::alarmOverlayActions(node, "AlarmOverlayActionList"));
    return true;
}

bool PIRAlarmEventXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                          std::vector<PIRAlarmEvent>& events) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PIRAlarmEvent event;
        if (!parseDomainXmlNode(frame::nodeOf(*item), event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}

bool PIRAlarmEventXml::createXmlString(const PIRAlarmEvent& event, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PIRAlarmEvent");
    return createDomainXmlNode(event, node) && DomainXmlNode::toString(node, text);
}

bool PIRAlarmEventXml::createXmlString(const std::vector<PIRAlarmEvent>& events, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PIRAlarmEventList");
    return createDomainXmlNode(events, node) && DomainXmlNode::toString(node, text);
}

bool PIRAlarmEventXml::parseXmlString(const std::string& text, PIRAlarmEvent& event) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PIRAlarmEvent", node) && parseDomainXmlNode(node, event);
}

bool PIRAlarmEventXml::parseXmlString(const std::string& text, std::vector<PIRAlarmEvent>& events) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PIRAlarmEventList", node) && parseDomainXmlNode(node, events);
}
