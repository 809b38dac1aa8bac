// <AudioStreamRequestCommand CameraId="1" StreamId="2" ComsumerId="3" />

#include "commands/AudioStreamRequestXml.h"

#include "core/Frame.h"

AudioStreamRequestXml::AudioStreamRequestXml() = default;

AudioStreamRequestXml::~AudioStreamRequestXml() = default;

void AudioStreamRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "AudioStreamRequestCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "StreamId", streamId_);
    // The peers know this attribute of this command by the misspelt name only.
    frame::setInt(element, "ComsumerId", consumerId_);
}

bool AudioStreamRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioStreamRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioStreamRequestCommand", document_, node_) && parseXmlNode();
}

bool AudioStreamRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    streamId_ = frame::intOf(*element, "StreamId", streamId_);
    consumerId_ = frame::intOf(*element, "ComsumerId", consumerId_);
    return true;
}
