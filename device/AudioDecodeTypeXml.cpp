// <AudioDecodeType AudioDecodeTypeId="1" AudioDecodeTypeName="G711" />

#include "device/AudioDecodeTypeXml.h"

#include "core/Frame.h"

AudioDecodeTypeXml::AudioDecodeTypeXml() = default;

AudioDecodeTypeXml::~AudioDecodeTypeXml() = default;

void AudioDecodeTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool AudioDecodeTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioDecodeTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioDecodeType", document_, node_) && parseXmlNode();
}

bool AudioDecodeTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& AudioDecodeTypeXml::writeElement(TiXmlNode& parent, const AudioDecodeType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioDecodeType");
    frame::setInt(element, "AudioDecodeTypeId", type.getAudioDecodeTypeId());
    frame::setText(element, "AudioDecodeTypeName", type.getAudioDecodeTypeName());
    return element;
}

bool AudioDecodeTypeXml::readElement(const TiXmlElement& element, AudioDecodeType& type)
{
    type.setAudioDecodeTypeId(frame::intOf(element, "AudioDecodeTypeId", type.getAudioDecodeTypeId()));
    type.setAudioDecodeTypeName(frame::textOf(element, "AudioDecodeTypeName", type.getAudioDecodeTypeName()));
    return true;
}
