// <AudioProcessList>
//     <Processor ModuleId="1" SupportFlag="true">
//         <ProcessParam TypeId="2" EnableFlag="true" />
//     </Processor>
// </AudioProcessList>

#include "media/AudioProcessInfoXml.h"

#include "core/Frame.h"
#include "media/AudioProcessParamXml.h"

#include <utility>

AudioProcessInfoXml::AudioProcessInfoXml() = default;

AudioProcessInfoXml::~AudioProcessInfoXml() = default;

bool AudioProcessInfoXml::createDomainXmlNode(const std::vector<AudioProcessInfo>& infos,
                                              SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    const AudioProcessParamXml paramCodec;
    for (const AudioProcessInfo& info : infos)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "Processor");
        item->setProperty("ModuleId", info.getModuleId());
        item->setProperty("SupportFlag", info.getEnableFlag());

        for (const AudioProcessParam& param : info.getProcessParamList())
        {
            SafePointer<DomainXmlNode> paramItem = frame::appendNode(item, "ProcessParam");
            if (!paramCodec.createDomainXmlNode(param, paramItem)) return false;
        }
    }
    return true;
}

bool AudioProcessInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                             std::vector<AudioProcessInfo>& infos) const
{
    if (!node) return false;

    const AudioProcessParamXml paramCodec;
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AudioProcessInfo info;
        info.setModuleId(frame::intOf(*item, "ModuleId", 0));
        info.setEnableFlag(frame::flagOf(*item, "SupportFlag", false));

        TiXmlElement* paramItem = item->FirstChildElement("ProcessParam");
        for (; paramItem != nullptr; paramItem = paramItem->NextSiblingElement("ProcessParam"))
        {
            AudioProcessParam param;
            if (!paramCodec.parseDomainXmlNode(frame::nodeOf(*paramItem), param)) return false;
            info.getProcessParamList().push_back(param);
        }
        infos.push_back(std::move(info));
    }
    return true;
}

bool AudioProcessInfoXml::createXmlString(const std::vector<AudioProcessInfo>& infos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AudioProcessList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool AudioProcessInfoXml::parseXmlString(const std::string& text, std::vector<AudioProcessInfo>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AudioProcessList", node) && parseDomainXmlNode(node, infos);
}
