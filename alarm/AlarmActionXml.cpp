// <AlarmAction DeviceId="D1" MajorType="1" MinorType="2" SourceId="S1">
//     <AlarmPTZAction CameraId="1" PtzCmd="left" />
//     <AlarmOut AlarmOutId="1" />
//     <SendMailAction SendPictureFlag="1" CameraId="1" />
// </AlarmAction>
//
// The lists have no containers: each kind of item is found by its name, wherever it stands.

#include "alarm/AlarmActionXml.h"

#include "alarm/AlarmPTZActionExXml.h"
#include "alarm/SendMailActionXml.h"
#include "core/Frame.h"

#include <utility>
#include <vector>

AlarmActionXml::AlarmActionXml() = default;

AlarmActionXml::~AlarmActionXml() = default;

void AlarmActionXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool AlarmActionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmActionXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmAction", document_, node_) && parseXmlNode();
}

bool AlarmActionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

TiXmlElement& AlarmActionXml::writeElement(TiXmlNode& parent, const AlarmAction& action)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmAction");
    frame::setText(element, "DeviceId", action.getDeviceId());
    frame::setInt(element, "MajorType", action.getMajorType());
    frame::setInt(element, "MinorType", action.getMinorType());
    frame::setText(element, "SourceId", action.getSourceId());

    for (const AlarmPTZActionEx& ptz : action.getAlarmPTZList())
        AlarmPTZActionExXml::writeElement(element, ptz);

    for (const int output : action.getAlarmOutList())
        frame::setInt(frame::appendElement(element, "AlarmOut"), "AlarmOutId", output);

    SendMailActionXml::writeElement(element, action.getSendMailAction());
    return element;
}

bool AlarmActionXml::readElement(const TiXmlElement& element, AlarmAction& action)
{
    action.setDeviceId(frame::textOf(element, "DeviceId", action.getDeviceId()));
    action.setMajorType(frame::intOf(element, "MajorType", 0));
    action.setMinorType(frame::intOf(element, "MinorType", 0));
    action.setSourceId(frame::textOf(element, "SourceId", action.getSourceId()));

    const TiXmlElement* child = element.FirstChildElement("SendMailAction");
    if (child != nullptr)
    {
        SendMailAction mail;
        if (!SendMailActionXml::readElement(*child, mail)) return false;
        action.setSendMailAction(mail);
    }

    std::vector<AlarmPTZActionEx> ptzs;
    const TiXmlElement* item = element.FirstChildElement("AlarmPTZAction");
    for (; item != nullptr; item = item->NextSiblingElement("AlarmPTZAction"))
    {
        AlarmPTZActionEx ptz;
        if (!AlarmPTZActionExXml::readElement(*item, ptz)) return false;
        ptzs.push_back(std::move(ptz));
    }
    if (!ptzs.empty()) action.setAlarmPTZList(ptzs);

    std::vector<int> outputs;
    item = element.FirstChildElement("AlarmOut");
    for (; item != nullptr; item = item->NextSiblingElement("AlarmOut"))
        outputs.push_back(frame::intOf(*item, "AlarmOutId", 0));
    if (!outputs.empty()) action.setAlarmOutList(outputs);
    return true;
}
