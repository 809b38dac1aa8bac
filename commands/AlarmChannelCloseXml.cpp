// <AlarmChannelCloseCommand ConsumerId="1" />

#include "commands/AlarmChannelCloseXml.h"

#include "core/Frame.h"

AlarmChannelCloseXml::AlarmChannelCloseXml() = default;

AlarmChannelCloseXml::~AlarmChannelCloseXml() = default;

void AlarmChannelCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "AlarmChannelCloseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool AlarmChannelCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmChannelCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmChannelCloseCommand", document_, node_) && parseXmlNode();
}

bool AlarmChannelCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
