// <AudioOutType AudioOutTypeId="1" AudioOutTypeName="Speaker" />

#include "device/AudioOutTypeXml.h"

#include "core/Frame.h"

AudioOutTypeXml::AudioOutTypeXml() = default;

AudioOutTypeXml::~AudioOutTypeXml() = default;

void AudioOutTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool AudioOutTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioOutTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioOutType", document_, node_) && parseXmlNode();
}

bool AudioOutTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& AudioOutTypeXml::writeElement(TiXmlNode& parent, const AudioOutType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioOutType");
    frame::setInt(element, "AudioOutTypeId", type.getAudioOutTypeId());
    frame::setText(element, "AudioOutTypeName", type.getAudioOutTypeName());
    return element;
}

bool AudioOutTypeXml::readElement(const TiXmlElement& element, AudioOutType& type)
{
    type.setAudioOutTypeId(frame::intOf(element, "AudioOutTypeId", type.getAudioOutTypeId()));
    type.setAudioOutTypeName(frame::textOf(element, "AudioOutTypeName", type.getAudioOutTypeName()));
    return true;
}
