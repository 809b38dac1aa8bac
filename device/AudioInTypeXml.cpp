// <AudioInType AudioInTypeId="1" AudioInTypeName="Line" />

#include "device/AudioInTypeXml.h"

#include "core/Frame.h"

AudioInTypeXml::AudioInTypeXml() = default;

AudioInTypeXml::~AudioInTypeXml() = default;

void AudioInTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool AudioInTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioInTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioInType", document_, node_) && parseXmlNode();
}

bool AudioInTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& AudioInTypeXml::writeElement(TiXmlNode& parent, const AudioInType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioInType");
    frame::setInt(element, "AudioInTypeId", type.getAudioInTypeId());
    frame::setText(element, "AudioInTypeName", type.getAudioInTypeName());
    return element;
}

bool AudioInTypeXml::readElement(const TiXmlElement& element, AudioInType& type)
{
    type.setAudioInTypeId(frame::intOf(element, "AudioInTypeId", type.getAudioInTypeId()));
    type.setAudioInTypeName(frame::textOf(element, "AudioInTypeName", type.getAudioInTypeName()));
    return true;
}
