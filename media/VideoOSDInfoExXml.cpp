// <VideoOSDInfoExList>
//     <VideoOSDInfoEx CameraId="1">
//         <OSDInfoList>
//             <OSDInfo OSDType="1" OSDEnableFlag="true" X="12.5" Y="0.25" Info="North gate" />
//         </OSDInfoList>
//     </VideoOSDInfoEx>
// </VideoOSDInfoExList>

#include "media/VideoOSDInfoExXml.h"

#include "core/Frame.h"
#include "media/OSDInfoExXml.h"

#include <utility>

VideoOSDInfoExXml::VideoOSDInfoExXml() = default;

VideoOSDInfoExXml::~VideoOSDInfoExXml() = default;

void VideoOSDInfoExXml::createXmlNode()
{
    writeElement(document_, videos_);
}

bool VideoOSDInfoExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoOSDInfoExXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoOSDInfoExList", document_, node_) && parseXmlNode();
}

bool VideoOSDInfoExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, videos_);
}

TiXmlElement& VideoOSDInfoExXml::writeElement(TiXmlNode& parent, const std::vector<VideoOSDInfoEx>& videos)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoOSDInfoExList");
    for (const VideoOSDInfoEx& video : videos)
    {
        TiXmlElement& item = frame::appendElement(element, "VideoOSDInfoEx");
        frame::setInt(item, "CameraId", video.getCameraId());

        TiXmlElement& infos = frame::appendElement(item, "OSDInfoList");
        for (const OSDInfoEx& info : video.getOSDInfoList())
            OSDInfoExXml::writeElement(infos, info);
    }
    return element;
}

bool VideoOSDInfoExXml::readElement(const TiXmlElement& element, std::vector<VideoOSDInfoEx>& videos)
{
    const TiXmlElement* item = frame::firstItem(element, "VideoOSDInfoEx");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoOSDInfoEx video;
        video.setCameraId(frame::intOf(*item, "CameraId", video.getCameraId()));

        const TiXmlElement* infoItem = frame::firstItem(*item, "OSDInfoList", "OSDInfo");
        for (; infoItem != nullptr; infoItem = infoItem->NextSiblingElement())
        {
            OSDInfoEx info;
            if (!OSDInfoExXml::readElement(*infoItem, info)) return false;
            video.getOSDInfoList().push_back(std::move(info));
        }
        videos.push_back(std::move(video));
    }
    return true;
}

bool VideoOSDInfoExXml::createDomainXmlNode(const std::vector<VideoOSDInfoEx>& videos,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    const OSDInfoExXml infoCodec;
    for (const VideoOSDInfoEx& video : videos)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "VideoOSDInfoEx");
        if (!item->setProperty("CameraId", video.getCameraId())) return false;

        SafePointer<DomainXmlNode> infos = frame::appendNode(item, "OSDInfoList");
        for (const OSDInfoEx& info : video.getOSDInfoList())
        {
            SafePointer<DomainXmlNode> infoItem = frame::appendNode(infos, "OSDInfo");
            if (!infoCodec.createDomainXmlNode(info, infoItem)) return false;
        }
    }
    return true;
}

bool VideoOSDInfoExXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<VideoOSDInfoEx>& videos) const
{
    if (!node) return false;

    const OSDInfoExXml infoCodec;
    TiXmlElement* element = frame::firstChild(node);
    for (; element != nullptr; element = element->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*element);
        VideoOSDInfoEx video;
        video.setCameraId(frame::intProperty(item, "CameraId", 0));

        SafePointer<DomainXmlNode> infos;
        TiXmlElement* infoItem = item->getConfigNode("OSDInfoList", infos) ? frame::firstChild(infos) : nullptr;
        for (; infoItem != nullptr; infoItem = infoItem->NextSiblingElement())
        {
            OSDInfoEx info;
            if (!infoCodec.parseDomainXmlNode(frame::nodeOf(*infoItem), info)) return false;
            video.getOSDInfoList().push_back(std::move(info));
        }
        videos.push_back(std::move(video));
    }
    return true;
}

bool VideoOSDInfoExXml::createXmlString(const std::vector<VideoOSDInfoEx>& videos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoOSDInfoExList");
    return createDomainXmlNode(videos, node) && DomainXmlNode::toString(node, text);
}

bool VideoOSDInfoExXml::parseXmlString(const std::string& text, std::vector<VideoOSDInfoEx>& videos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoOSDInfoExList", node) && parseDomainXmlNode(node, videos);
}
