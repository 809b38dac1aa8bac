// <MicrophoneCloseCommand CameraId="1" ConsumerId="2" />

#include "commands/MicrophoneCloseXml.h"

#include "core/Frame.h"

MicrophoneCloseXml::MicrophoneCloseXml() = default;

MicrophoneCloseXml::~MicrophoneCloseXml() = default;

void MicrophoneCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "MicrophoneCloseCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool MicrophoneCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MicrophoneCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "MicrophoneCloseCommand", document_, node_) && parseXmlNode();
}

bool MicrophoneCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
