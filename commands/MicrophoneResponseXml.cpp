// <MicrophoneResponseCommand ConsumerId="1" />

#include "commands/MicrophoneResponseXml.h"

#include "core/Frame.h"

MicrophoneResponseXml::MicrophoneResponseXml() = default;

MicrophoneResponseXml::~MicrophoneResponseXml() = default;

void MicrophoneResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "MicrophoneResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool MicrophoneResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MicrophoneResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "MicrophoneResponseCommand", document_, node_) && parseXmlNode();
}

bool MicrophoneResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
