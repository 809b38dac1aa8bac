// <VideoResolution VideoHeight="1080" VideoWidth="1920" ResolutionName="1080P" />

#include "device/VideoResolutionXml.h"

#include "core/Frame.h"

#include <utility>
#include <vector>

VideoResolutionXml::VideoResolutionXml() = default;

VideoResolutionXml::~VideoResolutionXml() = default;

void VideoResolutionXml::createXmlNode()
{
    writeElement(document_, resolution_);
}

bool VideoResolutionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoResolutionXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoResolution", document_, node_) && parseXmlNode();
}

bool VideoResolutionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, resolution_);
}

TiXmlElement& VideoResolutionXml::writeElement(TiXmlNode& parent, const VideoResolution& resolution)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoResolution");
    frame::setInt(element, "VideoHeight", resolution.getVideoHeight());
    frame::setInt(element, "VideoWidth", resolution.getVideoWidth());
    frame::setText(element, "ResolutionName", resolution.getResolutionName());
    return element;
}

bool VideoResolutionXml::readElement(const TiXmlElement& element, VideoResolution& resolution)
{
    resolution.setVideoHeight(frame::intOf(element, "VideoHeight", resolution.getVideoHeight()));
    resolution.setVideoWidth(frame::intOf(element, "VideoWidth", resolution.getVideoWidth()));
    resolution.setResolutionName(frame::textOf(element, "ResolutionName", resolution.getResolutionName()));
    return true;
}

void VideoResolutionXml::writeList(TiXmlNode& parent, const char* container,
                                   const std::vector<VideoResolution>& resolutions)
{
    TiXmlElement& list = frame::appendElement(parent, container);
    for (const VideoResolution& resolution : resolutions)
        writeElement(list, resolution);
}

bool VideoResolutionXml::readList(const TiXmlElement& parent, const char* container,
                                  std::vector<VideoResolution>& resolutions)
{
    const TiXmlElement* item = frame::firstItem(parent, container, "VideoResolution");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoResolution resolution;
        if (!readElement(*item, resolution)) return false;
        resolutions.push_back(std::move(resolution));
    }
    return true;
}

bool VideoResolutionXml::createDomainXmlNode(const VideoResolution& resolution, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("VideoHeight", resolution.getVideoHeight());
    node->setProperty("VideoWidth", resolution.getVideoWidth());
    node->setProperty("ResolutionName", resolution.getResolutionName());
    return true;
}

bool VideoResolutionXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, VideoResolution& resolution) const
{
    if (!node) return false;

    resolution.setVideoHeight(
        frame::intProperty(node, "VideoHeight", 0, "VideoResolutionXml::parseDomainXmlNode get VideoHeight failed "));
    resolution.setVideoWidth(
        frame::intProperty(node, "VideoWidth", 0, "VideoResolutionXml::parseDomainXmlNode get VideoWidth failed "));
    resolution.setResolutionName(frame::textProperty(
        node, "ResolutionName", "", "VideoResolutionXml::parseDomainXmlNode get ResolutionName failed "));
    return true;
}

bool VideoResolutionXml::createXmlString(const VideoResolution& resolution, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoResolution");
    return createDomainXmlNode(resolution, node) && DomainXmlNode::toString(node, text);
}

bool VideoResolutionXml::parseXmlString(const std::string& text, VideoResolution& resolution) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoResolution", node) && parseDomainXmlNode(node, resolution);
}
