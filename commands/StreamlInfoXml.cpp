// <StreamlInfo CameraId="1" StreamId="2" />

#include "commands/StreamlInfoXml.h"

#include "core/Frame.h"

bool StreamlInfoXml::createDomainXmlNode(const StreamlInfo& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", info.getCameraId());
    node->setProperty("StreamId", info.getStreamId());
    return true;
}

bool StreamlInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, StreamlInfo& info) const
{
    if (!node) return false;

    info.setCameraId(
        frame::intProperty(node, "CameraId", 0, "StreamlInfoXml::parseDomainXmlNode get CameraId failed "));
    info.setStreamId(frame::intProperty(node, "StreamId", 0));
    return true;
}

bool StreamlInfoXml::createXmlString(const StreamlInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("StreamlInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool StreamlInfoXml::parseXmlString(const std::string& text, StreamlInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "StreamlInfo", node) && parseDomainXmlNode(node, info);
}
