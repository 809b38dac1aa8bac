// <PTZChannelRequestCommand CameraId="1" DataChannelId="2" />

#include "commands/PTZChannelRequestXml.h"

#include "core/Frame.h"

PTZChannelRequestXml::PTZChannelRequestXml() = default;

PTZChannelRequestXml::~PTZChannelRequestXml() = default;

void PTZChannelRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "PTZChannelRequestCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool PTZChannelRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZChannelRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZChannelRequestCommand", document_, node_) && parseXmlNode();
}

bool PTZChannelRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
