// <AudioEncodeQuality FormatTag="1" Channels="2" SamplesPerSec="8000" AvgBytesPerSec="16000" BlockAlign="2"
//                     BitsPerSample="16" CBSize="0" EncodeType="1" />

#include "media/AudioEncodeQualityXml.h"

#include "core/Frame.h"

AudioEncodeQualityXml::AudioEncodeQualityXml() = default;

AudioEncodeQualityXml::~AudioEncodeQualityXml() = default;

void AudioEncodeQualityXml::createXmlNode()
{
    writeElement(document_, quality_);
}

bool AudioEncodeQualityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioEncodeQualityXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioEncodeQuality", document_, node_) && parseXmlNode();
}

bool AudioEncodeQualityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, quality_);
}

TiXmlElement& AudioEncodeQualityXml::writeElement(TiXmlNode& parent, const AudioEncodeQuality& quality)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioEncodeQuality");
    frame::setInt(element, "FormatTag", quality.getFormatTag());
    frame::setInt(element, "Channels", quality.getChannels());
    frame::setUnsigned(element, "SamplesPerSec", quality.getSamplesPerSec());
    frame::setUnsigned(element, "AvgBytesPerSec", quality.getAvgBytesPerSec());
    frame::setInt(element, "BlockAlign", quality.getBlockAlign());
    frame::setInt(element, "BitsPerSample", quality.getBitsPerSample());
    frame::setInt(element, "CBSize", quality.getCBSize());
    frame::setInt(element, "EncodeType", quality.getEncodeType());
    return element;
}

// Both rates are written unsigned and read signed: the peers' document readers stop at the largest signed number, where
// their node readers take the whole range.
bool AudioEncodeQualityXml::readElement(const TiXmlElement& element, AudioEncodeQuality& quality)
{
    quality.setFormatTag(frame::uint16Of(element, "FormatTag", 0));
    quality.setChannels(frame::uint16Of(element, "Channels", 0));
    quality.setSamplesPerSec(static_cast<unsigned long>(frame::longOf(element, "SamplesPerSec", 0)));
    quality.setAvgBytesPerSec(static_cast<unsigned long>(frame::longOf(element, "AvgBytesPerSec", 0)));
    quality.setBlockAlign(frame::uint16Of(element, "BlockAlign", 0));
    quality.setBitsPerSample(frame::uint16Of(element, "BitsPerSample", 0));
    quality.setCBSize(frame::uint16Of(element, "CBSize", 0));
    quality.setEncodeType(frame::intOf(element, "EncodeType", 0));
    return true;
}

bool AudioEncodeQualityXml::createDomainXmlNode(const AudioEncodeQuality& quality,
                                                SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("FormatTag", quality.getFormatTag());
    node->setProperty("Channels", quality.getChannels());
    node->setProperty("SamplesPerSec", static_cast<unsigned long long>(quality.getSamplesPerSec()));
    node->setProperty("AvgBytesPerSec", static_cast<unsigned long long>(quality.getAvgBytesPerSec()));
    node->setProperty("BlockAlign", quality.getBlockAlign());
    node->setProperty("BitsPerSample", quality.getBitsPerSample());
    node->setProperty("CBSize", quality.getCBSize());
    node->setProperty("EncodeType", quality.getEncodeType());
    return true;
}

bool AudioEncodeQualityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                               AudioEncodeQuality& quality) const
{
    if (!node) return false;

    quality.setFormatTag(
        frame::uint16Property(node, "FormatTag", 0, "AudioEncodeQualityXml::parseDomainXmlNode get FormatTag failed "));
    quality.setChannels(
        frame::uint16Property(node, "Channels", 0, "AudioEncodeQualityXml::parseDomainXmlNode get Channels failed "));
    quality.setSamplesPerSec(static_cast<unsigned long>(frame::unsignedProperty(
        node, "SamplesPerSec", 0, "AudioEncodeQualityXml::parseDomainXmlNode get SamplesPerSec failed ")));
    quality.setAvgBytesPerSec(static_cast<unsigned long>(frame::unsignedProperty(
        node, "AvgBytesPerSec", 0, "AudioEncodeQualityXml::parseDomainXmlNode get AvgBytesPerSec failed ")));
    quality.setBlockAlign(frame::uint16Property(node, "BlockAlign", 0,
                                                "AudioEncodeQualityXml::parseDomainXmlNode get BlockAlign failed "));
    quality.setBitsPerSample(frame::uint16Property(
        node, "BitsPerSample", 0, "AudioEncodeQualityXml::parseDomainXmlNode get BitsPerSample failed "));
    quality.setCBSize(
        frame::uint16Property(node, "CBSize", 0, "AudioEncodeQualityXml::parseDomainXmlNode get CBSize failed "));
    quality.setEncodeType(
        frame::intProperty(node, "EncodeType", 0, "AudioEncodeQualityXml::parseDomainXmlNode get EncodeType failed "));
    return true;
}

bool AudioEncodeQualityXml::createXmlString(const AudioEncodeQuality& quality, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AudioEncodeQuality");
    return createDomainXmlNode(quality, node) && DomainXmlNode::toString(node, text);
}

bool AudioEncodeQualityXml::parseXmlString(const std::string& text, AudioEncodeQuality& quality) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AudioEncodeQuality", node) && parseDomainXmlNode(node, quality);
}
