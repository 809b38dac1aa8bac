// <VideoStreamCtrlCommand CtrlType="1" CameraId="2" StreamId="3" ConsumerId="4" />

#include "commands/VideoStreamCtrlXml.h"

#include "core/Frame.h"

VideoStreamCtrlXml::VideoStreamCtrlXml() = default;

VideoStreamCtrlXml::~VideoStreamCtrlXml() = default;

void VideoStreamCtrlXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "VideoStreamCtrlCommand");
    frame::setInt(element, "CtrlType", ctrlType_);
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "StreamId", streamId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool VideoStreamCtrlXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoStreamCtrlXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoStreamCtrlCommand", document_, node_) && parseXmlNode();
}

bool VideoStreamCtrlXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    ctrlType_ = frame::intOf(*element, "CtrlType", ctrlType_);
    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    streamId_ = frame::intOf(*element, "StreamId", streamId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
