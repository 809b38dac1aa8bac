// <BlindAbility maxBlindAreaNum="4" blindArea="50" type="1" />

#include "device/BlindAbilityXml.h"

#include "core/Frame.h"

BlindAbilityXml::BlindAbilityXml() = default;

BlindAbilityXml::~BlindAbilityXml() = default;

void BlindAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool BlindAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool BlindAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "BlindAbility", document_, node_) && parseXmlNode();
}

bool BlindAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& BlindAbilityXml::writeElement(TiXmlNode& parent, const BlindAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "BlindAbility");
    frame::setInt(element, "maxBlindAreaNum", ability.getMaxBlindAreaNum());
    frame::setInt(element, "blindArea", ability.getBlindArea());
    frame::setInt(element, "type", ability.getBlindType());
    return element;
}

bool BlindAbilityXml::readElement(const TiXmlElement& element, BlindAbility& ability)
{
    ability.setMaxBlindAreaNum(frame::intOf(element, "maxBlindAreaNum", ability.getMaxBlindAreaNum()));
    ability.setBlindArea(frame::intOf(element, "blindArea", ability.getBlindArea()));
    ability.setBlindType(frame::intOf(element, "type", ability.getBlindType()));
    return true;
}
