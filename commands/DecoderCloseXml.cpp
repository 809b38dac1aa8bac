// <DecoderCloseCommand ConsumerId="1" />

#include "commands/DecoderCloseXml.h"

#include "core/Frame.h"

DecoderCloseXml::DecoderCloseXml() = default;

DecoderCloseXml::~DecoderCloseXml() = default;

void DecoderCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DecoderCloseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool DecoderCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DecoderCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "DecoderCloseCommand", document_, node_) && parseXmlNode();
}

bool DecoderCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
