// <DecoderResponseCommand ConsumerId="1" />

#include "commands/DecoderResponseXml.h"

#include "core/Frame.h"

DecoderResponseXml::DecoderResponseXml() = default;

DecoderResponseXml::~DecoderResponseXml() = default;

void DecoderResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DecoderResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool DecoderResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DecoderResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "DecoderResponseCommand", document_, node_) && parseXmlNode();
}

bool DecoderResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
