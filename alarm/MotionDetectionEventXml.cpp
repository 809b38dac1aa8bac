// <MotionDetectionEvent EventId="1" PolicyId="1" DeviceId="D1" CameraId="1" MotionDetectionEnableFlag="true">
//     <MotionDetectionParam ... />
//     <ScheduleTimeParam ... />
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmRecordActionList />
//     <AlarmPTZActionList />
//     <AlarmOverlayActionList />
// </MotionDetectionEvent>

#include "alarm/MotionDetectionEventXml.h"

#include "alarm/MotionDetectionParamXml.h"
#include "alarm/PolicySteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <utility>

MotionDetectionEventXml::MotionDetectionEventXml() = default;

MotionDetectionEventXml::~MotionDetectionEventXml() = default;

void MotionDetectionEventXml::createXmlNode()
{
    writeElement(document_, event_);
}

bool MotionDetectionEventXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MotionDetectionEventXml::parseXmlString()
{
    return frame::parseRoot(text_, "MotionDetectionEvent", document_, node_) && parseXmlNode();
}

bool MotionDetectionEventXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, event_);
}

TiXmlElement& MotionDetectionEventXml::writeElement(TiXmlNode& parent, const MotionDetectionEvent& event)
{
    TiXmlElement& element = frame::appendElement(parent, "MotionDetectionEvent");
    frame::setInt(element, "EventId", event.getEventId());
    frame::setInt(element, "PolicyId", event.getPolicyId());
    frame::setText(element, "DeviceId", event.getDeviceId());
    frame::setInt(element, "CameraId", event.getCameraId());
    frame::setFlag(element, "MotionDetectionEnableFlag", event.getMotionDetectionEnableFlag());

    MotionDetectionParamXml::writeElement(element, event.getMotionDetectionParam());
    ScheduleTimeParamXml::writeElement(element, event.getScheduleTimeParam());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmRecordActionList", event.getAlarmRecordAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    frame::writeActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
    return element;
}

bool MotionDetectionEventXml::readElement(const TiXmlElement& element, MotionDetectionEvent& event)
{
    event.setEventId(frame::intOf(element, "EventId", 0));
    event.setPolicyId(frame::intOf(element, "PolicyId", 0));
    event.setDeviceId(frame::textOf(element, "DeviceId", ""));
    event.setCameraId(frame::intOf(element, "CameraId", 0));
    event.setMotionDetectionEnableFlag(frame::flagOf(element, "MotionDetectionEnableFlag", false));

    const TiXmlElement* paramChild = element.FirstChildElement("MotionDetectionParam");
    if (paramChild != nullptr)
    {
        MotionDetectionParam param;
        if (!MotionDetectionParamXml::readElement(*paramChild, param)) return false;
        event.getMotionDetectionParam() = std::move(param);
    }

    if (!frame::readSchedule(element, event.getScheduleTimeParam())) return false;
    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmRecordActionList", event.getAlarmRecordAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction())) return false;
    return frame::readActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}
