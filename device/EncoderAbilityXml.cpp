// <EncoderAbility ImageFormatId="1" MaxFrameRate="25" MinFrameRate="1" ... height="576" width="704" EncoderType="1"
//                 VideoSystem="1">
//     <BitRateTypeList>
//         <BitRateType value="1" />
//     </BitRateTypeList>
// </EncoderAbility>

#include "device/EncoderAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"

EncoderAbilityXml::EncoderAbilityXml() = default;

EncoderAbilityXml::~EncoderAbilityXml() = default;

void EncoderAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool EncoderAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool EncoderAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "EncoderAbility", document_, node_) && parseXmlNode();
}

bool EncoderAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& EncoderAbilityXml::writeElement(TiXmlNode& parent, const EncoderAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "EncoderAbility");
    frame::setInt(element, "ImageFormatId", ability.getImageFormatId());
    frame::setInt(element, "MaxFrameRate", ability.getMaxFrameRate());
    frame::setInt(element, "MinFrameRate", ability.getMinFrameRate());
    frame::setInt(element, "MaxBitRate", ability.getMaxBitRate());
    frame::setInt(element, "MinBitRate", ability.getMinBitRate());
    frame::setInt(element, "MaxQuality", ability.getMaxQuality());
    frame::setInt(element, "MinQuality", ability.getMinQuality());
    frame::setInt(element, "height", ability.getHeight());
    frame::setInt(element, "width", ability.getWidth());
    frame::setInt(element, "EncoderType", ability.getEncoderType());
    frame::setInt(element, "VideoSystem", ability.getVideoSystem());
    frame::appendInts(element, "BitRateTypeList", "BitRateType", "value", ability.getBitRateTypeList());
    return element;
}

bool EncoderAbilityXml::readElement(const TiXmlElement& element, EncoderAbility& ability)
{
    ability.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    ability.setMaxFrameRate(frame::intOf(element, "MaxFrameRate", 25));
    ability.setMinFrameRate(frame::intOf(element, "MinFrameRate", 1));
    ability.setMaxBitRate(frame::intOf(element, "MaxBitRate", 2048));
    ability.setMinBitRate(frame::intOf(element, "MinBitRate", 1024));
    ability.setMaxQuality(frame::intOf(element, "MaxQuality", 7));
    ability.setMinQuality(frame::intOf(element, "MinQuality", 1));
    ability.setHeight(frame::intOf(element, "height", 0));
    ability.setWidth(frame::intOf(element, "width", 0));
    ability.setEncoderType(frame::intOf(element, "EncoderType", 0));
    ability.setVideoSystem(frame::intOf(element, "VideoSystem", 0));

    const TiXmlElement* list = element.FirstChildElement("BitRateTypeList");
    const TiXmlElement* item = list != nullptr ? list->FirstChildElement() : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
        ability.addBitRateType(frame::intOf(*item, "value", 0));
    return true;
}
