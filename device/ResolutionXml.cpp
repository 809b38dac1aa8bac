// <Resolution ResolutionId="1" ResolutionName="D1" />

#include "device/ResolutionXml.h"

#include "core/Frame.h"

ResolutionXml::ResolutionXml() = default;

ResolutionXml::~ResolutionXml() = default;

void ResolutionXml::createXmlNode()
{
    writeElement(document_, resolution_);
}

bool ResolutionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ResolutionXml::parseXmlString()
{
    return frame::parseRoot(text_, "Resolution", document_, node_) && parseXmlNode();
}

bool ResolutionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, resolution_);
}

TiXmlElement& ResolutionXml::writeElement(TiXmlNode& parent, const Resolution& resolution)
{
    TiXmlElement& element = frame::appendElement(parent, "Resolution");
    frame::setInt(element, "ResolutionId", resolution.getResolutionId());
    frame::setText(element, "ResolutionName", resolution.getResolutionName());
    return element;
}

bool ResolutionXml::readElement(const TiXmlElement& element, Resolution& resolution)
{
    resolution.setResolutionId(frame::intOf(element, "ResolutionId", 0));
    resolution.setResolutionName(frame::textOf(element, "ResolutionName", ""));
    return true;
}
