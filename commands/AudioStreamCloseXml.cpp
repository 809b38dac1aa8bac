// <AudioStreamCloseCommand CameraId="1" ConsumerId="2" />

#include "commands/AudioStreamCloseXml.h"

#include "core/Frame.h"

AudioStreamCloseXml::AudioStreamCloseXml() = default;

AudioStreamCloseXml::~AudioStreamCloseXml() = default;

void AudioStreamCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "AudioStreamCloseCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool AudioStreamCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioStreamCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioStreamCloseCommand", document_, node_) && parseXmlNode();
}

bool AudioStreamCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
