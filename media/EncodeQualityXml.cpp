// <EncodeQuality CameraId="1">
//     <VideoEncodeQuality ... />
//     <AudioEncodeQuality ... />
// </EncodeQuality>

#include "media/EncodeQualityXml.h"

#include "core/Frame.h"
#include "media/AudioEncodeQualityXml.h"
#include "media/VideoEncodeQualityXml.h"

#include <cstdio>

EncodeQualityXml::EncodeQualityXml() = default;

EncodeQualityXml::~EncodeQualityXml() = default;

void EncodeQualityXml::createXmlNode()
{
    writeElement(document_, quality_);
}

bool EncodeQualityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool EncodeQualityXml::parseXmlString()
{
    return frame::parseRoot(text_, "EncodeQuality", document_, node_) && parseXmlNode();
}

bool EncodeQualityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, quality_);
}

TiXmlElement& EncodeQualityXml::writeElement(TiXmlNode& parent, const EncodeQuality& quality)
{
    TiXmlElement& element = frame::appendElement(parent, "EncodeQuality");
    frame::setInt(element, "CameraId", quality.getCameraId());

    VideoEncodeQualityXml::writeElement(element, quality.getVideoEncodeQuality());
    AudioEncodeQualityXml::writeElement(element, quality.getAudioEncodeQuality());
    return element;
}

bool EncodeQualityXml::readElement(const TiXmlElement& element, EncodeQuality& quality)
{
    quality.setCameraId(frame::intOf(element, "CameraId", 0));

    const TiXmlElement* child = element.FirstChildElement("VideoEncodeQuality");
    if (child != nullptr)
    {
        VideoEncodeQuality video;
        if (!VideoEncodeQualityXml::readElement(*child, video)) return false;
        quality.setVideoEncodeQuality(video);
    }

    child = element.FirstChildElement("AudioEncodeQuality");
    if (child != nullptr)
    {
        AudioEncodeQuality audio;
        if (!AudioEncodeQualityXml::readElement(*child, audio)) return false;
        quality.setAudioEncodeQuality(audio);
    }
    return true;
}

bool EncodeQualityXml::createDomainXmlNode(const EncodeQuality& quality, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", quality.getCameraId());

    SafePointer<DomainXmlNode> video = frame::appendNode(node, "VideoEncodeQuality");
    if (!VideoEncodeQualityXml().createDomainXmlNode(quality.getVideoEncodeQuality(), video)) return false;
    SafePointer<DomainXmlNode> audio = frame::appendNode(node, "AudioEncodeQuality");
    return AudioEncodeQualityXml().createDomainXmlNode(quality.getAudioEncodeQuality(), audio);
}

bool EncodeQualityXml::createDomainXmlNode(const std::vector<EncodeQuality>& qualities,
                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const EncodeQuality& quality : qualities)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "EncodeQuality");
        if (!createDomainXmlNode(quality, item)) return false;
    }
    return true;
}

bool EncodeQualityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, EncodeQuality& quality) const
{
    if (!node) return false;

    quality.setCameraId(
        frame::intProperty(node, "CameraId", 0, "EncodeQualityXml::parseDomainXmlNode get CameraId failed "));

    SafePointer<DomainXmlNode> videoNode;
    if (!node->getConfigNode("VideoEncodeQuality", videoNode))
        std::puts("EncodeQualityXml::parseDomainXmlNode get objVideoEncodeQualityNode failed ");
    VideoEncodeQuality video;
    if (!VideoEncodeQualityXml().parseDomainXmlNode(videoNode, video))
        std::puts("EncodeQualityXml::parseDomainXmlNode parse objVideoEncodeQualityNodefailed ");
    quality.setVideoEncodeQuality(video);

    SafePointer<DomainXmlNode> audioNode;
    if (!node->getConfigNode("AudioEncodeQuality", audioNode))
        std::puts("EncodeQualityXml::parseDomainXmlNode get objAudioEncodeQualityNode failed ");
    AudioEncodeQuality audio;
    if (!AudioEncodeQualityXml().parseDomainXmlNode(audioNode, audio))
        std::puts("EncodeQualityXml::parseDomainXmlNode parse objAudioEncodeQualityNodefailed ");
    quality.setAudioEncodeQuality(audio);
    return true;
}

bool EncodeQualityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                          std::vector<EncodeQuality>& qualities) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        EncodeQuality quality;
        if (!parseDomainXmlNode(frame::nodeOf(*item), quality)) return false;
        qualities.push_back(quality);
    }
    return true;
}

bool EncodeQualityXml::createXmlString(const EncodeQuality& quality, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("EncodeQuality");
    return createDomainXmlNode(quality, node) && DomainXmlNode::toString(node, text);
}

bool EncodeQualityXml::createXmlString(const std::vector<EncodeQuality>& qualities, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("EncodeQualityList");
    return createDomainXmlNode(qualities, node) && DomainXmlNode::toString(node, text);
}

bool EncodeQualityXml::parseXmlString(const std::string& text, EncodeQuality& quality) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "EncodeQuality", node) && parseDomainXmlNode(node, quality);
}

bool EncodeQualityXml::parseXmlString(const std::string& text, std::vector<EncodeQuality>& qualities) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "EncodeQualityList", node) && parseDomainXmlNode(node, qualities);
}
