// <RS485ChannelResponseCommand ConsumerId="1" />

#include "commands/RS485ChannelResponseXml.h"

#include "core/Frame.h"

RS485ChannelResponseXml::RS485ChannelResponseXml() = default;

RS485ChannelResponseXml::~RS485ChannelResponseXml() = default;

void RS485ChannelResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RS485ChannelResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool RS485ChannelResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS485ChannelResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS485ChannelResponseCommand", document_, node_) && parseXmlNode();
}

bool RS485ChannelResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
