// <AlarmOverlayAction EventTypeId="2" DeviceId="D1" CameraId="1">
//     <OSDInfo OSDType="1" OSDEnableFlag="true" TopX="0" TopY="0" Info="Gate" />
// </AlarmOverlayAction>
//
// The node reader goes in the order of its lines.

#include "alarm/AlarmOverlayActionXml.h"

#include "core/Frame.h"
#include "media/OSDInfoXml.h"

#include <cstdio>
#include <utility>

AlarmOverlayActionXml::AlarmOverlayActionXml() = default;

AlarmOverlayActionXml::~AlarmOverlayActionXml() = default;

void AlarmOverlayActionXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool AlarmOverlayActionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmOverlayActionXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmOverlayAction", document_, node_) && parseXmlNode();
}

bool AlarmOverlayActionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

TiXmlElement& AlarmOverlayActionXml::writeElement(TiXmlNode& parent, const AlarmOverlayAction& action)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmOverlayAction");
    frame::setInt(element, "EventTypeId", action.getEventTypeId());
    frame::setText(element, "DeviceId", action.getDeviceId());
    frame::setInt(element, "CameraId", action.getCameraId());

    OSDInfoXml::writeElement(element, action.getOSDInfo());
    return element;
}

bool AlarmOverlayActionXml::readElement(const TiXmlElement& element, AlarmOverlayAction& action)
{
    action.setEventTypeId(frame::intOf(element, "EventTypeId", 0));
    action.setDeviceId(frame::textOf(element, "DeviceId", ""));
    action.setCameraId(frame::intOf(element, "CameraId", 0));

    const TiXmlElement* child = element.FirstChildElement("OSDInfo");
    if (child != nullptr)
    {
        OSDInfo info;
        if (!OSDInfoXml::readElement(*child, info)) return false;
        action.getOSDInfo() = std::move(info);
    }
    return true;
}

bool AlarmOverlayActionXml::createDomainXmlNode(const AlarmOverlayAction& action,
                                                SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EventTypeId", action.getEventTypeId());
    node->setProperty("DeviceId", action.getDeviceId());
    node->setProperty("CameraId", action.getCameraId());

    SafePointer<DomainXmlNode> child = frame::appendNode(node, "OSDInfo");
    return OSDInfoXml().createDomainXmlNode(action.getOSDInfo(), child);
}

bool AlarmOverlayActionXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOverlayAction& action) const
{
    if (!node) return false;

    action.setCameraId(
        frame::intProperty(node, "CameraId", 0, "AlarmOverlayActionXml::parseDomainXmlNode get CameraId failed"));
    action.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "AlarmOverlayActionXml::parseDomainXmlNode get DeviceId failed"));
    action.setEventTypeId(
        frame::intProperty(node, "EventTypeId", 0, "AlarmOverlayActionXml::parseDomainXmlNode get EventTypeId failed"));

    SafePointer<DomainXmlNode> child;
    OSDInfo info;
    if (!node->getConfigNode("OSDInfo", child))
        std::puts("AlarmOverlayActionXml::parseDomainXmlNode get OSDInfoNode failed");
    if (!OSDInfoXml().parseDomainXmlNode(child, info))
        std::puts("AlarmOverlayActionXml::parseDomainXmlNode parse OSDInfoNode failed");
    action.getOSDInfo() = std::move(info);
    return true;
}

bool AlarmOverlayActionXml::createXmlString(const AlarmOverlayAction& action, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmOverlayAction");
    return createDomainXmlNode(action, node) && DomainXmlNode::toString(node, text);
}

bool AlarmOverlayActionXml::parseXmlString(const std::string& text, AlarmOverlayAction& action) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmOverlayAction", node) && parseDomainXmlNode(node, action);
}
