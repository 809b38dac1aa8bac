// <VideoStreamRequestCommand CameraId="1" StreamId="2" StreamFormat="3" DataChannelId="4" />

#include "commands/VideoStreamRequestXml.h"

#include "core/Frame.h"

VideoStreamRequestXml::VideoStreamRequestXml() = default;

VideoStreamRequestXml::~VideoStreamRequestXml() = default;

void VideoStreamRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "VideoStreamRequestCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "StreamId", streamId_);
    // The field and its attribute differ in name.
    frame::setInt(element, "StreamFormat", mode_);
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool VideoStreamRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoStreamRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoStreamRequestCommand", document_, node_) && parseXmlNode();
}

bool VideoStreamRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    streamId_ = frame::intOf(*element, "StreamId", streamId_);
    mode_ = frame::intOf(*element, "StreamFormat", mode_);
    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
