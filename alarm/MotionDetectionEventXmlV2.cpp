// <MotionDetectionEventV2 MotionDetectionEventV2LEN="1" EventId="1" PolicyId="1" DeviceId="D1" CameraId="1"
//                         MotionDetectionEnableFlag="1">
//     <MotionDetectionParamV2 ... />
//     <ScheduleTimeParam ... />
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmRecordActionList />
//     <AlarmPTZActionList />
//     <AlarmOverlayActionList />
// </MotionDetectionEventV2>
//
// A document has such an element for each event, side by side. A text of the node form has them inside an element of
// the same name, and "true" or "false" for the flag.

#include "alarm/MotionDetectionEventXmlV2.h"

#include "alarm/MotionDetectionParamXmlV2.h"
#include "alarm/PolicySteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>
#include <vector>

namespace
{

void writeEvent(TiXmlNode& parent, const MotionDetectionEventV2& event, std::size_t count)
{
    TiXmlElement& element = frame::appendElement(parent, "MotionDetectionEventV2");
    frame::setInt(element, "MotionDetectionEventV2LEN", static_cast<int>(count));
    frame::setInt(element, "EventId", event.getEventId());
    frame::setInt(element, "PolicyId", event.getPolicyId());
    frame::setText(element, "DeviceId", event.getDeviceId());
    frame::setInt(element, "CameraId", event.getCameraId());
    frame::setInt(element, "MotionDetectionEnableFlag", event.getMotionDetectionEnableFlag() ? 1 : 0);

    MotionDetectionParamXmlV2::writeElement(element, event.getMotionDetectionParam());
    ScheduleTimeParamXml::writeElement(element, event.getScheduleTimeParam());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmRecordActionList", event.getAlarmRecordAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    frame::writeActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}

bool readEvent(const TiXmlElement& element, MotionDetectionEventV2& event)
{
    event.setEventId(frame::intOf(element, "EventId", 0));
    event.setPolicyId(frame::intOf(element, "PolicyId", 0));
    event.setDeviceId(frame::textOf(element, "DeviceId", ""));
    event.setCameraId(frame::intOf(element, "CameraId", 0));
    event.setMotionDetectionEnableFlag(frame::intOf(element, "MotionDetectionEnableFlag", 0) != 0);

    const TiXmlElement* paramChild = element.FirstChildElement("MotionDetectionParamV2");
    if (paramChild != nullptr)
    {
        MotionDetectionParamV2 param;
        if (!MotionDetectionParamXmlV2::readElement(*paramChild, param)) return false;
        event.getMotionDetectionParam() = std::move(param);
    }

    if (!frame::readSchedule(element, event.getScheduleTimeParam())) return false;
    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmRecordActionList", event.getAlarmRecordAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction())) return false;
    return frame::readActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}

} // namespace

MotionDetectionEventXmlV2::MotionDetectionEventXmlV2() = default;

MotionDetectionEventXmlV2::~MotionDetectionEventXmlV2() = default;

void MotionDetectionEventXmlV2::createXmlNode()
{
    writeElement(document_, events_);
}

bool MotionDetectionEventXmlV2::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MotionDetectionEventXmlV2::parseXmlString()
{
    return frame::parseRoot(text_, "MotionDetectionEventV2", document_, node_) && parseXmlNode();
}

bool MotionDetectionEventXmlV2::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, events_);
}

void MotionDetectionEventXmlV2::writeElement(TiXmlNode& parent, const std::vector<MotionDetectionEventV2>& events)
{
    for (const MotionDetectionEventV2& event : events)
        writeEvent(parent, event, events.size());
}

bool MotionDetectionEventXmlV2::readElement(const TiXmlElement& element, std::vector<MotionDetectionEventV2>& events)
{
    for (const TiXmlElement* item : frame::repeatedElements(element, "MotionDetectionEventV2LEN"))
    {
        MotionDetectionEventV2 event;
        if (!readEvent(*item, event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}

bool MotionDetectionEventXmlV2::createDomainXmlNode(const std::vector<MotionDetectionEventV2>& events,
                                                    SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const MotionDetectionEventV2& event : events)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "MotionDetectionEventV2");
        if (!createItem(event, events.size(), item)) return false;
    }
    return true;
}

