// <AudioExAbility>
//     <InterPhoneFlag Value="true" />
//     <AudioInFlag Value="true" />
//     <AudioInTypeList>
//         <AudioInType AudioInTypeId="1" AudioInTypeName="Line" />
//     </AudioInTypeList>
//     <AudioOutFlag Value="true" />
//     <AudioOutTypeList>
//         <AudioOutType AudioOutTypeId="1" AudioOutTypeName="Speaker" />
//     </AudioOutTypeList>
//     <AudioEncodeTypeList>
//         <AudioEncodeType AudioEncodeTypeId="1" AudioEncodeTypeName="AAC" />
//     </AudioEncodeTypeList>
//     <AudioDecodeTypeList>
//         <AudioDecodeType AudioDecodeTypeId="1" AudioDecodeTypeName="G711" />
//     </AudioDecodeTypeList>
// </AudioExAbility>

#include "device/AudioExAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"
#include "device/AudioDecodeTypeXml.h"
#include "device/AudioEncodeTypeXml.h"
#include "device/AudioInTypeXml.h"
#include "device/AudioOutTypeXml.h"

#include <utility>

AudioExAbilityXml::AudioExAbilityXml() = default;

AudioExAbilityXml::~AudioExAbilityXml() = default;

void AudioExAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool AudioExAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AudioExAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "AudioExAbility", document_, node_) && parseXmlNode();
}

bool AudioExAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& AudioExAbilityXml::writeElement(TiXmlNode& parent, const AudioExAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "AudioExAbility");
    frame::appendFlag(element, "InterPhoneFlag", "Value", ability.getInterPhoneFlag());
    frame::appendFlag(element, "AudioInFlag", "Value", ability.getAudioInFlag());

    TiXmlElement& inputs = frame::appendElement(element, "AudioInTypeList");
    for (const AudioInType& input : ability.getAudioInTypeList())
        AudioInTypeXml::writeElement(inputs, input);

    frame::appendFlag(element, "AudioOutFlag", "Value", ability.getAudioOutFlag());

    TiXmlElement& outputs = frame::appendElement(element, "AudioOutTypeList");
    for (const AudioOutType& output : ability.getAudioOutTypeList())
        AudioOutTypeXml::writeElement(outputs, output);

    TiXmlElement& encodings = frame::appendElement(element, "AudioEncodeTypeList");
    for (const AudioEncodeType& encoding : ability.getAudioEncodeTypeList())
        AudioEncodeTypeXml::writeElement(encodings, encoding);

    TiXmlElement& decodings = frame::appendElement(element, "AudioDecodeTypeList");
    for (const AudioDecodeType& decoding : ability.getAudioDecodeTypeList())
        AudioDecodeTypeXml::writeElement(decodings, decoding);
    return element;
}

bool AudioExAbilityXml::readElement(const TiXmlElement& element, AudioExAbility& ability)
{
    ability.setInterPhoneFlag(frame::childFlagOf(element, "InterPhoneFlag", "Value", ability.getInterPhoneFlag()));
    ability.setAudioInFlag(frame::childFlagOf(element, "AudioInFlag", "Value", ability.getAudioInFlag()));
    ability.setAudioOutFlag(frame::childFlagOf(element, "AudioOutFlag", "Value", ability.getAudioOutFlag()));

    const TiXmlElement* item = frame::firstItem(element, "AudioEncodeTypeList", "AudioEncodeType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioEncodeType type;
        if (!AudioEncodeTypeXml::readElement(*item, type)) return false;
        ability.getAudioEncodeTypeList().push_back(std::move(type));
    }

    item = frame::firstItem(element, "AudioDecodeTypeList", "AudioDecodeType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioDecodeType type;
        if (!AudioDecodeTypeXml::readElement(*item, type)) return false;
        ability.getAudioDecodeTypeList().push_back(std::move(type));
    }

    item = frame::firstItem(element, "AudioInTypeList", "AudioInType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioInType type;
        if (!AudioInTypeXml::readElement(*item, type)) return false;
        ability.getAudioInTypeList().push_back(std::move(type));
    }

    item = frame::firstItem(element, "AudioOutTypeList", "AudioOutType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioOutType type;
        if (!AudioOutTypeXml::readElement(*item, type)) return false;
        ability.getAudioOutTypeList().push_back(std::move(type));
    }
    return true;
}
