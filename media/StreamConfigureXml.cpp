// <StreamConfigList>
//     <StreamConfig streamId="1" streamName="main" videoWidth="1920" videoHeight="1080" frameRate="12.5"
//                   bitRateType="1" bitRate="4096" quality="4" IFrameInterval="50" IFrameIntervalUnit="1"
//                   videoEncoderType="3" audioEncoderType="2" resolutionId="6" />
// </StreamConfigList>
//
// "IFrameInterval" and its unit begin with a capital letter, alone among these names.

#include "media/StreamConfigureXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"

#include <utility>

StreamConfigureXml::StreamConfigureXml() = default;

StreamConfigureXml::~StreamConfigureXml() = default;

bool StreamConfigureXml::createDomainXmlNode(const std::vector<StreamConfigure>& streams,
                                             SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const StreamConfigure& stream : streams)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "StreamConfig");
        item->setProperty("streamId", stream.getStreamId());
        item->setProperty("streamName", stream.getStreamName());
        item->setProperty("videoWidth", stream.getVideoWidth());
        item->setProperty("videoHeight", stream.getVideoHeight());
        item->setProperty("frameRate", frame::doubleText(stream.getFrameRate()).characters);
        item->setProperty("bitRateType", stream.getBitRateType());
        item->setProperty("bitRate", stream.getBitRate());
        item->setProperty("quality", stream.getQuality());
        item->setProperty("IFrameInterval", stream.getIFrameInterval());
        item->setProperty("IFrameIntervalUnit", stream.getIFrameIntervalUnit());
        item->setProperty("videoEncoderType", stream.getVideoEncoderType());
        item->setProperty("audioEncoderType", stream.getAudioEncoderType());
        item->setProperty("resolutionId", stream.getResolutionId());
    }
    return true;
}

bool StreamConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                            std::vector<StreamConfigure>& streams) const
{
    if (!node) return false;

    TiXmlElement* element = frame::firstChild(node);
    for (; element != nullptr; element = element->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*element);
        StreamConfigure stream;
        stream.setStreamId(frame::intProperty(item, "streamId", stream.getStreamId()));
        stream.setStreamName(frame::textProperty(item, "streamName", stream.getStreamName()));
        stream.setVideoWidth(frame::intProperty(item, "videoWidth", stream.getVideoWidth()));
        stream.setVideoHeight(frame::intProperty(item, "videoHeight", stream.getVideoHeight()));
        stream.setFrameRate(frame::doubleProperty(item, "frameRate", stream.getFrameRate()));
        stream.setBitRateType(frame::intProperty(item, "bitRateType", stream.getBitRateType()));
        stream.setBitRate(frame::intProperty(item, "bitRate", stream.getBitRate()));
        stream.setQuality(frame::intProperty(item, "quality", stream.getQuality()));
        stream.setIFrameInterval(frame::intProperty(item, "IFrameInterval", stream.getIFrameInterval()));
        stream.setIFrameIntervalUnit(frame::intProperty(item, "IFrameIntervalUnit", stream.getIFrameIntervalUnit()));
        stream.setVideoEncoderType(frame::intProperty(item, "videoEncoderType", stream.getVideoEncoderType()));
        stream.setAudioEncoderType(frame::intProperty(item, "audioEncoderType", stream.getAudioEncoderType()));
        stream.setResolutionId(frame::intProperty(item, "resolutionId", stream.getResolutionId()));
        streams.push_back(std::move(stream));
    }
    return true;
}

bool StreamConfigureXml::createXmlString(const std::vector<StreamConfigure>& streams, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("StreamConfigList");
    return createDomainXmlNode(streams, node) && DomainXmlNode::toString(node, text);
}

bool StreamConfigureXml::parseXmlString(const std::string& text, std::vector<StreamConfigure>& streams) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "StreamConfigList", node) && parseDomainXmlNode(node, streams);
}
