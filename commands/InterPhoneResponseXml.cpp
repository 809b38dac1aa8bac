// <InterPhoneResponseCommand ConsumerId="1" />

#include "commands/InterPhoneResponseXml.h"

#include "core/Frame.h"

InterPhoneResponseXml::InterPhoneResponseXml() = default;

InterPhoneResponseXml::~InterPhoneResponseXml() = default;

void InterPhoneResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "InterPhoneResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool InterPhoneResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool InterPhoneResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "InterPhoneResponseCommand", document_, node_) && parseXmlNode();
}

bool InterPhoneResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
