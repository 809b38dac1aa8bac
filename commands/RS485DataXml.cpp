// <RS485DataCommand DataLen="1" Type="2" />

#include "commands/RS485DataXml.h"

#include "core/Frame.h"

RS485DataXml::RS485DataXml() = default;

RS485DataXml::~RS485DataXml() = default;

void RS485DataXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RS485DataCommand");
    frame::setInt(element, "DataLen", dataLen_);
    frame::setInt(element, "Type", type_);
}

bool RS485DataXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS485DataXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS485DataCommand", document_, node_) && parseXmlNode();
}

bool RS485DataXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    dataLen_ = frame::intOf(*element, "DataLen", dataLen_);
    type_ = frame::intOf(*element, "Type", type_);
    return true;
}
