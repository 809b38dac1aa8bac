// <RS485ChannelCloseCommand ComId="1" ConsumerId="2" />

#include "commands/RS485ChannelCloseXml.h"

#include "core/Frame.h"

RS485ChannelCloseXml::RS485ChannelCloseXml() = default;

RS485ChannelCloseXml::~RS485ChannelCloseXml() = default;

void RS485ChannelCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RS485ChannelCloseCommand");
    frame::setInt(element, "ComId", comId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool RS485ChannelCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS485ChannelCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS485ChannelCloseCommand", document_, node_) && parseXmlNode();
}

bool RS485ChannelCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    comId_ = frame::intOf(*element, "ComId", comId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
