// <VideoStreamCloseCommand CameraId="1" ConsumerId="2" />

#include "commands/VideoStreamCloseXml.h"

#include "core/Frame.h"

VideoStreamCloseXml::VideoStreamCloseXml() = default;

VideoStreamCloseXml::~VideoStreamCloseXml() = default;

void VideoStreamCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "VideoStreamCloseCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool VideoStreamCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoStreamCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoStreamCloseCommand", document_, node_) && parseXmlNode();
}

bool VideoStreamCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
