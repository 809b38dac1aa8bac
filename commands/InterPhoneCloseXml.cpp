// <InterPhoneCloseCommand ConsumerId="1" />

#include "commands/InterPhoneCloseXml.h"

#include "core/Frame.h"

InterPhoneCloseXml::InterPhoneCloseXml() = default;

InterPhoneCloseXml::~InterPhoneCloseXml() = default;

void InterPhoneCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "InterPhoneCloseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool InterPhoneCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool InterPhoneCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "InterPhoneCloseCommand", document_, node_) && parseXmlNode();
}

bool InterPhoneCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
