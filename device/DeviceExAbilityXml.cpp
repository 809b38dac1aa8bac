// <DeviceExAbility>
//     <PTZAbility ...> ... </PTZAbility>
//     <VideoExAbility VideoSystemConfigurableFlag="true"> ... </VideoExAbility>
//     <AudioExAbility> ... </AudioExAbility>
//     <FileSystemAbilityList> ... </FileSystemAbilityList>
//     <WorkingModeAbility> ... </WorkingModeAbility>
//     <LanguageAbility> ... </LanguageAbility>
//     <NetworkAbility> ... </NetworkAbility>
//     <PIRAlarmAbility> ... </PIRAlarmAbility>
//     <WifiAbilityParam> ... </WifiAbilityParam>
// </DeviceExAbility>

#include "device/DeviceExAbilityXml.h"

#include "core/Frame.h"
#include "device/AudioExAbilityXml.h"
#include "device/FileSystemAbilityXml.h"
#include "device/IPCNetworkAbilityXml.h"
#include "device/LanguageAbilityXml.h"
#include "device/PIRAlarmAbilityXml.h"
#include "device/PTZAbilityXml.h"
#include "device/VideoExAbilityXml.h"
#include "device/WifiAbilityParamXml.h"
#include "device/WorkingModeAbilityXml.h"

#include <utility>
#include <vector>

namespace
{

// Devices of a single mode or language send these two without content. The peers know what to take then, the mode by
// this spelling.

std::vector<WorkingMode> readModes(const TiXmlElement& element)
{
    std::vector<WorkingMode> modes;
    if (!WorkingModeAbilityXml::readElement(element, modes))
    {
        WorkingMode mode;
        mode.setModeID(1);
        mode.setModeName("VedioMode");
        modes.push_back(mode);
    }
    return modes;
}

std::vector<LanguageType> readLanguages(const TiXmlElement& element)
{
    std::vector<LanguageType> languages;
    if (!LanguageAbilityXml::readElement(element, languages))
    {
        LanguageType language;
        language.setLanguageID(1);
        language.setLanguageName("English");
        languages.push_back(language);
    }
    return languages;
}

} // namespace

DeviceExAbilityXml::DeviceExAbilityXml() = default;

DeviceExAbilityXml::~DeviceExAbilityXml() = default;

void DeviceExAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool DeviceExAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceExAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceExAbility", document_, node_) && parseXmlNode();
}

bool DeviceExAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& DeviceExAbilityXml::writeElement(TiXmlNode& parent, const DeviceExAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceExAbility");
    PTZAbilityXml::writeElement(element, ability.getPTZAbility());
    VideoExAbilityXml::writeElement(element, ability.getVideoExAbility());
    AudioExAbilityXml::writeElement(element, ability.getAudioExAbility());
    FileSystemAbilityXml::writeElement(element, ability.getFileSystemAbilityList());
    WorkingModeAbilityXml::writeElement(element, ability.getWorkingModeAbility());
    LanguageAbilityXml::writeElement(element, ability.getLanguageAbility());
    IPCNetworkAbilityXml::writeElement(element, ability.getNetworkAbility());
    PIRAlarmAbilityXml::writeElement(element, ability.getPIRAlarmAbility());
    WifiAbilityParamXml::writeElement(element, ability.getWifiAbilityParam());
    return element;
}

bool DeviceExAbilityXml::readElement(const TiXmlElement& element, DeviceExAbility& ability)
{
    const TiXmlElement* child = element.FirstChildElement("PTZAbility");
    if (child != nullptr)
    {
        PTZAbility ptz;
        if (!PTZAbilityXml::readElement(*child, ptz)) return false;
        ability.getPTZAbility() = std::move(ptz);
    }

    child = element.FirstChildElement("VideoExAbility");
    if (child != nullptr)
    {
        VideoExAbility video;
        if (!VideoExAbilityXml::readElement(*child, video)) return false;
        ability.getVideoExAbility() = std::move(video);
    }

    child = element.FirstChildElement("AudioExAbility");
    if (child != nullptr)
    {
        AudioExAbility audio;
        if (!AudioExAbilityXml::readElement(*child, audio)) return false;
        ability.getAudioExAbility() = std::move(audio);
    }

    child = element.FirstChildElement("FileSystemAbilityList");
    if (child != nullptr)
    {
        std::vector<FileSystemAbility> disks;
        if (!FileSystemAbilityXml::readElement(*child, disks)) return false;
        ability.getFileSystemAbilityList() = std::move(disks);
    }

    child = element.FirstChildElement("WorkingModeAbility");
    if (child != nullptr) ability.setWorkingModeAbility(readModes(*child));

    child = element.FirstChildElement("LanguageAbility");
    if (child != nullptr) ability.setLanguageAbility(readLanguages(*child));

    child = element.FirstChildElement("NetworkAbility");
    if (child != nullptr)
    {
        std::vector<IPCNetworkCardAbility> cards;
        if (!IPCNetworkAbilityXml::readElement(*child, cards)) return false;
        ability.getNetworkAbility() = std::move(cards);
    }

    child = element.FirstChildElement("PIRAlarmAbility");
    if (child != nullptr)
    {
        PIRAlarmAbility infrared;
        if (!PIRAlarmAbilityXml::readElement(*child, infrared)) return false;
        ability.setPIRAlarmAbility(infrared);
    }

    child = element.FirstChildElement("WifiAbilityParam");
    if (child != nullptr)
    {
        WifiAbilityParam wifi;
        if (!WifiAbilityParamXml::readElement(*child, wifi)) return false;
        ability.getWifiAbilityParam() = std::move(wifi);
    }
    return true;
}
