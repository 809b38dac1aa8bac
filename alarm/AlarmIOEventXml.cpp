// <AlarmIOEvent EventId="1" PolicyId="1" AlarmInId="1" AlarmIOEnableFlag="true" DeviceId="D1">
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmRecordActionList />
//     <AlarmPTZActionList />
//     <AlarmOverlayActionList />
//     <ScheduleTimeParam ... />
// </AlarmIOEvent>
//
// The schedule travels in the node form only: peers of the document form do not expect it.

#include "alarm/AlarmIOEventXml.h"

#include "alarm/PolicySteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>

AlarmIOEventXml::AlarmIOEventXml() = default;

AlarmIOEventXml::~AlarmIOEventXml() = default;

void AlarmIOEventXml::createXmlNode()
{
    writeElement(document_, event_);
}

bool AlarmIOEventXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmIOEventXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmIOEvent", document_, node_) && parseXmlNode();
}

bool AlarmIOEventXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, event_);
}

TiXmlElement& AlarmIOEventXml::writeElement(TiXmlNode& parent, const AlarmIOEvent& event)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmIOEvent");
    frame::setInt(element, "EventId", event.getEventId());
    frame::setInt(element, "PolicyId", event.getPolicyId());
    frame::setInt(element, "AlarmInId", event.getAlarmInId());
    frame::setFlag(element, "AlarmIOEnableFlag", event.getAlarmIOEnableFlag());
    frame::setText(element, "DeviceId", event.getDeviceId());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmRecordActionList", event.getAlarmRecordAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    frame::writeActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
    return element;
}

bool AlarmIOEventXml::readElement(const TiXmlElement& element, AlarmIOEvent& event)
{
    event.setEventId(frame::intOf(element, "EventId", 0));
    event.setPolicyId(frame::intOf(element, "PolicyId", 0));
    event.setAlarmInId(frame::intOf(element, "AlarmInId", 0));
    event.setAlarmIOEnableFlag(frame::flagOf(element, "AlarmIOEnableFlag", false));
    event.setDeviceId(frame::textOf(element, "DeviceId", ""));

    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmRecordActionList", event.getAlarmRecordAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction())) return false;
    return frame::readActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}

bool AlarmIOEventXml::createDomainXmlNode(const AlarmIOEvent& event, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EventId", event.getEventId());
    node->setProperty("PolicyId", event.getPolicyId());
    node->setProperty("AlarmInId", event.getAlarmInId());
    node->setProperty("AlarmIOEnableFlag", event.getAlarmIOEnableFlag());
    node->setProperty("DeviceId", event.getDeviceId());

    SafePointer<DomainXmlNode> outs = frame::appendNode(node, "AlarmOutActionList");
    if (!frame::writeActions(outs, event.getAlarmOutAction())) return false;

    SafePointer<DomainXmlNode> records = frame::appendNode(node, "AlarmRecordActionList");
    if (!frame::writeActions(records, event.getAlarmRecordAction())) return false;

    SafePointer<DomainXmlNode> ptzs = frame::appendNode(node, "AlarmPTZActionList");
    if (!frame::writeActions(ptzs, event.getAlarmPTZAction())) return false;

    SafePointer<DomainXmlNode> overlays = frame::appendNode(node, "AlarmOverlayActionList");
    if (!frame::writeActions(overlays, event.getAlarmOverlayAction())) return false;

    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleTimeParam");
    return ScheduleTimeParamXml().createDomainXmlNode(event.getScheduleTimeParam(), schedule);
}

bool AlarmIOEventXml::createDomainXmlNode(const std::vector<AlarmIOEvent>& events,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const AlarmIOEvent& event : events)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "AlarmIOEvent");
        if (!createDomainXmlNode(event, item)) return false;
    }
    return true;
}

bool AlarmIOEventXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmIOEvent& event) const
{
    if (!node) return false;

    event.setEventId(frame::intProperty(node, "EventId", 0, "AlarmIOEventXml::parseDomainXmlNode get EventId failed "));
    event.setPolicyId(
        frame::intProperty(node, "PolicyId", 0, "AlarmIOEventXml::parseDomainXmlNode get PolicyId failed "));
    event.setAlarmInId(
        frame::intProperty(node, "AlarmInId", 0, "AlarmIOEventXml::parseDomainXmlNode get AlarmInId failed "));
    event.setAlarmIOEnableFlag(frame::flagProperty(
        node, "AlarmIOEnableFlag", false, "AlarmIOEventXml::parseDomainXmlNode get AlarmIOEnableFlag failed "));
    event.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "AlarmIOEventXml::parseDomainXmlNode get DeviceId failed "));

    event.setAlarmOutAction(
        frame::alarmOutActions(node, "AlarmOutActionList",
                               "AlarmIOEventXml::parseDomainXmlNode get AlarmOutActionListNode failed \n"
                               "AlarmIOEventXml::parseDomainXmlNode get AlarmOutActionNode failed "));
    event.setAlarmRecordAction(
        frame::alarmRecordActions(node, "AlarmRecordActionList",
                                  "AlarmIOEventXml::parseDomainXmlNode get AlarmRecordActionListNode failed \n"
                                  "AlarmIOEventXml::parseDomainXmlNode get AlarmRecordActionNode failed "));
    event.setAlarmPTZAction(
        frame::alarmPTZActions(node, "AlarmPTZActionList",
                               "AlarmIOEventXml::parseDomainXmlNode get AlarmPTZActionListNode failed \n"
                               "AlarmIOEventXml::parseDomainXmlNode get AlarmPTZActionNode failed "));
    event.setAlarmOverlayAction(frame::alarmOverlayActions(
        node, "AlarmOverlayActionList", "AlarmIOEventXml::parseDomainXmlNode get AlarmOverlayActionListNode failed "));

    SafePointer<DomainXmlNode> scheduleChild;
    ScheduleTimeParam schedule;
    if (!node->getConfigNode("ScheduleTimeParam", scheduleChild))
        std::puts("AlarmIOEventXml::parseDomainXmlNode get ScheduleTimeParamNode failed ");
    if (!ScheduleTimeParamXml().parseDomainXmlNode(scheduleChild, schedule))
        std::puts("AlarmIOEventXml::parseDomainXmlNode parse ScheduleTimeParamNode failed ");
    event.getScheduleTimeParam() = std::move(schedule);
    return true;
}

bool AlarmIOEventXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<AlarmIOEvent>& events) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmIOEvent event;
        if (!parseDomainXmlNode(frame::nodeOf(*item), event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}

bool AlarmIOEventXml::createXmlString(const AlarmIOEvent& event, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmIOEvent");
    return createDomainXmlNode(event, node) && DomainXmlNode::toString(node, text);
}

bool AlarmIOEventXml::createXmlString(const std::vector<AlarmIOEvent>& events, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmIOEventList");
    return createDomainXmlNode(events, node) && DomainXmlNode::toString(node, text);
}

bool AlarmIOEventXml::parseXmlString(const std::string& text, AlarmIOEvent& event) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmIOEvent", node) && parseDomainXmlNode(node, event);
}

bool AlarmIOEventXml::parseXmlString(const std::string& text, std::vector<AlarmIOEvent>& events) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmIOEventList", node) && parseDomainXmlNode(node, events);
}
