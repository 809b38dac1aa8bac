// <BlindAbility maxBlindAreaNum="4" blindWidth="352" blindHeight="288" blindType="1" />

#include "device/BlindAbilityConfigureXml.h"

#include "core/Frame.h"

BlindAbilityConfigureXml::BlindAbilityConfigureXml() = default;

BlindAbilityConfigureXml::~BlindAbilityConfigureXml() = default;

bool BlindAbilityConfigureXml::createDomainXmlNode(const BlindAbilityConfigure& ability,
                                                   SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("maxBlindAreaNum", ability.getMaxBlindAreaNum());
    node->setProperty("blindWidth", ability.getBlindWidth());
    node->setProperty("blindHeight", ability.getBlindHeight());
    node->setProperty("blindType", ability.getBlindType());
    return true;
}

bool BlindAbilityConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  BlindAbilityConfigure& ability) const
{
    if (!node) return false;

    ability.setMaxBlindAreaNum(frame::intProperty(node, "maxBlindAreaNum", 0));
    ability.setBlindWidth(frame::intProperty(node, "blindWidth", 0));
    ability.setBlindHeight(frame::intProperty(node, "blindHeight", 0));
    ability.setBlindType(frame::intProperty(node, "blindType", 0));
    return true;
}

bool BlindAbilityConfigureXml::createXmlString(const BlindAbilityConfigure& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BlindAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool BlindAbilityConfigureXml::parseXmlString(const std::string& text, BlindAbilityConfigure& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "BlindAbility", node) && parseDomainXmlNode(node, ability);
}