bool MotionDetectionEventXmlV2::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                   std::vector<MotionDetectionEventV2>& events) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        MotionDetectionEventV2 event;
        if (!parseDomainXmlNode(frame::nodeOf(*item), event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}

bool MotionDetectionEventXmlV2::createXmlString(const std::vector<MotionDetectionEventV2>& events,
                                                std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MotionDetectionEventV2");
    return createDomainXmlNode(events, node) && DomainXmlNode::toString(node, text);
}

bool MotionDetectionEventXmlV2::parseXmlString(const std::string& text,
                                               std::vector<MotionDetectionEventV2>& events) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "MotionDetectionEventV2", node) && parseDomainXmlNode(node, events);
}

bool MotionDetectionEventXmlV2::createItem(const MotionDetectionEventV2& event, std::size_t count,
                                           SafePointer<DomainXmlNode>& node) const
{
    node->setProperty("MotionDetectionEventV2LEN", static_cast<int>(count));
    node->setProperty("EventId", event.getEventId());
    node->setProperty("PolicyId", event.getPolicyId());
    node->setProperty("DeviceId", event.getDeviceId());
    node->setProperty("CameraId", event.getCameraId());
    node->setProperty("MotionDetectionEnableFlag", event.getMotionDetectionEnableFlag());

    SafePointer<DomainXmlNode> param = frame::appendNode(node, "MotionDetectionParamV2");
    SafePointer<DomainXmlNode> schedule = frame::appendNode(node, "ScheduleTimeParam");
    SafePointer<DomainXmlNode> outs = frame::appendNode(node, "AlarmOutActionList");
    SafePointer<DomainXmlNode> records = frame::appendNode(node, "AlarmRecordActionList");
    SafePointer<DomainXmlNode> ptzs = frame::appendNode(node, "AlarmPTZActionList");
    SafePointer<DomainXmlNode> overlays = frame::appendNode(node, "AlarmOverlayActionList");
    return createDomainMotionDetectionParamV2XmlNode(event.getMotionDetectionParam(), param) &&
           createDomainScheduleTimeParamXmlNode(event.getScheduleTimeParam(), schedule) &&
           createDomainAlarmOutActionListXmlNode(event.getAlarmOutAction(), outs) &&
           createDomainAlarmRecordActionListXmlNode(event.getAlarmRecordAction(), records) &&
           createDomainAlarmPTZActionListXmlNode(event.getAlarmPTZAction(), ptzs) &&
           createDomainAlarmOverlayActionListXmlNode(event.getAlarmOverlayAction(), overlays);
}

bool MotionDetectionEventXmlV2::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                   MotionDetectionEventV2& event) const
{
    if (!node) return false;

    event.setEventId(frame::intProperty(node, "EventId", 0));
    event.setPolicyId(frame::intProperty(node, "PolicyId", 0));
    event.setDeviceId(frame::textProperty(node, "DeviceId", ""));

    // The peers test this one the wrong way round, and rely on it: a number that is there is reported as missing and
    // gives camera 1, whatever it says; one that is missing gives 0 in silence.
    int cameraId = 0;
    if (node->getProperty("CameraId", cameraId))
    {
        std::puts("MotionDetectionEventXmlV2::parseDomainXmlNode node = ATTR_CAMERA_ID failed ");
        cameraId = 1;
    }
    event.setCameraId(cameraId);

    event.setMotionDetectionEnableFlag(frame::flagProperty(node, "MotionDetectionEnableFlag", false));

    SafePointer<DomainXmlNode> paramChild;
    MotionDetectionParamV2 param;
    node->getConfigNode("MotionDetectionParamV2", paramChild);
    if (!parseDomainMotionDetectionParamV2XmlNode(paramChild, param))
        std::puts("MotionDetectionEventXmlV2  parseDomainMotionDetectionParamV2XmlNode failed ");
    event.getMotionDetectionParam() = std::move(param);

    SafePointer<DomainXmlNode> scheduleChild;
    ScheduleTimeParam schedule;
    node->getConfigNode("ScheduleTimeParam", scheduleChild);
    if (!parseDomainScheduleTimeParamXmlNode(scheduleChild, schedule))
        std::puts("MotionDetectionEventXmlV2  parseDomainScheduleTimeParamXmlNode failed ");
    event.getScheduleTimeParam() = std::move(schedule);

    // The lines of the lists tell how it went, and so are printed in any case.
    SafePointer<DomainXmlNode> outList;
    std::vector<AlarmOutAction> outs;
    node->getConfigNode("AlarmOutActionList", outList);
    const bool outsRead = parseDomainAlarmOutActionListXmlNode(outList, outs);
    std::printf("MotionDetectionEventXmlV2::parseDomainAlarmOutActionListXmlNode boolRet = %d \n", outsRead ? 1 : 0);
    event.getAlarmOutAction() = std::move(outs);

    SafePointer<DomainXmlNode> recordList;
    std::vector<AlarmRecordAction> records;
    node->getConfigNode("AlarmRecordActionList", recordList);
    const bool recordsRead = parseDomainAlarmRecordActionListXmlNode(recordList, records);
    std::printf("MotionDetectionEventXmlV2::parseDomainAlarmRecordActionListXmlNode boolRet = %d \n",
                recordsRead ? 1 : 0);
    event.getAlarmRecordAction() = std::move(records);

    SafePointer<DomainXmlNode> ptzList;
    std::vector<AlarmPTZAction> ptzs;
    node->getConfigNode("AlarmPTZActionList", ptzList);
    const bool ptzsRead = parseDomainAlarmPTZActionListXmlNode(ptzList, ptzs);
    std::printf("MotionDetectionEventXmlV2::parseDomainAlarmPTZActionListXmlNode boolRet = %d \n", ptzsRead ? 1 : 0);
    event.getAlarmPTZAction() = std::move(ptzs);

    SafePointer<DomainXmlNode> overlayList;
    std::vector<AlarmOverlayAction> overlays;
    node->getConfigNode("AlarmOverlayActionList", overlayList);
    const bool overlaysRead = parseDomainAlarmOverlayActionListXmlNode(overlayList, overlays);
    std::printf("MotionDetectionEventXmlV2::parseDomainAlarmOverlayActionListXmlNode boolRet = %d \n",
                overlaysRead ? 1 : 0);
    event.getAlarmOverlayAction() = std::move(overlays);
    return true;
}

