// <AudioAbility>
//     <InterPhoneFlag Value="true" />
//     <AudioEncodeTypeList>
//         <AudioEncodeType Value="1" />
//     </AudioEncodeTypeList>
//     <AudioDecodeTypeList>
//         <AudioDecodeType Value="1" />
//     </AudioDecodeTypeList>
//     <AudioInTypeList>
//         <AudioInType Value="1" />
//     </AudioInTypeList>
// </AudioAbility>

#include "device/AudioAbilityXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"
#include "device/AbilitySteps.h"

#include <vector>

namespace
{

/// Adds the numbers of the elements named @p name. One whose text begins with no number counts as missing.
void readTypes(const TiXmlElement* list, const char* name, std::vector<int>& types)
{
    const TiXmlElement* item = list != nullptr ? list->FirstChildElement(name) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement(name))
    {
        const char* text = frame::attributeOf(*item, "Value");
        long long type = 0;
        if (text != nullptr && frame::readInteger(text, type)) types.push_back(static_cast<int>(type));
    }
}

} // namespace

AudioAbilityXml::AudioAbilityXml() = default;

AudioAbilityXml::~AudioAbilityXml() = default;

void AudioAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool AudioAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioAbility", document_, node_) && parseXmlNode();
}

bool AudioAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& AudioAbilityXml::writeElement(TiXmlNode& parent, const AudioAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioAbility");
    frame::appendFlag(element, "InterPhoneFlag", "Value", ability.getInterPhoneFlag());
    frame::appendInts(element, "AudioEncodeTypeList", "AudioEncodeType", "Value", ability.getAudioEncodeTypeList());
    frame::appendInts(element, "AudioDecodeTypeList", "AudioDecodeType", "Value", ability.getAudioDecodeTypeList());
    frame::appendInts(element, "AudioInTypeList", "AudioInType", "Value", ability.getAudioInTypeList());
    return element;
}

bool AudioAbilityXml::readElement(const TiXmlElement& element, AudioAbility& ability)
{
    ability.setInterPhoneFlag(frame::childFlagOf(element, "InterPhoneFlag", "Value", ability.getInterPhoneFlag()));
    parseAudioEncodeList(element.FirstChildElement("AudioEncodeTypeList"), ability);
    parseAudioDecodeList(element.FirstChildElement("AudioDecodeTypeList"), ability);
    parseAudioInList(element.FirstChildElement("AudioInTypeList"), ability);
    return true;
}

void AudioAbilityXml::parseAudioEncodeList(const TiXmlElement* list, AudioAbility& ability)
{
    readTypes(list, "AudioEncodeType", ability.getAudioEncodeTypeList());
}

void AudioAbilityXml::parseAudioDecodeList(const TiXmlElement* list, AudioAbility& ability)
{
    readTypes(list, "AudioDecodeType", ability.getAudioDecodeTypeList());
}

void AudioAbilityXml::parseAudioInList(const TiXmlElement* list, AudioAbility& ability)
{
    readTypes(list, "AudioInType", ability.getAudioInTypeList());
}
