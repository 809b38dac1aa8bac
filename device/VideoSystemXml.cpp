// <VideoSystemList>
//     <VideoSystem VideoSystemId="1" VideoSystemName="PAL" />
// </VideoSystemList>

#include "device/VideoSystemXml.h"

#include "core/Frame.h"

#include <utility>

VideoSystemXml::VideoSystemXml() = default;

VideoSystemXml::~VideoSystemXml() = default;

void VideoSystemXml::createXmlNode()
{
    writeElement(document_, system_);
}

bool VideoSystemXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoSystemXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoSystem", document_, node_) && parseXmlNode();
}

bool VideoSystemXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, system_);
}

TiXmlElement& VideoSystemXml::writeElement(TiXmlNode& parent, const VideoSystem& system)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoSystem");
    frame::setInt(element, "VideoSystemId", system.getVideoSystemId());
    frame::setText(element, "VideoSystemName", system.getVideoSystemName());
    return element;
}

bool VideoSystemXml::readElement(const TiXmlElement& element, VideoSystem& system)
{
    system.setVideoSystemId(frame::intOf(element, "VideoSystemId", 0));
    system.setVideoSystemName(frame::textOf(element, "VideoSystemName", ""));
    return true;
}

bool VideoSystemXml::createDomainXmlNode(const VideoSystem& system, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("VideoSystemId", system.getVideoSystemId());
    node->setProperty("VideoSystemName", system.getVideoSystemName());
    return true;
}

bool VideoSystemXml::createDomainXmlNode(const std::vector<VideoSystem>& systems,
                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const VideoSystem& system : systems)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "VideoSystem");
        if (!createDomainXmlNode(system, item)) return false;
    }
    return true;
}

bool VideoSystemXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoSystem& system) const
{
    if (!node) return false;

    system.setVideoSystemId(
        frame::intProperty(node, "VideoSystemId", 0, "VideoSystemXml::parseDomainXmlNode get VideoSystemId failed "));
    system.setVideoSystemName(frame::textProperty(node, "VideoSystemName", "",
                                                  "VideoSystemXml::parseDomainXmlNode get VideoSystemName failed "));
    return true;
}

bool VideoSystemXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<VideoSystem>& systems) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoSystem system;
        if (!parseDomainXmlNode(frame::nodeOf(*item), system)) return false;
        systems.push_back(std::move(system));
    }
    return true;
}

bool VideoSystemXml::createXmlString(const VideoSystem& system, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoSystem");
    return createDomainXmlNode(system, node) && DomainXmlNode::toString(node, text);
}

bool VideoSystemXml::createXmlString(const std::vector<VideoSystem>& systems, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoSystemList");
    return createDomainXmlNode(systems, node) && DomainXmlNode::toString(node, text);
}

bool VideoSystemXml::parseXmlString(const std::string& text, VideoSystem& system) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoSystem", node) && parseDomainXmlNode(node, system);
}

bool VideoSystemXml::parseXmlString(const std::string& text, std::vector<VideoSystem>& systems) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoSystemList", node) && parseDomainXmlNode(node, systems);
}