bool MotionDetectionEventXmlV2::createDomainMotionDetectionParamV2XmlNode(const MotionDetectionParamV2& param,
                                                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;
    node->cleanChildren();
    return MotionDetectionParamXmlV2().createDomainXmlNode(param, node);
}

bool MotionDetectionEventXmlV2::createDomainScheduleTimeParamXmlNode(const ScheduleTimeParam& schedule,
                                                                     SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;
    node->cleanChildren();
    return ScheduleTimeParamXml().createDomainXmlNode(schedule, node);
}

bool MotionDetectionEventXmlV2::createDomainAlarmOutActionListXmlNode(const std::vector<AlarmOutAction>& actions,
                                                                      SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;
    node->cleanChildren();
    return frame::writeActions(node, actions);
}

bool MotionDetectionEventXmlV2::createDomainAlarmRecordActionListXmlNode(const std::vector<AlarmRecordAction>& actions,
                                                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;
    node->cleanChildren();
    return frame::writeActions(node, actions);
}

bool MotionDetectionEventXmlV2::createDomainAlarmPTZActionListXmlNode(const std::vector<AlarmPTZAction>& actions,
                                                                      SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;
    node->cleanChildren();
    return frame::writeActions(node, actions);
}

bool MotionDetectionEventXmlV2::createDomainAlarmOverlayActionListXmlNode(
    const std::vector<AlarmOverlayAction>& actions, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;
    node->cleanChildren();
    return frame::writeActions(node, actions);
}

bool MotionDetectionEventXmlV2::parseDomainMotionDetectionParamV2XmlNode(const SafePointer<DomainXmlNode>& node,
                                                                         MotionDetectionParamV2& param) const
{
    return MotionDetectionParamXmlV2().parseDomainXmlNode(node, param);
}

bool MotionDetectionEventXmlV2::parseDomainScheduleTimeParamXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                    ScheduleTimeParam& schedule) const
{
    return ScheduleTimeParamXml().parseDomainXmlNode(node, schedule);
}

bool MotionDetectionEventXmlV2::parseDomainAlarmOutActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                     std::vector<AlarmOutAction>& actions) const
{
    return frame::readActions(node, actions);
}

bool MotionDetectionEventXmlV2::parseDomainAlarmRecordActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                        std::vector<AlarmRecordAction>& actions) const
{
    return frame::readActions(node, actions);
}

bool MotionDetectionEventXmlV2::parseDomainAlarmPTZActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                     std::vector<AlarmPTZAction>& actions) const
{
    return frame::readActions(node, actions);
}

bool MotionDetectionEventXmlV2::parseDomainAlarmOverlayActionListXmlNode(const SafePointer<DomainXmlNode>& node,
                                                                         std::vector<AlarmOverlayAction>& actions) const
{
    return frame::readActions(node, actions);
}
