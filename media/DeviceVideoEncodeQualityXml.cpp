// <DeviceVideoEncodeQuality CameraID="1">
//     <VideoEncodeQualityList>
//         <VideoEncodeQuality ... />
//     </VideoEncodeQualityList>
// </DeviceVideoEncodeQuality>

#include "media/DeviceVideoEncodeQualityXml.h"

#include "core/Frame.h"
#include "media/VideoEncodeQualityXml.h"

#include <utility>

DeviceVideoEncodeQualityXml::DeviceVideoEncodeQualityXml() = default;

DeviceVideoEncodeQualityXml::~DeviceVideoEncodeQualityXml() = default;

bool DeviceVideoEncodeQualityXml::createDomainXmlNode(const DeviceVideoEncodeQuality& quality,
                                                      SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraID", quality.getCameraID());

    const VideoEncodeQualityXml streamCodec;
    SafePointer<DomainXmlNode> streams = frame::appendNode(node, "VideoEncodeQualityList");
    for (const VideoEncodeQuality& stream : quality.getVideoEncodeQualityList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(streams, "VideoEncodeQuality");
        if (!streamCodec.createDomainXmlNode(stream, item)) return false;
    }
    return true;
}

bool DeviceVideoEncodeQualityXml::createDomainXmlNode(const std::vector<DeviceVideoEncodeQuality>& qualities,
                                                      SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const DeviceVideoEncodeQuality& quality : qualities)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DeviceVideoEncodeQuality");
        if (!createDomainXmlNode(quality, item)) return false;
    }
    return true;
}

bool DeviceVideoEncodeQualityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                     DeviceVideoEncodeQuality& quality) const
{
    if (!node) return false;

    quality.setCameraID(frame::intProperty(node, "CameraID", 0,
                                           "DeviceVideoEncodeQualityXml::parseDomainXmlNode get CameraID failed "));

    const VideoEncodeQualityXml streamCodec;
    std::vector<VideoEncodeQuality> streams;
    SafePointer<DomainXmlNode> container;
    TiXmlElement* item =
        node->getConfigNode("VideoEncodeQualityList", container) ? frame::firstChild(container) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoEncodeQuality stream;
        if (!streamCodec.parseDomainXmlNode(frame::nodeOf(*item), stream)) return false;
        streams.push_back(stream);
    }
    quality.getVideoEncodeQualityList() = std::move(streams);
    return true;
}

bool DeviceVideoEncodeQualityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                     std::vector<DeviceVideoEncodeQuality>& qualities) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DeviceVideoEncodeQuality quality;
        if (!parseDomainXmlNode(frame::nodeOf(*item), quality)) return false;
        qualities.push_back(std::move(quality));
    }
    return true;
}

bool DeviceVideoEncodeQualityXml::createXmlString(const DeviceVideoEncodeQuality& quality, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceVideoEncodeQuality");
    return createDomainXmlNode(quality, node) && DomainXmlNode::toString(node, text);
}

bool DeviceVideoEncodeQualityXml::createXmlString(const std::vector<DeviceVideoEncodeQuality>& qualities,
                                                  std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceVideoEncodeQualityList");
    return createDomainXmlNode(qualities, node) && DomainXmlNode::toString(node, text);
}

bool DeviceVideoEncodeQualityXml::parseXmlString(const std::string& text, DeviceVideoEncodeQuality& quality) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceVideoEncodeQuality", node) && parseDomainXmlNode(node, quality);
}

bool DeviceVideoEncodeQualityXml::parseXmlString(const std::string& text,
                                                 std::vector<DeviceVideoEncodeQuality>& qualities) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceVideoEncodeQualityList", node) && parseDomainXmlNode(node, qualities);
}
