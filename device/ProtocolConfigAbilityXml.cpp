// <ProtocolConfigAbility>
//     <ProtocolType ProtocolName="RTSP">
//         <ProtocolInfo ProtocolVersion="2.1" />
//     </ProtocolType>
// </ProtocolConfigAbility>

#include "device/ProtocolConfigAbilityXml.h"

#include "core/Frame.h"

#include <utility>
#include <vector>

ProtocolConfigAbilityXml::ProtocolConfigAbilityXml() = default;

ProtocolConfigAbilityXml::~ProtocolConfigAbilityXml() = default;

bool ProtocolConfigAbilityXml::createXmlString(const ProtocolConfigAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ProtocolConfigAbility");
    return create(ability, node) && DomainXmlNode::toString(node, text);
}

bool ProtocolConfigAbilityXml::parseXmlString(const std::string& text, ProtocolConfigAbility& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ProtocolConfigAbility", node) && parse(node, ability);
}

bool ProtocolConfigAbilityXml::create(const ProtocolConfigAbility& ability, SafePointer<DomainXmlNode>& node) const
{
    for (const ProtocolType& type : ability.getProtocolTypeList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ProtocolType");
        if (!createProtocolType(type, item)) return false;
    }
    return true;
}

bool ProtocolConfigAbilityXml::createProtocolType(const ProtocolType& type, SafePointer<DomainXmlNode>& node) const
{
    if (!node->setProperty("ProtocolName", type.getProtocolName())) return false;
    for (const ProtocolInfo& info : type.getProtocolInfoList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ProtocolInfo");
        if (!createProtocolInfo(info, item)) return false;
    }
    return true;
}

bool ProtocolConfigAbilityXml::createProtocolInfo(const ProtocolInfo& info, SafePointer<DomainXmlNode>& node) const
{
    return node->setProperty("ProtocolVersion", info.getProtocolVersion());
}

bool ProtocolConfigAbilityXml::parse(const SafePointer<DomainXmlNode>& node, ProtocolConfigAbility& ability) const
{
    std::vector<ProtocolType> types;
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ProtocolType type;
        if (!parseProtocolType(frame::nodeOf(*item), type)) return false;
        types.push_back(std::move(type));
    }
    ability.getProtocolTypeList() = std::move(types);
    return true;
}

bool ProtocolConfigAbilityXml::parseProtocolType(const SafePointer<DomainXmlNode>& node, ProtocolType& type) const
{
    type.setProtocolName(frame::textProperty(node, "ProtocolName", ""));
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ProtocolInfo info;
        if (!parseProtocolInfo(frame::nodeOf(*item), info)) return false;
        type.getProtocolInfoList().push_back(std::move(info));
    }
    return true;
}

bool ProtocolConfigAbilityXml::parseProtocolInfo(const SafePointer<DomainXmlNode>& node, ProtocolInfo& info) const
{
    info.setProtocolVersion(frame::textProperty(node, "ProtocolVersion", ""));
    return true;
}
