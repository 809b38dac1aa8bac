// <VideoEncoderAbility VideoEncoderType="1" VideoEncoderName="H.264" VideoEncodeTotleAbility="16">
//     <VideoResolutionAbilityList>
//         <VideoResolutionAbility ...> ... </VideoResolutionAbility>
//     </VideoResolutionAbilityList>
// </VideoEncoderAbility>
//
// "Totle" is the peers' spelling: they know the attribute by no other name.

#include "device/VideoEncoderAbilityXml.h"

#include "core/Frame.h"
#include "device/VideoResolutionAbilityXml.h"

#include <utility>

VideoEncoderAbilityXml::VideoEncoderAbilityXml() = default;

VideoEncoderAbilityXml::~VideoEncoderAbilityXml() = default;

void VideoEncoderAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool VideoEncoderAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoEncoderAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoEncoderAbility", document_, node_) && parseXmlNode();
}

bool VideoEncoderAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& VideoEncoderAbilityXml::writeElement(TiXmlNode& parent, const VideoEncoderAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoEncoderAbility");
    frame::setInt(element, "VideoEncoderType", ability.getEncoderType());
    frame::setText(element, "VideoEncoderName", ability.getEncoderName());
    frame::setInt(element, "VideoEncodeTotleAbility", ability.getVideoEncodeTotleAbility());

    TiXmlElement& resolutions = frame::appendElement(element, "VideoResolutionAbilityList");
    for (const VideoResolutionAbility& resolution : ability.getVideoResolutionAbilityList())
        VideoResolutionAbilityXml::writeElement(resolutions, resolution);
    return element;
}

bool VideoEncoderAbilityXml::readElement(const TiXmlElement& element, VideoEncoderAbility& ability)
{
    ability.setEncoderType(frame::intOf(element, "VideoEncoderType", ability.getEncoderType()));
    ability.setEncoderName(frame::textOf(element, "VideoEncoderName", ability.getEncoderName()));
    ability.setVideoEncodeTotleAbility(
        frame::intOf(element, "VideoEncodeTotleAbility", ability.getVideoEncodeTotleAbility()));

    const TiXmlElement* item = frame::firstItem(element, "VideoResolutionAbilityList", "VideoResolutionAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoResolutionAbility resolution;
        if (!VideoResolutionAbilityXml::readElement(*item, resolution)) return false;
        ability.getVideoResolutionAbilityList().push_back(std::move(resolution));
    }
    return true;
}
