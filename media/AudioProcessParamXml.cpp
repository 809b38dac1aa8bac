// <ProcessParam TypeId="2" EnableFlag="true" />
//
// The lines are spelt as the peers' consoles show them.

#include "media/AudioProcessParamXml.h"

#include <cstdio>

AudioProcessParamXml::AudioProcessParamXml() = default;

AudioProcessParamXml::~AudioProcessParamXml() = default;

bool AudioProcessParamXml::createDomainXmlNode(const AudioProcessParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    if (!node->setProperty("TypeId", param.getProcessType()))
    {
        std::puts("creare Audio Process type failed ");
        return false;
    }
    if (!node->setProperty("EnableFlag", param.getEnable()))
    {
        std::puts("create Audio enable Flag  failed ");
        return false;
    }
    return true;
}

bool AudioProcessParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AudioProcessParam& param) const
{
    if (!node) return false;

    int type = 0;
    if (!node->getProperty("TypeId", type))
    {
        std::puts("pare Audio Process type failed ");
        return false;
    }
    param.setProcessType(type);

    bool enable = false;
    if (!node->getProperty("EnableFlag", enable))
    {
        std::puts("pare Audio enable Flag  failed ");
        return false;
    }
    param.setEnable(enable);
    return true;
}
