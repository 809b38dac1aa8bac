// <VideoAbility CameraNum="1">
//     <CameraAbilityList>
//         <CameraAbility> ... </CameraAbility>
//     </CameraAbilityList>
// </VideoAbility>

#include "device/VideoAbilityXml.h"

#include "core/Frame.h"
#include "device/CameraAbilityXml.h"

#include <utility>

VideoAbilityXml::VideoAbilityXml() = default;

VideoAbilityXml::~VideoAbilityXml() = default;

void VideoAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool VideoAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoAbility", document_, node_) && parseXmlNode();
}

bool VideoAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& VideoAbilityXml::writeElement(TiXmlNode& parent, const VideoAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoAbility");
    frame::setInt(element, "CameraNum", ability.getCameraNum());

    TiXmlElement& cameras = frame::appendElement(element, "CameraAbilityList");
    for (const CameraAbility& camera : ability.getCameraAbilityList())
        CameraAbilityXml::writeElement(cameras, camera);
    return element;
}

bool VideoAbilityXml::readElement(const TiXmlElement& element, VideoAbility& ability)
{
    // "CameraNum" is for peers that show it. Readers count the cameras of the list, and keep the number that they hold.
    const TiXmlElement* item = frame::firstItem(element, "CameraAbilityList", "CameraAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraAbility camera;
        if (!CameraAbilityXml::readElement(*item, camera)) return false;
        ability.addCameraAbility(std::move(camera));
    }
    return true;
}
