// <AVStreamMulticastAddrList>
//     <AVStreamMulticastAddr DeviceId="D-17" CameraId="3" MulticastIP="239.192.0.17" MulticastProt="5004" />
// </AVStreamMulticastAddrList>
//
// "MulticastProt" is the peers' spelling.

#include "network/AVStreamMulticastAddrXml.h"

#include "core/Frame.h"

#include <cstdio>
#include <utility>

AVStreamMulticastAddrXml::AVStreamMulticastAddrXml() = default;

AVStreamMulticastAddrXml::~AVStreamMulticastAddrXml() = default;

void AVStreamMulticastAddrXml::createXmlNode()
{
    writeElement(document_, addresses_);
}

bool AVStreamMulticastAddrXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AVStreamMulticastAddrXml::parseXmlString()
{
    return frame::parseRoot(text_, "AVStreamMulticastAddrList", document_, node_) && parseXmlNode();
}

bool AVStreamMulticastAddrXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, addresses_);
}

TiXmlElement& AVStreamMulticastAddrXml::writeElement(TiXmlNode& parent,
                                                     const std::vector<AVStreamMulticastAddr>& addresses)
{
    TiXmlElement& element = frame::appendElement(parent, "AVStreamMulticastAddrList");
    for (const AVStreamMulticastAddr& address : addresses)
    {
        TiXmlElement& item = frame::appendElement(element, "AVStreamMulticastAddr");
        frame::setText(item, "DeviceId", address.getDeviceId());
        frame::setInt(item, "CameraId", address.getCameraId());
        frame::setText(item, "MulticastIP", address.getMulticastIP());
        frame::setInt(item, "MulticastProt", address.getMuticastProt());
    }
    return element;
}

bool AVStreamMulticastAddrXml::readElement(const TiXmlElement& element, std::vector<AVStreamMulticastAddr>& addresses)
{
    const TiXmlElement* item = frame::firstItem(element, "AVStreamMulticastAddr");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AVStreamMulticastAddr address;
        address.setDeviceId(frame::textOf(*item, "DeviceId", address.getDeviceId()));
        address.setCameraId(frame::intOf(*item, "CameraId", address.getCameraId()));
        address.setMulticastIP(frame::textOf(*item, "MulticastIP", address.getMulticastIP()));
        address.setMulticastProt(frame::intOf(*item, "MulticastProt", address.getMuticastProt()));
        addresses.push_back(std::move(address));
    }
    return true;
}

bool AVStreamMulticastAddrXml::createDomainXmlNode(const std::vector<AVStreamMulticastAddr>& addresses,
                                                   SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const AVStreamMulticastAddr& address : addresses)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "AVStreamMulticastAddr");
        item->setProperty("DeviceId", address.getDeviceId());
        item->setProperty("CameraId", address.getCameraId());
        item->setProperty("MulticastIP", address.getMulticastIP());
        item->setProperty("MulticastProt", address.getMuticastProt());
    }
    return true;
}

bool AVStreamMulticastAddrXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<AVStreamMulticastAddr>& addresses) const
{
    if (!node || node->getXmlNode() == nullptr) return false;

    TiXmlElement* item = node->getXmlNode()->FirstChildElement("AVStreamMulticastAddr");
    for (; item != nullptr; item = item->NextSiblingElement("AVStreamMulticastAddr"))
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        AVStreamMulticastAddr address;
        address.setDeviceId(frame::textProperty(child, "DeviceId", address.getDeviceId()));
        // Peers number their cameras from 1: a node without a number speaks of the first.
        address.setCameraId(frame::intProperty(
            child, "CameraId", 1, "AVStreamMulticastAddrXml::parseDomainXmlNode node = ATTR_CAMERA_ID failed "));
        address.setMulticastIP(frame::textProperty(child, "MulticastIP", address.getMulticastIP()));
        address.setMulticastProt(frame::intProperty(child, "MulticastProt", address.getMuticastProt()));
        addresses.push_back(std::move(address));
    }
    return true;
}

bool AVStreamMulticastAddrXml::createXmlString(const std::vector<AVStreamMulticastAddr>& addresses,
                                               std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AVStreamMulticastAddrList");
    return createDomainXmlNode(addresses, node) && DomainXmlNode::toString(node, text);
}

bool AVStreamMulticastAddrXml::parseXmlString(const std::string& text,
                                              std::vector<AVStreamMulticastAddr>& addresses) const
{
    std::printf("AVStreamMulticastAddrXml::parseXmlString  XmlString=%s \n", text.c_str());

    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AVStreamMulticastAddrList", node) && parseDomainXmlNode(node, addresses);
}
