// <DisplayParam FrameMode="1" DisplayType="2" FrameRate="25" />

#include "display/DisplayParamXml.h"

#include "core/Frame.h"

DisplayParamXml::DisplayParamXml() = default;

DisplayParamXml::~DisplayParamXml() = default;

void DisplayParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DisplayParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DisplayParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DisplayParam", document_, node_) && parseXmlNode();
}

bool DisplayParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DisplayParamXml::writeElement(TiXmlNode& parent, const DisplayParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DisplayParam");
    frame::setInt(element, "FrameMode", param.getFrameMode());
    frame::setInt(element, "DisplayType", param.getDisplayType());
    frame::setInt(element, "FrameRate", param.getFrameRate());
    return element;
}

bool DisplayParamXml::readElement(const TiXmlElement& element, DisplayParam& param)
{
    param.setFrameMode(frame::intOf(element, "FrameMode", 0));
    param.setDisplayType(frame::intOf(element, "DisplayType", 0));
    param.setFrameRate(frame::intOf(element, "FrameRate", 0));
    return true;
}
