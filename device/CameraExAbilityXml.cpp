// <CameraExAbility>
//     <VideoResolution VideoHeight="1080" VideoWidth="1920" ResolutionName="1080P" />
//     <BlindAbility maxBlindAreaNum="4" blindArea="50" type="1" />
//     <SourceResolutionList>
//         <VideoResolution ... />
//     </SourceResolutionList>
//     <VideoResolutionList>
//         <VideoResolution ... />
//     </VideoResolutionList>
//     <AVStreamAbilityList>
//         <AVStreamAbility> ... </AVStreamAbility>
//     </AVStreamAbilityList>
//     <MotionDetectionExAbility ... />
//     <CameraId value="1" />
// </CameraExAbility>

#include "device/CameraExAbilityXml.h"

#include "core/Frame.h"
#include "device/AVStreamAbilityXml.h"
#include "device/AbilitySteps.h"
#include "device/BlindAbilityXml.h"
#include "device/MotionDetectionExAbilityXml.h"
#include "device/VideoResolutionXml.h"

#include <utility>

CameraExAbilityXml::CameraExAbilityXml() = default;

CameraExAbilityXml::~CameraExAbilityXml() = default;

void CameraExAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool CameraExAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CameraExAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "CameraExAbility", document_, node_) && parseXmlNode();
}

bool CameraExAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& CameraExAbilityXml::writeElement(TiXmlNode& parent, const CameraExAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "CameraExAbility");
    VideoResolutionXml::writeElement(element, ability.getMaxVideoResolution());
    BlindAbilityXml::writeElement(element, ability.getBlindAbility());
    VideoResolutionXml::writeList(element, "SourceResolutionList", ability.getSourceResolutionList());
    VideoResolutionXml::writeList(element, "VideoResolutionList", ability.getVideoResolutionList());

    TiXmlElement& streams = frame::appendElement(element, "AVStreamAbilityList");
    for (const AVStreamAbility& stream : ability.getAVStreamAbilityList())
        AVStreamAbilityXml::writeElement(streams, stream);

    MotionDetectionExAbilityXml::writeElement(element, ability.getMotionDetectionExAbility());
    frame::appendInt(element, "CameraId", "value", ability.getCameraId());
    return element;
}

bool CameraExAbilityXml::readElement(const TiXmlElement& element, CameraExAbility& ability)
{
    const TiXmlElement* child = element.FirstChildElement("VideoResolution");
    if (child != nullptr)
    {
        VideoResolution resolution;
        if (!VideoResolutionXml::readElement(*child, resolution)) return false;
        ability.getMaxVideoResolution() = std::move(resolution);
    }

    child = element.FirstChildElement("BlindAbility");
    if (child != nullptr)
    {
        BlindAbility blind;
        if (!BlindAbilityXml::readElement(*child, blind)) return false;
        ability.setBlindAbility(blind);
    }

    if (!VideoResolutionXml::readList(element, "SourceResolutionList", ability.getSourceResolutionList())) return false;
    if (!VideoResolutionXml::readList(element, "VideoResolutionList", ability.getVideoResolutionList())) return false;

    const TiXmlElement* item = frame::firstItem(element, "AVStreamAbilityList", "AVStreamAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AVStreamAbility stream;
        if (!AVStreamAbilityXml::readElement(*item, stream)) return false;
        ability.getAVStreamAbilityList().push_back(std::move(stream));
    }

    child = element.FirstChildElement("MotionDetectionExAbility");
    if (child != nullptr)
    {
        MotionDetectionExAbility detection;
        if (!MotionDetectionExAbilityXml::readElement(*child, detection)) return false;
        ability.setMotionDetectionExAbility(detection);
    }

    ability.setCameraId(frame::childIntOf(element, "CameraId", "value", ability.getCameraId()));
    return true;
}
