// <Privilege GroupId="3">
//     <PrivilegeString String="Preview" />
//     <PrivilegeString String="Playback" />
// </Privilege>
//
// The group's attribute is whole here, where the accounts have "GroupI".

#include "security/PrivilegeXml.h"

#include "core/Frame.h"

#include <utility>

PrivilegeXml::PrivilegeXml() = default;

PrivilegeXml::~PrivilegeXml() = default;

bool PrivilegeXml::createDomainXmlNode(const Privilege& privilege, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("GroupId", privilege.getGroupId());
    for (const std::string& right : privilege.getPrivileges())
        frame::appendNode(node, "PrivilegeString")->setProperty("String", right);
    return true;
}

bool PrivilegeXml::createDomainXmlNode(const std::vector<Privilege>& privileges, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const Privilege& privilege : privileges)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "Privilege");
        if (!createDomainXmlNode(privilege, item)) return false;
    }
    return true;
}

bool PrivilegeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, Privilege& privilege) const
{
    if (!node) return false;

    int groupId = 0;
    if (!node->getProperty("GroupId", groupId)) return false;
    privilege.setGroupId(groupId);

    privilege.getPrivileges().clear();
    const TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
        privilege.getPrivileges().push_back(frame::textOf(*item, "String", ""));
    return true;
}

bool PrivilegeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<Privilege>& privileges) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        Privilege privilege;
        if (!parseDomainXmlNode(frame::nodeOf(*item), privilege)) return false;
        privileges.push_back(std::move(privilege));
    }
    return true;
}

bool PrivilegeXml::createXmlString(const Privilege& privilege, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("Privilege");
    return createDomainXmlNode(privilege, node) && DomainXmlNode::toString(node, text);
}

bool PrivilegeXml::parseXmlString(const std::string& text, Privilege& privilege) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "Privilege", node) && parseDomainXmlNode(node, privilege);
}
