// <InterPhoneRequestCommand DecodeType="1" DataChannelId="2" />

#include "commands/InterPhoneRequestXml.h"

#include "core/Frame.h"

InterPhoneRequestXml::InterPhoneRequestXml() = default;

InterPhoneRequestXml::~InterPhoneRequestXml() = default;

void InterPhoneRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "InterPhoneRequestCommand");
    frame::setInt(element, "DecodeType", decodeType_);
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool InterPhoneRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool InterPhoneRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "InterPhoneRequestCommand", document_, node_) && parseXmlNode();
}

bool InterPhoneRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    decodeType_ = frame::intOf(*element, "DecodeType", decodeType_);
    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
