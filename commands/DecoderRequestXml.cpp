// <DecoderRequestCommand WindowId="1" DataChannelId="2" />

#include "commands/DecoderRequestXml.h"

#include "core/Frame.h"

DecoderRequestXml::DecoderRequestXml() = default;

DecoderRequestXml::~DecoderRequestXml() = default;

void DecoderRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DecoderRequestCommand");
    frame::setInt(element, "WindowId", windowId_);
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool DecoderRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DecoderRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "DecoderRequestCommand", document_, node_) && parseXmlNode();
}

bool DecoderRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    windowId_ = frame::intOf(*element, "WindowId", windowId_);
    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
