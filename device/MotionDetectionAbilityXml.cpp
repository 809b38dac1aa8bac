// <MotionDetectionAbility ImageFormatId="1" MaxSensitivity="9" MinFrameInterval="2" />

#include "device/MotionDetectionAbilityXml.h"

#include "core/Frame.h"

MotionDetectionAbilityXml::MotionDetectionAbilityXml() = default;

MotionDetectionAbilityXml::~MotionDetectionAbilityXml() = default;

void MotionDetectionAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool MotionDetectionAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MotionDetectionAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "MotionDetectionAbility", document_, node_) && parseXmlNode();
}

bool MotionDetectionAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& MotionDetectionAbilityXml::writeElement(TiXmlNode& parent, const MotionDetectionAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "MotionDetectionAbility");
    frame::setInt(element, "ImageFormatId", ability.getImageFormatId());
    frame::setInt(element, "MaxSensitivity", ability.getMaxSensitivity());
    frame::setInt(element, "MinFrameInterval", ability.getMinFrameInterval());
    return element;
}

bool MotionDetectionAbilityXml::readElement(const TiXmlElement& element, MotionDetectionAbility& ability)
{
    ability.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    ability.setMaxSensitivity(frame::intOf(element, "MaxSensitivity", 0));
    ability.setMinFrameInterval(frame::intOf(element, "MinFrameInterval", 0));
    return true;
}
