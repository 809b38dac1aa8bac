// <VideoQuality CameraId="1" Contrast="50" Brightness="50" Hue="50" Saturation="50" Sharpness="50" />

#include "media/VideoQualityXml.h"

#include "core/Frame.h"

VideoQualityXml::VideoQualityXml() = default;

VideoQualityXml::~VideoQualityXml() = default;

void VideoQualityXml::createXmlNode()
{
    writeElement(document_, quality_);
}

bool VideoQualityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoQualityXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoQuality", document_, node_) && parseXmlNode();
}

bool VideoQualityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, quality_);
}

TiXmlElement& VideoQualityXml::writeElement(TiXmlNode& parent, const VideoQuality& quality)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoQuality");
    frame::setInt(element, "CameraId", quality.getCameraId());
    frame::setInt(element, "Contrast", quality.getContrast());
    frame::setInt(element, "Brightness", quality.getBrightness());
    frame::setInt(element, "Hue", quality.getHue());
    frame::setInt(element, "Saturation", quality.getSaturation());
    frame::setInt(element, "Sharpness", quality.getSharpness());
    return element;
}

bool VideoQualityXml::readElement(const TiXmlElement& element, VideoQuality& quality)
{
    quality.setCameraId(frame::intOf(element, "CameraId", 0));
    quality.setContrast(frame::intOf(element, "Contrast", 0));
    quality.setBrightness(frame::intOf(element, "Brightness", 0));
    quality.setHue(frame::intOf(element, "Hue", 0));
    quality.setSaturation(frame::intOf(element, "Saturation", 0));
    quality.setSharpness(frame::intOf(element, "Sharpness", 0));
    return true;
}
