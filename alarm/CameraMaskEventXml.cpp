// <CameraMaskEvent DetectType="1" EventId="1" PolicyId="1" DeviceId="D1" CameraId="1">
//     <AlarmOutActionList>
//         <AlarmOutAction ... />
//     </AlarmOutActionList>
//     <AlarmRecordActionList />
//     <AlarmPTZActionList />
//     <AlarmOverlayActionList />
// </CameraMaskEvent>

#include "alarm/CameraMaskEventXml.h"

#include "alarm/PolicySteps.h"
#include "core/Frame.h"

CameraMaskEventXml::CameraMaskEventXml() = default;

CameraMaskEventXml::~CameraMaskEventXml() = default;

void CameraMaskEventXml::createXmlNode()
{
    writeElement(document_, event_);
}

bool CameraMaskEventXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CameraMaskEventXml::parseXmlString()
{
    return frame::parseRoot(text_, "CameraMaskEvent", document_, node_) && parseXmlNode();
}

bool CameraMaskEventXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, event_);
}

TiXmlElement& CameraMaskEventXml::writeElement(TiXmlNode& parent, const CameraMaskEvent& event)
{
    TiXmlElement& element = frame::appendElement(parent, "CameraMaskEvent");
    frame::setInt(element, "DetectType", event.getDetectType());
    frame::setInt(element, "EventId", event.getEventId());
    frame::setInt(element, "PolicyId", event.getPolicyId());
    frame::setText(element, "DeviceId", event.getDeviceId());
    frame::setInt(element, "CameraId", event.getCameraId());

    frame::writeActions(element, "AlarmOutActionList", event.getAlarmOutAction());
    frame::writeActions(element, "AlarmRecordActionList", event.getAlarmRecordAction());
    frame::writeActions(element, "AlarmPTZActionList", event.getAlarmPTZAction());
    frame::writeActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
    return element;
}

bool CameraMaskEventXml::readElement(const TiXmlElement& element, CameraMaskEvent& event)
{
    event.setDetectType(frame::intOf(element, "DetectType", 0));
    event.setEventId(frame::intOf(element, "EventId", 0));
    event.setPolicyId(frame::intOf(element, "PolicyId", 0));
    event.setDeviceId(frame::textOf(element, "DeviceId", ""));
    event.setCameraId(frame::intOf(element, "CameraId", 0));

    if (!frame::readActions(element, "AlarmOutActionList", event.getAlarmOutAction())) return false;
    if (!frame::readActions(element, "AlarmRecordActionList", event.getAlarmRecordAction())) return false;
    if (!frame::readActions(element, "AlarmPTZActionList", event.getAlarmPTZAction())) return false;
    return frame::readActions(element, "AlarmOverlayActionList", event.getAlarmOverlayAction());
}
