// <DeviceAbility>
//     <VideoAbility CameraNum="4"> ... </VideoAbility>
//     <AudioAbility> ... </AudioAbility>
// </DeviceAbility>

#include "device/DeviceAbilityXml.h"

#include "core/Frame.h"
#include "device/AudioAbilityXml.h"
#include "device/VideoAbilityXml.h"

DeviceAbilityXml::DeviceAbilityXml() = default;

DeviceAbilityXml::~DeviceAbilityXml() = default;

void DeviceAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool DeviceAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceAbility", document_, node_) && parseXmlNode();
}

bool DeviceAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& DeviceAbilityXml::writeElement(TiXmlNode& parent, const DeviceAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceAbility");
    VideoAbilityXml::writeElement(element, ability.getVideoAbility());
    AudioAbilityXml::writeElement(element, ability.getAudioAbility());
    return element;
}

bool DeviceAbilityXml::readElement(const TiXmlElement& element, DeviceAbility& /*ability*/)
{
    // The peers hand their children's codecs an element and then have them parse a text, which is empty and fails. What
    // they answer to a whole document rests on that, so it fails here, too.
    return element.FirstChildElement("VideoAbility") == nullptr && element.FirstChildElement("AudioAbility") == nullptr;
}
