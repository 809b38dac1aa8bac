// <VideoResolutionAbility MaxFrameRate="25" MinFrameRate="1" ... MaxIFrameInterval="100" MinIFrameInterval="10"
//                         IFrameIntervalUnit="1">
//     <BitRateTypeList>
//         <BitRateType value="1" />
//     </BitRateTypeList>
//     <VideoResolution VideoHeight="1080" VideoWidth="1920" ResolutionName="1080P" />
// </VideoResolutionAbility>

#include "device/VideoResolutionAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"
#include "device/VideoResolutionXml.h"

#include <utility>

VideoResolutionAbilityXml::VideoResolutionAbilityXml() = default;

VideoResolutionAbilityXml::~VideoResolutionAbilityXml() = default;

void VideoResolutionAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool VideoResolutionAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoResolutionAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoResolutionAbility", document_, node_) && parseXmlNode();
}

bool VideoResolutionAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& VideoResolutionAbilityXml::writeElement(TiXmlNode& parent, const VideoResolutionAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoResolutionAbility");
    frame::setInt(element, "MaxFrameRate", ability.getMaxFrameRate());
    frame::setInt(element, "MinFrameRate", ability.getMinFrameRate());
    frame::setInt(element, "MaxBitRate", ability.getMaxBitRate());
    frame::setInt(element, "MinBitRate", ability.getMinBitRate());
    frame::setInt(element, "MaxQuality", ability.getMaxQuality());
    frame::setInt(element, "MinQuality", ability.getMinQuality());
    frame::setInt(element, "MaxIFrameInterval", ability.getMaxIFrameInterval());
    frame::setInt(element, "MinIFrameInterval", ability.getMinIFrameInterval());
    frame::setInt(element, "IFrameIntervalUnit", ability.getIFrameIntervalUnit());
    frame::appendInts(element, "BitRateTypeList", "BitRateType", "value", ability.getBitRateTypeList());
    VideoResolutionXml::writeElement(element, ability.getVideoResolution());
    return element;
}

bool VideoResolutionAbilityXml::readElement(const TiXmlElement& element, VideoResolutionAbility& ability)
{
    ability.setMaxFrameRate(frame::intOf(element, "MaxFrameRate", ability.getMaxFrameRate()));
    ability.setMinFrameRate(frame::intOf(element, "MinFrameRate", ability.getMinFrameRate()));
    ability.setMaxBitRate(frame::intOf(element, "MaxBitRate", ability.getMaxBitRate()));
    ability.setMinBitRate(frame::intOf(element, "MinBitRate", ability.getMinBitRate()));
    ability.setMaxQuality(frame::intOf(element, "MaxQuality", ability.getMaxQuality()));
    ability.setMinQuality(frame::intOf(element, "MinQuality", ability.getMinQuality()));
    ability.setMaxIFrameInterval(frame::intOf(element, "MaxIFrameInterval", ability.getMaxIFrameInterval()));
    ability.setMinIFrameInterval(frame::intOf(element, "MinIFrameInterval", ability.getMinIFrameInterval()));
    ability.setIFrameIntervalUnit(frame::intOf(element, "IFrameIntervalUnit", 1));
    frame::readInts(element, "BitRateTypeList", "BitRateType", "value", ability.getBitRateTypeList());

    const TiXmlElement* child = element.FirstChildElement("VideoResolution");
    if (child != nullptr)
    {
        VideoResolution resolution;
        if (!VideoResolutionXml::readElement(*child, resolution)) return false;
        ability.getVideoResolution() = std::move(resolution);
    }
    return true;
}
