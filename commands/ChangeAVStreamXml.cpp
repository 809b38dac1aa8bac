// <ChangeAVStreamCommand CameraId="1" StreamId="2" ComsumerId="3" />

#include "commands/ChangeAVStreamXml.h"

#include "core/Frame.h"

ChangeAVStreamXml::ChangeAVStreamXml() = default;

ChangeAVStreamXml::~ChangeAVStreamXml() = default;

void ChangeAVStreamXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "ChangeAVStreamCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "StreamId", streamId_);
    // The peers know this attribute of this command by the misspelt name only.
    frame::setInt(element, "ComsumerId", consumerId_);
}

bool ChangeAVStreamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ChangeAVStreamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ChangeAVStreamCommand", document_, node_) && parseXmlNode();
}

bool ChangeAVStreamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    streamId_ = frame::intOf(*element, "StreamId", streamId_);
    consumerId_ = frame::intOf(*element, "ComsumerId", consumerId_);
    return true;
}
