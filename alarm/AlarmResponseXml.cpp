// <AlarmResponse SequenceId="1" IP="192.0.2.1" Port="9000" />

#include "alarm/AlarmResponseXml.h"

#include "core/Frame.h"

AlarmResponseXml::AlarmResponseXml() = default;

AlarmResponseXml::~AlarmResponseXml() = default;

void AlarmResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "AlarmResponse");
    frame::setInt(element, "SequenceId", sequenceId_);
    frame::setText(element, "IP", ip_);
    frame::setInt(element, "Port", port_);
}

bool AlarmResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmResponse", document_, node_) && parseXmlNode();
}

bool AlarmResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    sequenceId_ = frame::intOf(*element, "SequenceId", sequenceId_);
    ip_ = frame::textOf(*element, "IP", ip_);
    port_ = frame::uint16Of(*element, "Port", port_);
    return true;
}
