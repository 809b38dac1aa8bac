// <DeviceImageFormat DeviceId="D1" CameraId="1" ImageFormatId="1" />

#include "device/DeviceImageFormatXml.h"

#include "core/Frame.h"

DeviceImageFormatXml::DeviceImageFormatXml() = default;

DeviceImageFormatXml::~DeviceImageFormatXml() = default;

void DeviceImageFormatXml::createXmlNode()
{
    writeElement(document_, format_);
}

bool DeviceImageFormatXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceImageFormatXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceImageFormat", document_, node_) && parseXmlNode();
}

bool DeviceImageFormatXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, format_);
}

TiXmlElement& DeviceImageFormatXml::writeElement(TiXmlNode& parent, const DeviceImageFormat& format)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceImageFormat");
    frame::setText(element, "DeviceId", format.getDeviceId());
    frame::setInt(element, "CameraId", format.getCameraId());
    frame::setInt(element, "ImageFormatId", format.getImageFormatId());
    return element;
}

bool DeviceImageFormatXml::readElement(const TiXmlElement& element, DeviceImageFormat& format)
{
    format.setDeviceId(frame::textOf(element, "DeviceId", ""));
    format.setCameraId(frame::intOf(element, "CameraId", 0));
    format.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    return true;
}
