// <ImageFormat ImageFormatId="1" ImageFormatName="CIF" />

#include "device/ImageFormatXml.h"

#include "core/Frame.h"

ImageFormatXml::ImageFormatXml() = default;

ImageFormatXml::~ImageFormatXml() = default;

void ImageFormatXml::createXmlNode()
{
    writeElement(document_, format_);
}

bool ImageFormatXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ImageFormatXml::parseXmlString()
{
    return frame::parseRoot(text_, "ImageFormat", document_, node_) && parseXmlNode();
}

bool ImageFormatXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, format_);
}

TiXmlElement& ImageFormatXml::writeElement(TiXmlNode& parent, const ImageFormat& format)
{
    TiXmlElement& element = frame::appendElement(parent, "ImageFormat");
    frame::setInt(element, "ImageFormatId", format.getImageFormatId());
    frame::setText(element, "ImageFormatName", format.getImageFormatName());
    return element;
}

bool ImageFormatXml::readElement(const TiXmlElement& element, ImageFormat& format)
{
    format.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    format.setImageFormatName(frame::textOf(element, "ImageFormatName", ""));
    return true;
}
