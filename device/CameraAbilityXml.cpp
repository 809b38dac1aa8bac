// <CameraAbility>
//     <EncoderAbilitylist>
//         <EncoderAbility ...> ... </EncoderAbility>
//     </EncoderAbilitylist>
//     <MotionDetectionAbilityList>
//         <MotionDetectionAbility ImageFormatId="1" MaxSensitivity="9" MinFrameInterval="2" />
//     </MotionDetectionAbilityList>
//     <CameraId value="1" />
//     <UserConfigurable value="true" />
//     <MotionDetectionSupportFlag value="true" />
// </CameraAbility>
//
// The peers' spelling: "EncoderAbilitylist" has a small "l", the other list a capital one.

#include "device/CameraAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"
#include "device/EncoderAbilityXml.h"
#include "device/MotionDetectionAbilityXml.h"

#include <utility>

CameraAbilityXml::CameraAbilityXml() = default;

CameraAbilityXml::~CameraAbilityXml() = default;

void CameraAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool CameraAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CameraAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "CameraAbility", document_, node_) && parseXmlNode();
}

bool CameraAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& CameraAbilityXml::writeElement(TiXmlNode& parent, const CameraAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "CameraAbility");
    TiXmlElement& encoders = frame::appendElement(element, "EncoderAbilitylist");
    for (const EncoderAbility& encoder : ability.getEncoderAbilityList())
        EncoderAbilityXml::writeElement(encoders, encoder);

    TiXmlElement& detections = frame::appendElement(element, "MotionDetectionAbilityList");
    for (const MotionDetectionAbility& detection : ability.getMotionDetectionAbilityList())
        MotionDetectionAbilityXml::writeElement(detections, detection);

    frame::appendInt(element, "CameraId", "value", ability.getCameraId());
    frame::appendFlag(element, "UserConfigurable", "value", ability.getUserConfigurable());
    frame::appendFlag(element, "MotionDetectionSupportFlag", "value", ability.getMotionDetectionSupportFlag());
    return element;
}

bool CameraAbilityXml::readElement(const TiXmlElement& element, CameraAbility& ability)
{
    const TiXmlElement* item = frame::firstItem(element, "EncoderAbilitylist", "EncoderAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        EncoderAbility encoder;
        if (!EncoderAbilityXml::readElement(*item, encoder)) return false;
        ability.addEncoderAbility(std::move(encoder));
    }

    item = frame::firstItem(element, "MotionDetectionAbilityList", "MotionDetectionAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        MotionDetectionAbility detection;
        if (!MotionDetectionAbilityXml::readElement(*item, detection)) return false;
        ability.addMotionDetectionAbility(detection);
    }

    ability.setCameraId(frame::childIntOf(element, "CameraId", "value", 0));
    ability.setUserConfigurable(frame::childFlagOf(element, "UserConfigurable", "value", false));
    ability.setMotionDetectionSupportFlag(frame::childFlagOf(element, "MotionDetectionSupportFlag", "value", false));
    return true;
}
