// <AudioInfo FormatTag="1" Channels="2" SamplesPerSec="8000" AvgBytesPerSec="16000" BlockAlign="2" BitsPerSample="16"
//            CBSize="0" />

#include "commands/AudioInfoXml.h"

#include "core/Frame.h"

AudioInfoXml::AudioInfoXml() = default;

AudioInfoXml::~AudioInfoXml() = default;

void AudioInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool AudioInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioInfo", document_, node_) && parseXmlNode();
}

bool AudioInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& AudioInfoXml::writeElement(TiXmlNode& parent, const AudioInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioInfo");
    frame::setInt(element, "FormatTag", info.getFormatTag());
    frame::setInt(element, "Channels", info.getChannels());
    frame::setUnsigned(element, "SamplesPerSec", info.getSamplesPerSec());
    frame::setUnsigned(element, "AvgBytesPerSec", info.getAvgBytesPerSec());
    frame::setInt(element, "BlockAlign", info.getBlockAligns());
    frame::setInt(element, "BitsPerSample", info.getBitsPerSample());
    frame::setInt(element, "CBSize", info.getCBSize());
    return element;
}

bool AudioInfoXml::readElement(const TiXmlElement& element, AudioInfo& info)
{
    info.setFormatTag(frame::uint16Of(element, "FormatTag", 0));
    info.setChannels(frame::uint16Of(element, "Channels", 0));
    info.setSamplesPerSec(frame::uint32Of(element, "SamplesPerSec", 0));
    info.setAvgBytesPerSec(frame::uint32Of(element, "AvgBytesPerSec", 0));
    info.setBlockAlign(frame::uint16Of(element, "BlockAlign", 0));
    info.setBitsPerSample(frame::uint16Of(element, "BitsPerSample", 0));
    info.setCBSize(frame::uint16Of(element, "CBSize", 0));
    return true;
}
