// <VideoEncodeQuality VideoSystem="1" FrameRate="25" ImageFormatId="2" BitRateType="1" BitRate="2048" Quant="20"
//                     IFrameInterval="50" EncoderType="3" Quality="4" CodingFlag="1" />

#include "media/VideoEncodeQualityXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"

VideoEncodeQualityXml::VideoEncodeQualityXml() = default;

VideoEncodeQualityXml::~VideoEncodeQualityXml() = default;

void VideoEncodeQualityXml::createXmlNode()
{
    writeElement(document_, quality_);
}

bool VideoEncodeQualityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoEncodeQualityXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoEncodeQuality", document_, node_) && parseXmlNode();
}

bool VideoEncodeQualityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, quality_);
}

TiXmlElement& VideoEncodeQualityXml::writeElement(TiXmlNode& parent, const VideoEncodeQuality& quality)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoEncodeQuality");
    frame::setInt(element, "VideoSystem", quality.getVideoSystem());
    frame::setDouble(element, "FrameRate", quality.getFrameRate());
    frame::setInt(element, "ImageFormatId", quality.getImageFormatId());
    frame::setInt(element, "BitRateType", quality.getBitRateType());
    frame::setInt(element, "BitRate", quality.getBitRate());
    frame::setInt(element, "Quant", quality.getQuant());
    frame::setInt(element, "IFrameInterval", quality.getIFrameInterval());
    frame::setInt(element, "EncoderType", quality.getEncoderType());
    frame::setInt(element, "Quality", quality.getQuality());
    frame::setInt(element, "CodingFlag", quality.getCodingFlag());
    return element;
}

bool VideoEncodeQualityXml::readElement(const TiXmlElement& element, VideoEncodeQuality& quality)
{
    quality.setVideoSystem(frame::intOf(element, "VideoSystem", 0));
    quality.setFrameRate(frame::doubleOf(element, "FrameRate", 0));
    quality.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    quality.setBitRateType(frame::intOf(element, "BitRateType", 0));
    quality.setBitRate(frame::intOf(element, "BitRate", 0));
    quality.setQuant(frame::intOf(element, "Quant", 0));
    quality.setIFrameInterval(frame::intOf(element, "IFrameInterval", 0));
    quality.setEncodeType(frame::intOf(element, "EncoderType", 0));
    quality.setQuality(frame::intOf(element, "Quality", 0));
    quality.setCodingFlag(frame::intOf(element, "CodingFlag", 0));
    return true;
}

bool VideoEncodeQualityXml::createDomainXmlNode(const VideoEncodeQuality& quality,
                                                SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("VideoSystem", quality.getVideoSystem());
    node->setProperty("FrameRate", frame::doubleText(quality.getFrameRate()).characters);
    node->setProperty("ImageFormatId", quality.getImageFormatId());
    node->setProperty("BitRateType", quality.getBitRateType());
    node->setProperty("BitRate", quality.getBitRate());
    node->setProperty("Quant", quality.getQuant());
    node->setProperty("IFrameInterval", quality.getIFrameInterval());
    node->setProperty("EncoderType", quality.getEncoderType());
    node->setProperty("Quality", quality.getQuality());
    node->setProperty("CodingFlag", quality.getCodingFlag());
    return true;
}

bool VideoEncodeQualityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                               VideoEncodeQuality& quality) const
{
    if (!node) return false;

    quality.setVideoSystem(frame::intProperty(node, "VideoSystem", 0,
                                              "VideoEncodeQualityXml::parseDomainXmlNode get VideoSystem failed "));
    quality.setFrameRate(
        frame::doubleProperty(node, "FrameRate", 0, "VideoEncodeQualityXml::parseDomainXmlNode get FrameRate failed "));
    quality.setImageFormatId(frame::intProperty(node, "ImageFormatId", 0,
                                                "VideoEncodeQualityXml::parseDomainXmlNode get ImageFormatId failed "));
    quality.setBitRateType(frame::intProperty(node, "BitRateType", 0,
                                              "VideoEncodeQualityXml::parseDomainXmlNode get BitRateType failed "));
    quality.setBitRate(
        frame::intProperty(node, "BitRate", 0, "VideoEncodeQualityXml::parseDomainXmlNode get BitRate failed "));
    quality.setQuant(
        frame::intProperty(node, "Quant", 0, "VideoEncodeQualityXml::parseDomainXmlNode get Quant failed "));
    quality.setIFrameInterval(frame::intProperty(
        node, "IFrameInterval", 0, "VideoEncodeQualityXml::parseDomainXmlNode get IFrameInterval failed "));
    quality.setEncodeType(frame::intProperty(node, "EncoderType", 0,
                                             "VideoEncodeQualityXml::parseDomainXmlNode get EncoderType failed "));
    quality.setQuality(
        frame::intProperty(node, "Quality", 0, "VideoEncodeQualityXml::parseDomainXmlNode get Quality failed "));
    quality.setCodingFlag(
        frame::intProperty(node, "CodingFlag", 0, "VideoEncodeQualityXml::parseDomainXmlNode get CodingFlag failed "));
    return true;
}

bool VideoEncodeQualityXml::createXmlString(const VideoEncodeQuality& quality, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("VideoEncodeQuality");
    return createDomainXmlNode(quality, node) && DomainXmlNode::toString(node, text);
}

bool VideoEncodeQualityXml::parseXmlString(const std::string& text, VideoEncodeQuality& quality) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "VideoEncodeQuality", node) && parseDomainXmlNode(node, quality);
}
