// <AVStreamParamList>
//     <AVStreamParam CameraId="1" StreamId="2" StreamName="main" VideoHeight="1080" VideoWidth="1920" FrameRate="25"
//                    BitRateType="1" BitRate="4096" Quality="4" IFrameInterval="50" IFrameIntervalUnit="1"
//                    VideoEncoderType="3" AudioEncoderType="2" />
// </AVStreamParamList>

#include "media/AVStreamParamXml.h"

#include "core/Frame.h"

#include <utility>

AVStreamParamXml::AVStreamParamXml() = default;

AVStreamParamXml::~AVStreamParamXml() = default;

void AVStreamParamXml::createXmlNode()
{
    writeElement(document_, streams_);
}

bool AVStreamParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AVStreamParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "AVStreamParamList", document_, node_) && parseXmlNode();
}

bool AVStreamParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, streams_);
}

TiXmlElement& AVStreamParamXml::writeElement(TiXmlNode& parent, const std::vector<AVStreamParam>& streams)
{
    TiXmlElement& element = frame::appendElement(parent, "AVStreamParamList");
    for (const AVStreamParam& stream : streams)
    {
        TiXmlElement& item = frame::appendElement(element, "AVStreamParam");
        frame::setInt(item, "CameraId", stream.getCameraId());
        frame::setInt(item, "StreamId", stream.getStreamId());
        frame::setText(item, "StreamName", stream.getStreamName());
        frame::setInt(item, "VideoHeight", stream.getVideoHeight());
        frame::setInt(item, "VideoWidth", stream.getVideoWidth());
        frame::setInt(item, "FrameRate", stream.getFrameRate());
        frame::setInt(item, "BitRateType", stream.getBitRateType());
        frame::setInt(item, "BitRate", stream.getBitRate());
        frame::setInt(item, "Quality", stream.getQuality());
        frame::setInt(item, "IFrameInterval", stream.getIFrameInterval());
        frame::setInt(item, "IFrameIntervalUnit", stream.getIFrameIntervalUnit());
        frame::setInt(item, "VideoEncoderType", stream.getVideoEncoderType());
        frame::setInt(item, "AudioEncoderType", stream.getAudioEncoderType());
    }
    return element;
}

bool AVStreamParamXml::readElement(const TiXmlElement& element, std::vector<AVStreamParam>& streams)
{
    const TiXmlElement* item = frame::firstItem(element, "AVStreamParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AVStreamParam stream;
        stream.setCameraId(frame::intOf(*item, "CameraId", stream.getCameraId()));
        stream.setStreamId(frame::intOf(*item, "StreamId", stream.getStreamId()));
        stream.setStreamName(frame::textOf(*item, "StreamName", stream.getStreamName()));
        stream.setVideoHeight(frame::intOf(*item, "VideoHeight", stream.getVideoHeight()));
        stream.setVideoWidth(frame::intOf(*item, "VideoWidth", stream.getVideoWidth()));
        stream.setFrameRate(frame::intOf(*item, "FrameRate", stream.getFrameRate()));
        stream.setBitRateType(frame::intOf(*item, "BitRateType", stream.getBitRateType()));
        stream.setBitRate(frame::intOf(*item, "BitRate", stream.getBitRate()));
        stream.setQuality(frame::intOf(*item, "Quality", stream.getQuality()));
        stream.setIFrameInterval(frame::intOf(*item, "IFrameInterval", stream.getIFrameInterval()));
        // Peers that send no unit count in this one.
        stream.setIFrameIntervalUnit(frame::intOf(*item, "IFrameIntervalUnit", 1));
        stream.setVideoEncoderType(frame::intOf(*item, "VideoEncoderType", stream.getVideoEncoderType()));
        stream.setAudioEncoderType(frame::intOf(*item, "AudioEncoderType", stream.getAudioEncoderType()));
        streams.push_back(std::move(stream));
    }
    return true;
}
