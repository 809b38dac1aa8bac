// <MotionDetectionExAbility MaxSensitivity="9" MinSensitivity="1" DefualSensitivity="5" DefualWidthCellNumber="22"
//                           DefualHighCellNumber="18" MaxWidthCellNumber="44" MinWidthCellNumber="11"
//                           MaxHighCellNumber="36" MinHighCellNumber="8" />
//
// "Defual" is the peers' spelling: they know the attributes by no other name.

#include "device/MotionDetectionExAbilityXml.h"

#include "core/Frame.h"

MotionDetectionExAbilityXml::MotionDetectionExAbilityXml() = default;

MotionDetectionExAbilityXml::~MotionDetectionExAbilityXml() = default;

void MotionDetectionExAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool MotionDetectionExAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MotionDetectionExAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "MotionDetectionExAbility", document_, node_) && parseXmlNode();
}

bool MotionDetectionExAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& MotionDetectionExAbilityXml::writeElement(TiXmlNode& parent, const MotionDetectionExAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "MotionDetectionExAbility");
    frame::setInt(element, "MaxSensitivity", ability.getMaxSensitivity());
    frame::setInt(element, "MinSensitivity", ability.getMinSensitivity());
    frame::setInt(element, "DefualSensitivity", ability.getDefualSensitivity());
    frame::setInt(element, "DefualWidthCellNumber", ability.getDefualWidthCellNumber());
    frame::setInt(element, "DefualHighCellNumber", ability.getDefualHighCellNumber());
    frame::setInt(element, "MaxWidthCellNumber", ability.getMaxWidthCellNumber());
    frame::setInt(element, "MinWidthCellNumber", ability.getMinWidthCellNumber());
    frame::setInt(element, "MaxHighCellNumber", ability.getMaxHighCellNumber());
    frame::setInt(element, "MinHighCellNumber", ability.getMinHighCellNumber());
    return element;
}

bool MotionDetectionExAbilityXml::readElement(const TiXmlElement& element, MotionDetectionExAbility& ability)
{
    ability.setMaxSensitivity(frame::intOf(element, "MaxSensitivity", 0));
    ability.setMinSensitivity(frame::intOf(element, "MinSensitivity", 0));
    ability.setDefualSensitivity(frame::intOf(element, "DefualSensitivity", 0));
    ability.setDefualWidthCellNumber(frame::intOf(element, "DefualWidthCellNumber", 0));
    ability.setDefualHighCellNumber(frame::intOf(element, "DefualHighCellNumber", 0));
    ability.setMaxWidthCellNumber(frame::intOf(element, "MaxWidthCellNumber", 0));
    ability.setMinWidthCellNumber(frame::intOf(element, "MinWidthCellNumber", 0));
    ability.setMaxHighCellNumber(frame::intOf(element, "MaxHighCellNumber", 0));
    ability.setMinHighCellNumber(frame::intOf(element, "MinHighCellNumber", 0));
    return true;
}
