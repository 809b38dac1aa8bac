// <VideoChannelStatistic CameraId="1" RecordStatus="1" CaptureStatus="0" ... BitRate="2096" />

#include "device/VideoChannelStatisticXml.h"

#include "core/Frame.h"

VideoChannelStatisticXml::VideoChannelStatisticXml() = default;

VideoChannelStatisticXml::~VideoChannelStatisticXml() = default;

void VideoChannelStatisticXml::createXmlNode()
{
    writeElement(document_, channel_);
}

bool VideoChannelStatisticXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoChannelStatisticXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoChannelStatistic", document_, node_) && parseXmlNode();
}

bool VideoChannelStatisticXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, channel_);
}

TiXmlElement& VideoChannelStatisticXml::writeElement(TiXmlNode& parent, const VideoChannelStatistic& channel)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoChannelStatistic");
    frame::setInt(element, "CameraId", channel.getCameraId());
    frame::setInt(element, "RecordStatus", channel.getRecordStatus());
    frame::setInt(element, "CaptureStatus", channel.getCaptureStatus());
    frame::setInt(element, "SignalStatus", channel.getSignalStatus());
    frame::setInt(element, "HardwareStatus", channel.getHardwareStatus());
    frame::setInt(element, "BitRate", channel.getBitRate());
    return element;
}

bool VideoChannelStatisticXml::readElement(const TiXmlElement& element, VideoChannelStatistic& channel)
{
    channel.setCameraId(frame::intOf(element, "CameraId", 0));
    channel.setRecordStatus(static_cast<std::uint8_t>(frame::intOf(element, "RecordStatus", 0)));
    channel.setCaptureStatus(static_cast<std::uint8_t>(frame::intOf(element, "CaptureStatus", 0)));
    channel.setSignalStatus(static_cast<std::uint8_t>(frame::intOf(element, "SignalStatus", 0)));
    channel.setHardwareStatus(static_cast<std::uint8_t>(frame::intOf(element, "HardwareStatus", 0)));
    channel.setBitRate(frame::intOf(element, "BitRate", 0));
    return true;
}
