// <AlarmChannelResponseCommand ConsumerId="1" />

#include "commands/AlarmChannelResponseXml.h"

#include "core/Frame.h"

AlarmChannelResponseXml::AlarmChannelResponseXml() = default;

AlarmChannelResponseXml::~AlarmChannelResponseXml() = default;

void AlarmChannelResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "AlarmChannelResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool AlarmChannelResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmChannelResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmChannelResponseCommand", document_, node_) && parseXmlNode();
}

bool AlarmChannelResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
