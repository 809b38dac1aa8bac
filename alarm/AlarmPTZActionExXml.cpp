// <AlarmPTZAction CameraId="1" PtzCmd="left" />

#include "alarm/AlarmPTZActionExXml.h"

#include "core/Frame.h"

AlarmPTZActionExXml::AlarmPTZActionExXml() = default;

AlarmPTZActionExXml::~AlarmPTZActionExXml() = default;

void AlarmPTZActionExXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool AlarmPTZActionExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmPTZActionExXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmPTZAction", document_, node_) && parseXmlNode();
}

bool AlarmPTZActionExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

TiXmlElement& AlarmPTZActionExXml::writeElement(TiXmlNode& parent, const AlarmPTZActionEx& action)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmPTZAction");
    frame::setInt(element, "CameraId", action.getCameraId());
    frame::setText(element, "PtzCmd", action.getPtzCmd());
    return element;
}

bool AlarmPTZActionExXml::readElement(const TiXmlElement& element, AlarmPTZActionEx& action)
{
    action.setCameraId(frame::intOf(element, "CameraId", 0));
    action.setPtzCmd(frame::textOf(element, "PtzCmd", action.getPtzCmd()));
    return true;
}
