// <DeviceOSDInfo PositionOSDType="1">
//     <OSDPrintTime OSDType="7" Time="5" />
//     <OSDFontList>
//         <VideoOSDInfoEx ... />
//     </OSDFontList>
// </DeviceOSDInfo>
//
// The list bears the name of the fonts' list and holds texts: that is where the peers look for them.

#include "media/DeviceOSDInfoXml.h"

#include "core/Frame.h"
#include "media/OSDPrintTimeXml.h"
#include "media/VideoOSDInfoExXml.h"

#include <cstdio>
#include <utility>
#include <vector>

DeviceOSDInfoXml::DeviceOSDInfoXml() = default;

DeviceOSDInfoXml::~DeviceOSDInfoXml() = default;

bool DeviceOSDInfoXml::createDomainXmlNode(const DeviceOSDInfo& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    bool written = true;
    SafePointer<DomainXmlNode> time = frame::appendNode(node, "OSDPrintTime");
    if (!OSDPrintTimeXml().createDomainXmlNode(info.getOSDPrintTime(), time))
    {
        std::puts("DeviceOSDInfoXml::createDomainXmlNode NODE_OSD_PRINT_TIME failed 22222222");
        written = false;
    }

    if (!node->setProperty("PositionOSDType", info.getPositionOSDType()))
    {
        std::puts("DeviceOSDInfoXml::createDomainXmlNode ATTR_OSD_POSITION_TYPE failed 22222222");
        written = false;
    }

    SafePointer<DomainXmlNode> videos = frame::appendNode(node, "OSDFontList");
    if (!VideoOSDInfoExXml().createDomainXmlNode(info.getVideoOSDInfoExList(), videos))
    {
        std::puts("DeviceOSDInfoXml::createDomainXmlNode CONST_NODE_OSD_FONT_LIST failed 2222222222");
        written = false;
    }
    return written;
}

bool DeviceOSDInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DeviceOSDInfo& info) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> timeNode;
    if (!node->getConfigNode("OSDPrintTime", timeNode))
        std::puts("DeviceOSDInfoXml::parseDomainXmlNode NODE_OSD_PRINT_TIME failed 1111111111");
    OSDPrintTime time;
    if (!OSDPrintTimeXml().parseDomainXmlNode(timeNode, time))
    {
        // What the peers take for a device that sends none.
        std::puts("DeviceOSDInfoXml::parseDomainXmlNode NODE_OSD_PRINT_TIME failed 22222222");
        time.setOSDType(7);
        time.setTime(5);
    }
    info.setOSDPrintTime(time);

    info.setPositionOSDType(frame::intProperty(
        node, "PositionOSDType", 0, "DeviceOSDInfoXml::parseDomainXmlNode ATTR_OSD_POSITION_TYPE failed 22222222"));

    SafePointer<DomainXmlNode> videosNode;
    if (!node->getConfigNode("OSDFontList", videosNode))
        std::puts("DeviceOSDInfoXml::parseDomainXmlNode CONST_NODE_OSD_FONT_LIST failed 1111111111");
    std::vector<VideoOSDInfoEx> videos;
    if (!VideoOSDInfoExXml().parseDomainXmlNode(videosNode, videos))
        std::puts("DeviceOSDInfoXml::parseDomainXmlNode CONST_NODE_OSD_FONT_LIST failed 2222222222");
    info.getVideoOSDInfoExList() = std::move(videos);
    return true;
}

bool DeviceOSDInfoXml::createXmlString(const DeviceOSDInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceOSDInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool DeviceOSDInfoXml::parseXmlString(const std::string& text, DeviceOSDInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceOSDInfo", node) && parseDomainXmlNode(node, info);
}
