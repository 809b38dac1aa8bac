// <PTZChannelCloseCommand CameraId="1" ConsumerId="2" />

#include "commands/PTZChannelCloseXml.h"

#include "core/Frame.h"

PTZChannelCloseXml::PTZChannelCloseXml() = default;

PTZChannelCloseXml::~PTZChannelCloseXml() = default;

void PTZChannelCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "PTZChannelCloseCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool PTZChannelCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZChannelCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZChannelCloseCommand", document_, node_) && parseXmlNode();
}

bool PTZChannelCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
