// <OcclusionDetectionEvent DeviceId="D1" CameraId="1" OcclusionDetectionEnableFlag="true">
//     <OcclusionDetectionParam ... />
//     <ScheduleTimeParam ... />
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmPTZActionList />
// </OcclusionDetectionEvent>
//
// A document leaves what it does not name, unlike those of all other events: peers keep what they have.

#include "alarm/OcclusionDetectionEventXml.h"

#include "alarm/OcclusionDetectionParamXml.h"
#include "alarm/PolicySteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <utility>

namespace
{

bool writeItem(const OcclusionDetectionEvent& event, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("DeviceId", event.getDeviceId());
    node->setProperty("CameraId", event.getCameraId());
    node->setProperty("OcclusionDetectionEnableFlag", event.getOcclusionDetectionEnableFlag());

    SafePointer<DomainXmlNode> param = frame::appendNode(node, "OcclusionDetectionParam");
    if (!OcclusionDetectionParamXml().createDomainXmlNode(event.getOcclusionDetectionParam(), param)) return false;

    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleTimeParam");
    if (!ScheduleTimeParamXml().createDomainXmlNode(event.getScheduleTimeParam(), schedule)) return false;

    SafePointer<DomainXmlNode> outs = frame::appendNode(node, "AlarmOutActionList");
    if (!frame::writeActions(outs, event.getAlarmOutAction())) return false;

    SafePointer<DomainXmlNode> ptzs = frame::appendNode(node, "AlarmPTZActionList");
    return frame::writeActions(ptzs, event.getAlarmPTZAction());
}

void readItem(const SafePointer<DomainXmlNode>& node, OcclusionDetectionEvent& event)
{
    event.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    event.setCameraId(frame::intProperty(node, "CameraId", 0));
    event.setOcclusionDetectionEnableFlag(frame::flagProperty(node, "OcclusionDetectionEnableFlag", false));

    SafePointer<DomainXmlNode> paramChild;
    OcclusionDetectionParam param;
    if (node->getConfigNode("OcclusionDetectionParam", paramChild))
        OcclusionDetectionParamXml().parseDomainXmlNode(paramChild, param);
    event.getOcclusionDetectionParam() = std::move(param);

    SafePointer<DomainXmlNode> scheduleChild;
    ScheduleTimeParam schedule;
    if (node->getConfigNode("ScheduleTimeParam", scheduleChild))
        ScheduleTimeParamXml().parseDomainXmlNode(scheduleChild, schedule);
    event.getScheduleTimeParam() = std::move(schedule);

    event.setAlarmOutAction(frame::alarmOutActions(node, "AlarmOutActionList"));
    event.setAlarmPTZAction(frame::alarmPTZActions(node, "AlarmPTZActionList"));
}

} // namespace

OcclusionDetectionEventXml::OcclusionDetectionEventXml() = default;

OcclusionDetectionEventXml::~OcclusionDetectionEventXml() = default;

void OcclusionDetectionEventXml::createXmlNode()
{
    writeElement(document_, event_);
}

bool OcclusionDetectionEventXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool OcclusionDetectionEventXml::parseXmlString()
{
    return frame::parseRoot(text_, "OcclusionDetectionEvent", document_, node_) && parseXmlNode();
}

bool OcclusionDetectionEventXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, event_);
}

TiXmlElement& OcclusionDetectionEventXml::writeElement(TiXmlNode& parent, const OcclusionDetectionEvent& event)
{
    TiXmlElement& element = frame::appendElement(parent, "OcclusionDetectionEvent");
    frame::setText(element, "DeviceId", event.getDeviceId());
    frame::setInt(element, "CameraId", event.getCameraId());
    frame::setFlag(element, "OcclusionDetectionEnableFlag", event.getOcclusionDetectionEnableFlag());

    OcclusionDetectionParamXml::writeElement(element, event.getOcclusionDetectionParam());
    ScheduleTimeParamXml::writeElement(element, event.getScheduleTimeParam());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    return element;
}

bool OcclusionDetectionEventXml::readElement(const TiXmlElement& element, OcclusionDetectionEvent& event)
{
    event.setDeviceId(frame::textOf(element, "DeviceId", event.getDeviceId()));
    event.setCameraId(frame::intOf(element, "CameraId", event.getCameraId()));
    event.setOcclusionDetectionEnableFlag(
        frame::flagOf(element, "OcclusionDetectionEnableFlag", event.getOcclusionDetectionEnableFlag()));

    const TiXmlElement* paramChild = element.FirstChildElement("OcclusionDetectionParam");
    if (paramChild != nullptr)
    {
        OcclusionDetectionParam param;
        if (!OcclusionDetectionParamXml::readElement(*paramChild, param)) return false;
        event.getOcclusionDetectionParam() = std::move(param);
    }

    if (!frame::readSchedule(element, event.getScheduleTimeParam())) return false;
    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    return frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
}

bool OcclusionDetectionEventXml::createDomainXmlNode(const std::vector<OcclusionDetectionEvent>& events,
                                                     SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const OcclusionDetectionEvent& event : events)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "OcclusionDetectionEvent");
        if (!writeItem(event, item)) return false;
    }
    return true;
}

bool OcclusionDetectionEventXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                    std::vector<OcclusionDetectionEvent>& events) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        OcclusionDetectionEvent event;
        readItem(frame::nodeOf(*item), event);
        events.push_back(std::move(event));
    }
    return true;
}

bool OcclusionDetectionEventXml::createXmlString(const std::vector<OcclusionDetectionEvent>& events,
                                                 std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OcclusionDetectionEventList");
    return createDomainXmlNode(events, node) && DomainXmlNode::toString(node, text);
}

bool OcclusionDetectionEventXml::parseXmlString(const std::string& text,
                                                std::vector<OcclusionDetectionEvent>& events) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "OcclusionDetectionEventList", node) && parseDomainXmlNode(node, events);
}
