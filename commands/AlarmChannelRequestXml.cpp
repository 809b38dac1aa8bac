// <AlarmChannelRequestCommand DataChannelId="1" />

#include "commands/AlarmChannelRequestXml.h"

#include "core/Frame.h"

AlarmChannelRequestXml::AlarmChannelRequestXml() = default;

AlarmChannelRequestXml::~AlarmChannelRequestXml() = default;

void AlarmChannelRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "AlarmChannelRequestCommand");
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool AlarmChannelRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmChannelRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmChannelRequestCommand", document_, node_) && parseXmlNode();
}

bool AlarmChannelRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
