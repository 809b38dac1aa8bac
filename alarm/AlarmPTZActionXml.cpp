// <AlarmPTZAction EventTypeId="2" DeviceId="D1" CameraId="1" ComId="1" PtzId="3" PtzOperationCmd="left"
//                 PtzOperationCmdLen="4" Reserve="0" />
//
// The node reader goes in the order of its lines.

#include "alarm/AlarmPTZActionXml.h"

#include "core/Frame.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>

AlarmPTZActionXml::AlarmPTZActionXml() = default;

AlarmPTZActionXml::~AlarmPTZActionXml() = default;

void AlarmPTZActionXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool AlarmPTZActionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmPTZActionXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmPTZAction", document_, node_) && parseXmlNode();
}

bool AlarmPTZActionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

TiXmlElement& AlarmPTZActionXml::writeElement(TiXmlNode& parent, const AlarmPTZAction& action)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmPTZAction");
    frame::setInt(element, "EventTypeId", action.getEventTypeId());
    frame::setText(element, "DeviceId", action.getDeviceId());
    frame::setInt(element, "CameraId", action.getCameraId());
    frame::setInt(element, "ComId", action.getComId());
    frame::setInt(element, "PtzId", action.getPtzId());
    frame::setText(element, "PtzOperationCmd", action.getPtzOperationCmd());
    frame::setInt(element, "PtzOperationCmdLen", action.getPtzOperationCmdLen());
    frame::setInt(element, "Reserve", action.getReserve());
    return element;
}

bool AlarmPTZActionXml::readElement(const TiXmlElement& element, AlarmPTZAction& action)
{
    action.setEventTypeId(frame::intOf(element, "EventTypeId", 0));
    action.setDeviceId(frame::textOf(element, "DeviceId", ""));
    action.setCameraId(frame::intOf(element, "CameraId", 0));
    action.setComId(frame::intOf(element, "ComId", 0));
    action.setPtzId(frame::intOf(element, "PtzId", 0));

    const char* command = frame::attributeOf(element, "PtzOperationCmd");
    if (command == nullptr || frame::attributeOf(element, "PtzOperationCmdLen") == nullptr) command = "";
    action.setPtzOperationCmd(command, static_cast<int>(std::strlen(command)));

    action.setReserve(frame::intOf(element, "Reserve", action.getReserve()));
    return true;
}

bool AlarmPTZActionXml::createDomainXmlNode(const AlarmPTZAction& action, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EventTypeId", action.getEventTypeId());
    node->setProperty("DeviceId", action.getDeviceId());
    node->setProperty("CameraId", action.getCameraId());
    node->setProperty("ComId", action.getComId());
    node->setProperty("PtzId", action.getPtzId());
    node->setProperty("PtzOperationCmd", action.getPtzOperationCmd());
    node->setProperty("PtzOperationCmdLen", action.getPtzOperationCmdLen());
    node->setProperty("Reserve", action.getReserve());
    return true;
}

bool AlarmPTZActionXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmPTZAction& action) const
{
    if (!node) return false;

    action.setCameraId(
        frame::intProperty(node, "CameraId", 0, "AlarmPTZActionXml::parseDomainXmlNode CameraId failed"));
    action.setComId(frame::intProperty(node, "ComId", 0, "AlarmPTZActionXml::parseDomainXmlNode ComId failed"));
    action.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "AlarmPTZActionXml::parseDomainXmlNode DeviceId failed"));
    action.setEventTypeId(
        frame::intProperty(node, "EventTypeId", 0, "AlarmPTZActionXml::parseDomainXmlNode EventTypeId failed"));
    action.setPtzId(frame::intProperty(node, "PtzId", 0, "AlarmPTZActionXml::parseDomainXmlNode PtzId failed"));

    const int length =
        frame::intProperty(node, "PtzOperationCmdLen", 0, "AlarmPTZActionXml::parseDomainXmlNode CmdLen failed");
    const std::string command =
        frame::textProperty(node, "PtzOperationCmd", "", "AlarmPTZActionXml::parseDomainXmlNode OperationCmd failed");
    if (!action.setPtzOperationCmd(command.c_str(), std::min(length, static_cast<int>(command.size()))))
        std::puts("AlarmPTZActionXml::parseDomainXmlNode setPtzOperationCmd failed ");

    // The line is that of the command's length, as the peers print it.
    action.setReserve(frame::intProperty(node, "Reserve", 0, "AlarmPTZActionXml::parseDomainXmlNode CmdLen failed"));
    return true;
}

bool AlarmPTZActionXml::createXmlString(const AlarmPTZAction& action, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmPTZAction");
    return createDomainXmlNode(action, node) && DomainXmlNode::toString(node, text);
}

bool AlarmPTZActionXml::parseXmlString(const std::string& text, AlarmPTZAction& action) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmPTZAction", node) && parseDomainXmlNode(node, action);
}
