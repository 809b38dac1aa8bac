// <DecoderWindowModeCommand WindowMode="1" />

#include "commands/DecoderWindowModeXml.h"

#include "core/Frame.h"

DecoderWindowModeXml::DecoderWindowModeXml() = default;

DecoderWindowModeXml::~DecoderWindowModeXml() = default;

void DecoderWindowModeXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DecoderWindowModeCommand");
    frame::setInt(element, "WindowMode", windowMode_);
}

bool DecoderWindowModeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DecoderWindowModeXml::parseXmlString()
{
    return frame::parseRoot(text_, "DecoderWindowModeCommand", document_, node_) && parseXmlNode();
}

bool DecoderWindowModeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    windowMode_ = frame::intOf(*element, "WindowMode", windowMode_);
    return true;
}
