// <MotionDetectionAbility minSensitivity="1" maxSensitivity="9" maxWidthCellNumber="44" maxHeightCellNumber="36"
//                         defaultSensitivity="5" defaultWidthCellNumber="22" defaultHeightCellNumber="18" />

#include "device/MotionDetectionAbilityConfigureXml.h"

#include "core/Frame.h"

MotionDetectionAbilityConfigureXml::MotionDetectionAbilityConfigureXml() = default;

MotionDetectionAbilityConfigureXml::~MotionDetectionAbilityConfigureXml() = default;

bool MotionDetectionAbilityConfigureXml::createDomainXmlNode(const MotionDetectionAbilityConfigure& ability,
                                                             SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("minSensitivity", ability.getMinSensitivity());
    node->setProperty("maxSensitivity", ability.getMaxSensitivity());
    node->setProperty("maxWidthCellNumber", ability.getMaxWidthCellNumber());
    node->setProperty("maxHeightCellNumber", ability.getMaxHeightCellNumber());
    node->setProperty("defaultSensitivity", ability.getDefaultSensitivity());
    node->setProperty("defaultWidthCellNumber", ability.getDefaultWidthCellNumber());
    node->setProperty("defaultHeightCellNumber", ability.getDefaultHeightCellNumber());
    return true;
}

bool MotionDetectionAbilityConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                            MotionDetectionAbilityConfigure& ability) const
{
    if (!node) return false;

    ability.setMinSensitivity(frame::intProperty(node, "minSensitivity", 0));
    ability.setMaxSensitivity(frame::intProperty(node, "maxSensitivity", 0));
    ability.setMaxWidthCellNumber(frame::intProperty(node, "maxWidthCellNumber", 0));
    ability.setMaxHeightCellNumber(frame::intProperty(node, "maxHeightCellNumber", 0));
    ability.setDefaultSensitivity(frame::intProperty(node, "defaultSensitivity", 0));
    ability.setDefaultWidthCellNumber(frame::intProperty(node, "defaultWidthCellNumber", 0));
    ability.setDefaultHeightCellNumber(frame::intProperty(node, "defaultHeightCellNumber", 0));
    return true;
}

bool MotionDetectionAbilityConfigureXml::createXmlString(const MotionDetectionAbilityConfigure& ability,
                                                         std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MotionDetectionAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool MotionDetectionAbilityConfigureXml::parseXmlString(const std::string& text,
                                                        MotionDetectionAbilityConfigure& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "MotionDetectionAbility", node) && parseDomainXmlNode(node, ability);
}
