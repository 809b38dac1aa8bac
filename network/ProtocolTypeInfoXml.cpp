// <ProtocolConfigList>
//     <ProtocolConfig ProtocolName="CMS" ProtocolId="P-4" ProtocolType="2" ProtocolEnable="true" />
// </ProtocolConfigList>
//
// The documents of central registration have a "ProtocolConfig" with other attributes; peers tell the two apart by the
// command that carries them.

#include "network/ProtocolTypeInfoXml.h"

#include "core/Frame.h"

#include <utility>

ProtocolTypeInfoXml::ProtocolTypeInfoXml() = default;

ProtocolTypeInfoXml::~ProtocolTypeInfoXml() = default;

bool ProtocolTypeInfoXml::createDomainXmlNode(const std::vector<ProtocolTypeInfo>& infos,
                                              SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ProtocolTypeInfo& info : infos)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ProtocolConfig");
        item->setProperty("ProtocolName", info.getProtocolName());
        item->setProperty("ProtocolId", info.getProtocolId());
        item->setProperty("ProtocolType", info.getProtocolConfigType());
        item->setProperty("ProtocolEnable", info.getProtocolEnable());
    }
    return true;
}

bool ProtocolTypeInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                             std::vector<ProtocolTypeInfo>& infos) const
{
    if (!node) return false;

    const TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ProtocolTypeInfo info;
        info.setProtocolName(frame::textOf(*item, "ProtocolName", ""));
        info.setProtocolId(frame::textOf(*item, "ProtocolId", ""));
        info.setProtocolConfigType(frame::intOf(*item, "ProtocolType", 0));
        info.setProtocolEnableFlag(frame::flagOf(*item, "ProtocolEnable", false));
        infos.push_back(std::move(info));
    }
    return true;
}

bool ProtocolTypeInfoXml::createXmlString(const std::vector<ProtocolTypeInfo>& infos, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ProtocolConfigList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool ProtocolTypeInfoXml::parseXmlString(const std::string& text, std::vector<ProtocolTypeInfo>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ProtocolConfigList", node) && parseDomainXmlNode(node, infos);
}
