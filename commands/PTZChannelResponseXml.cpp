// <PTZChannelResponseCommand ConsumerId="1" />

#include "commands/PTZChannelResponseXml.h"

#include "core/Frame.h"

PTZChannelResponseXml::PTZChannelResponseXml() = default;

PTZChannelResponseXml::~PTZChannelResponseXml() = default;

void PTZChannelResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "PTZChannelResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool PTZChannelResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZChannelResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZChannelResponseCommand", document_, node_) && parseXmlNode();
}

bool PTZChannelResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
