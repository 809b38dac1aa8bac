// <VideoCaptureConfigureList>
//     <VideoCaptureConfigure resolutionId="6" Mode="1" CaptureId="1" VIPId="2" VideoWidth="1920" VideoHeight="1080"
//                            UserVideoHeight="720" UserVideoWidth="1280" Interlace="0" DeviceName="input"
//                            BufferNumber="4" Reserve="" CaptureNum="1" />
// </VideoCaptureConfigureList>

#include "media/VideoCaptureConfigureXml.h"

#include "core/Frame.h"

#include <utility>

VideoCaptureConfigureXml::VideoCaptureConfigureXml() = default;

VideoCaptureConfigureXml::~VideoCaptureConfigureXml() = default;

bool VideoCaptureConfigureXml::createDomainXmlNode(const VideoCaptureConfigure& capture,
                                                   SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("resolutionId", capture.getResolutionId());
    node->setProperty("Mode", capture.getMode());
    node->setProperty("CaptureId", capture.getCaptureId());
    node->setProperty("VIPId", capture.getVIPId());
    node->setProperty("VideoWidth", capture.getVideoWidth());
    node->setProperty("VideoHeight", capture.getVideoHeight());
    // The pair of the user stands the other way round than the one before.
    node->setProperty("UserVideoHeight", capture.getUserVideoHeight());
    node->setProperty("UserVideoWidth", capture.getUserVideoWidth());
    node->setProperty("Interlace", capture.getInterlace());
    node->setProperty("DeviceName", capture.getDeviceName());
    node->setProperty("BufferNumber", capture.getBufferNumber());
    node->setProperty("Reserve", capture.getReserve());
    node->setProperty("CaptureNum", capture.getCaptureNum());
    return true;
}

bool VideoCaptureConfigureXml::createDomainXmlNode(const std::vector<VideoCaptureConfigure>& captures,
                                                   SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const VideoCaptureConfigure& capture : captures)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "VideoCaptureConfigure");
        if (!createDomainXmlNode(capture, item)) return false;
    }
    return true;
}

bool VideoCaptureConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  VideoCaptureConfigure& capture) const
{
    if (!node) return false;

    // The line begins the name with a capital letter, the attribute does not.
    capture.setResolutionId(frame::intProperty(
        node, "resolutionId", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get ResolutionId failed "));
    capture.setMode(
        frame::intProperty(node, "Mode", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get Mode failed "));
    capture.setCaptureId(
        frame::intProperty(node, "CaptureId", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get CaptureId failed "));
    capture.setVIPId(
        frame::intProperty(node, "VIPId", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get VIPId failed "));
    capture.setVideoWidth(frame::intProperty(node, "VideoWidth", 0,
                                             "VideoCaptureConfigureXml::parseDomainXmlNode get VideoWidth failed "));
    capture.setVideoHeight(frame::intProperty(node, "VideoHeight", 0,
                                              "VideoCaptureConfigureXml::parseDomainXmlNode get VideoHeight failed "));
    capture.setUserVideoHeight(frame::intProperty(
        node, "UserVideoHeight", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get UserVideoHeight failed "));
    capture.setUserVideoWidth(frame::intProperty(
        node, "UserVideoWidth", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get UserVideoWidth failed "));
    capture.setInterlace(
        frame::intProperty(node, "Interlace", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get Interlace failed "));
    capture.setDeviceName(frame::textProperty(node, "DeviceName", "",
                                              "VideoCaptureConfigureXml::parseDomainXmlNode get DeviceName failed "));
    capture.setBufferNumber(frame::intProperty(
        node, "BufferNumber", 0, "VideoCaptureConfigureXml::parseDomainXmlNode get BufferNumber failed "));
    capture.setReserve(
        frame::textProperty(node, "Reserve", "", "VideoCaptureConfigureXml::parseDomainXmlNode get Reserve failed "));
    capture.setCaptureNum(frame::intProperty(node, "CaptureNum", 0,
                                             "VideoCaptureConfigureXml::parseDomainXmlNode get CaptureNum failed "));
    return true;
}

bool VideoCaptureConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  std::vector<VideoCaptureConfigure>& captures) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        if (item->ValueStr() != "VideoCaptureConfigure") continue;

        VideoCaptureConfigure capture;
        if (!parseDomainXmlNode(frame::nodeOf(*item), capture)) return false;
        captures.push_back(std::move(capture));
    }
    return true;
}

bool VideoCaptureConfigureXml::createXmlString(const VideoCaptureConfigure& capture, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoCaptureConfigure");
    return createDomainXmlNode(capture, node) && DomainXmlNode::toString(node, text);
}

bool VideoCaptureConfigureXml::createXmlString(const std::vector<VideoCaptureConfigure>& captures,
                                               std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoCaptureConfigureList");
    return createDomainXmlNode(captures, node) && DomainXmlNode::toString(node, text);
}

bool VideoCaptureConfigureXml::parseXmlString(const std::string& text, VideoCaptureConfigure& capture) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoCaptureConfigure", node) && parseDomainXmlNode(node, capture);
}

bool VideoCaptureConfigureXml::parseXmlString(const std::string& text,
                                              std::vector<VideoCaptureConfigure>& captures) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoCaptureConfigureList", node) && parseDomainXmlNode(node, captures);
}
