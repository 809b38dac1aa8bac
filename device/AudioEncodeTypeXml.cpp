// <AudioEncodeType AudioEncodeTypeId="1" AudioEncodeTypeName="AAC" />

#include "device/AudioEncodeTypeXml.h"

#include "core/Frame.h"

AudioEncodeTypeXml::AudioEncodeTypeXml() = default;

AudioEncodeTypeXml::~AudioEncodeTypeXml() = default;

void AudioEncodeTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool AudioEncodeTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioEncodeTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioEncodeType", document_, node_) && parseXmlNode();
}

bool AudioEncodeTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& AudioEncodeTypeXml::writeElement(TiXmlNode& parent, const AudioEncodeType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioEncodeType");
    frame::setInt(element, "AudioEncodeTypeId", type.getAudioEncodeTypeId());
    frame::setText(element, "AudioEncodeTypeName", type.getAudioEncodeTypeName());
    return element;
}

bool AudioEncodeTypeXml::readElement(const TiXmlElement& element, AudioEncodeType& type)
{
    type.setAudioEncodeTypeId(frame::intOf(element, "AudioEncodeTypeId", type.getAudioEncodeTypeId()));
    type.setAudioEncodeTypeName(frame::textOf(element, "AudioEncodeTypeName", type.getAudioEncodeTypeName()));
    return true;
}
