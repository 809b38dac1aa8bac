// <DeviceAVStreamParam DeviceId="D1">
//     <AVStreamParamList>
//         <AVStreamParam CameraId="1" StreamId="2" StreamName="main" VideoHeight="1080" VideoWidth="1920"
//                        FrameRate="25" BitRateType="1" BitRate="4096" Quality="4" IFrameInterval="50"
//                        IFrameIntervalUnit="1" VideoEncoderType="3" AudioEncoderType="2" />
//     </AVStreamParamList>
// </DeviceAVStreamParam>

#include "media/DeviceAVStreamParamXml.h"

#include "core/Frame.h"

#include <utility>

DeviceAVStreamParamXml::DeviceAVStreamParamXml() = default;

DeviceAVStreamParamXml::~DeviceAVStreamParamXml() = default;

bool DeviceAVStreamParamXml::createXmlString(const DeviceAVStreamParam& device, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceAVStreamParam");
    return createDeviceAVStreamParamNode(device, node) && DomainXmlNode::toString(node, text);
}

bool DeviceAVStreamParamXml::createXmlString(const std::vector<DeviceAVStreamParam>& devices, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceAVStreamParamList");
    return createDeviceAVStreamParamListNode(devices, node) && DomainXmlNode::toString(node, text);
}

bool DeviceAVStreamParamXml::parseXmlString(const std::string& text, DeviceAVStreamParam& device) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceAVStreamParam", node) && parseDeviceAVStreamParam(node, device);
}

bool DeviceAVStreamParamXml::parseXmlString(const std::string& text, std::vector<DeviceAVStreamParam>& devices) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceAVStreamParamList", node) && parseDeviceAVStreamParamList(node, devices);
}

bool DeviceAVStreamParamXml::createAVStreamParamNode(const AVStreamParam& stream,
                                                     SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", stream.getCameraId());
    node->setProperty("StreamId", stream.getStreamId());
    node->setProperty("StreamName", stream.getStreamName());
    node->setProperty("VideoHeight", stream.getVideoHeight());
    node->setProperty("VideoWidth", stream.getVideoWidth());
    node->setProperty("FrameRate", stream.getFrameRate());
    node->setProperty("BitRateType", stream.getBitRateType());
    node->setProperty("BitRate", stream.getBitRate());
    node->setProperty("Quality", stream.getQuality());
    node->setProperty("IFrameInterval", stream.getIFrameInterval());
    node->setProperty("IFrameIntervalUnit", stream.getIFrameIntervalUnit());
    node->setProperty("VideoEncoderType", stream.getVideoEncoderType());
    node->setProperty("AudioEncoderType", stream.getAudioEncoderType());
    return true;
}

bool DeviceAVStreamParamXml::createAVStreamParamListNode(const std::vector<AVStreamParam>& streams,
                                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const AVStreamParam& stream : streams)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "AVStreamParam");
        if (!createAVStreamParamNode(stream, item)) return false;
    }
    return true;
}

bool DeviceAVStreamParamXml::createDeviceAVStreamParamNode(const DeviceAVStreamParam& device,
                                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", device.getDeviceId());

    SafePointer<DomainXmlNode> streams = frame::appendNode(node, "AVStreamParamList");
    return createAVStreamParamListNode(device.getAVStreamParamList(), streams);
}

bool DeviceAVStreamParamXml::createDeviceAVStreamParamListNode(const std::vector<DeviceAVStreamParam>& devices,
                                                               SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const DeviceAVStreamParam& device : devices)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DeviceAVStreamParam");
        if (!createDeviceAVStreamParamNode(device, item)) return false;
    }
    return true;
}

bool DeviceAVStreamParamXml::parseAVStreamParam(const SafePointer<DomainXmlNode>& node, AVStreamParam& stream) const
{
    if (!node) return false;

    int value = 0;
    if (!node->getProperty("CameraId", value)) return false;
    stream.setCameraId(value);
    if (!node->getProperty("StreamId", value)) return false;
    stream.setStreamId(value);
    std::string streamName;
    if (!node->getProperty("StreamName", streamName)) return false;
    stream.setStreamName(streamName);
    if (!node->getProperty("VideoHeight", value)) return false;
    stream.setVideoHeight(value);
    if (!node->getProperty("VideoWidth", value)) return false;
    stream.setVideoWidth(value);
    if (!node->getProperty("FrameRate", value)) return false;
    stream.setFrameRate(value);
    if (!node->getProperty("BitRateType", value)) return false;
    stream.setBitRateType(value);
    if (!node->getProperty("BitRate", value)) return false;
    stream.setBitRate(value);
    if (!node->getProperty("Quality", value)) return false;
    stream.setQuality(value);
    if (!node->getProperty("IFrameInterval", value)) return false;
    stream.setIFrameInterval(value);
    if (!node->getProperty("IFrameIntervalUnit", value)) return false;
    stream.setIFrameIntervalUnit(value);
    if (!node->getProperty("VideoEncoderType", value)) return false;
    stream.setVideoEncoderType(value);
    if (!node->getProperty("AudioEncoderType", value)) return false;
    stream.setAudioEncoderType(value);
    return true;
}

bool DeviceAVStreamParamXml::parseAVStreamParamList(const SafePointer<DomainXmlNode>& node,
                                                    std::vector<AVStreamParam>& streams) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        if (item->ValueStr() != "AVStreamParam") continue;

        AVStreamParam stream;
        if (!parseAVStreamParam(frame::nodeOf(*item), stream)) return false;
        streams.push_back(std::move(stream));
    }
    return true;
}

bool DeviceAVStreamParamXml::parseDeviceAVStreamParam(const SafePointer<DomainXmlNode>& node,
                                                      DeviceAVStreamParam& device) const
{
    if (!node) return false;

    std::string deviceId;
    if (!node->getProperty("DeviceId", deviceId)) return false;
    device.setDeviceId(deviceId);

    SafePointer<DomainXmlNode> container;
    std::vector<AVStreamParam> streams;
    if (!node->getConfigNode("AVStreamParamList", container) || !parseAVStreamParamList(container, streams))
        return false;
    device.getAVStreamParamList() = std::move(streams);
    return true;
}

bool DeviceAVStreamParamXml::parseDeviceAVStreamParamList(const SafePointer<DomainXmlNode>& node,
                                                          std::vector<DeviceAVStreamParam>& devices) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        if (item->ValueStr() != "DeviceAVStreamParam") continue;

        DeviceAVStreamParam device;
        if (!parseDeviceAVStreamParam(frame::nodeOf(*item), device)) return false;
        devices.push_back(std::move(device));
    }
    return true;
}
