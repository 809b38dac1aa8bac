// <OSDPrintTime OSDType="7" Time="5" />

#include "media/OSDPrintTimeXml.h"

#include "core/Frame.h"

OSDPrintTimeXml::OSDPrintTimeXml() = default;

OSDPrintTimeXml::~OSDPrintTimeXml() = default;

bool OSDPrintTimeXml::createDomainXmlNode(const OSDPrintTime& time, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    return node->setProperty("OSDType", time.getOSDType()) && node->setProperty("Time", time.getTime());
}

bool OSDPrintTimeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OSDPrintTime& time) const
{
    if (!node) return false;

    // Each line holds a line feed of its own, and so an empty line follows it on the peers' consoles.
    time.setTime(frame::intProperty(node, "Time", 0, "OSDPrintTimeXml::parseDomainXmlNode ATTR_TIME  failed \n"));
    time.setOSDType(
        frame::intProperty(node, "OSDType", 0, "OSDPrintTimeXml::parseDomainXmlNode ATTR_OSD_TYPE  failed \n"));
    return true;
}

bool OSDPrintTimeXml::createXmlString(const OSDPrintTime& time, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OSDPrintTime");
    return createDomainXmlNode(time, node) && DomainXmlNode::toString(node, text);
}

bool OSDPrintTimeXml::parseXmlString(const std::string& text, OSDPrintTime& time) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "OSDPrintTime", node) && parseDomainXmlNode(node, time);
}
