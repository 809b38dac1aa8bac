// <VideoDisplay supportFlag="true" showip="false" captureId="1" inputMode="2" interPolation="1" displayVideoSystem="1"
//               VideoOutSwitchFlag="true">
//     <deviceNameList deviceName="fb0" description="first" />
//     <deviceNameList deviceName="fb1" description="second" />
// </VideoDisplay>
//
// "deviceNameList" bears the name of a list, yet there is one for each device.

#include "display/VideoDisplayConfigureXml.h"

#include "core/Frame.h"

#include <utility>

VideoDisplayConfigureXml::VideoDisplayConfigureXml() = default;

VideoDisplayConfigureXml::~VideoDisplayConfigureXml() = default;

bool VideoDisplayConfigureXml::createDomainXmlNode(const VideoDisplayConfigure& display,
                                                   SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("supportFlag", display.getSupportFlag());
    node->setProperty("showip", display.getShowIpFlag());
    node->setProperty("captureId", display.getCaptureId());
    node->setProperty("inputMode", display.getInputMode());
    node->setProperty("interPolation", display.getInterPolation());
    node->setProperty("displayVideoSystem", display.getDisplayVideoSystem());
    node->setProperty("VideoOutSwitchFlag", display.getVideoOutSwitchFlag());

    for (const VideoDisplayDeviceInfo& device : display.getVideoDisplayDeviceInfoList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "deviceNameList");
        item->setProperty("deviceName", device.getDeviceName());
        item->setProperty("description", device.getDescription());
    }
    return true;
}

bool VideoDisplayConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  VideoDisplayConfigure& display) const
{
    if (!node) return false;

    display.setSupportFlag(frame::flagProperty(node, "supportFlag", false));
    display.setShowIpFlag(frame::flagProperty(node, "showip", false));
    display.setCaptureId(frame::intProperty(node, "captureId", 0));
    display.setInputMode(frame::intProperty(node, "inputMode", 0));
    display.setInterPolation(frame::intProperty(node, "interPolation", 0));
    display.setDisplayVideoSystem(frame::intProperty(node, "displayVideoSystem", 0));
    display.setVideoOutSwitchFlag(frame::flagProperty(node, "VideoOutSwitchFlag", false));

    std::vector<VideoDisplayDeviceInfo> devices;
    TiXmlElement* element = frame::firstChild(node);
    for (; element != nullptr; element = element->NextSiblingElement())
    {
        if (element->ValueStr() != "deviceNameList") continue;

        const SafePointer<DomainXmlNode> item = frame::nodeOf(*element);
        VideoDisplayDeviceInfo device;
        device.setDeviceName(frame::textProperty(item, "deviceName", ""));
        device.setDescription(frame::textProperty(item, "description", ""));
        devices.push_back(std::move(device));
    }
    display.getVideoDisplayDeviceInfoList() = std::move(devices);
    return true;
}

bool VideoDisplayConfigureXml::createXmlString(const VideoDisplayConfigure& display, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoDisplay");
    return createDomainXmlNode(display, node) && DomainXmlNode::toString(node, text);
}

bool VideoDisplayConfigureXml::parseXmlString(const std::string& text, VideoDisplayConfigure& display) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoDisplay", node) && parseDomainXmlNode(node, display);
}
