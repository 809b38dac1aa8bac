// <PrivilegeGroupList>
//     <PrivilegeGroup GroupId="3" GroupName="Guards" Desc="At the gate" />
// </PrivilegeGroupList>

#include "security/PrivilegeGroupXml.h"

#include "core/Frame.h"

#include <utility>

PrivilegeGroupXml::PrivilegeGroupXml() = default;

PrivilegeGroupXml::~PrivilegeGroupXml() = default;

bool PrivilegeGroupXml::createDomainXmlNode(const PrivilegeGroup& group, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("GroupId", group.getGroupId());
    node->setProperty("GroupName", group.getGroupName());
    node->setProperty("Desc", group.getDesc());
    return true;
}

bool PrivilegeGroupXml::createDomainXmlNode(const std::vector<PrivilegeGroup>& groups,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const PrivilegeGroup& group : groups)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PrivilegeGroup");
        if (!createDomainXmlNode(group, item)) return false;
    }
    return true;
}

bool PrivilegeGroupXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PrivilegeGroup& group) const
{
    if (!node) return false;

    group.setGroupId(
        frame::intProperty(node, "GroupId", 0, "PrivilegeGroupXml::parseDomainXmlNode get GroupId failed "));
    group.setGroupName(
        frame::textProperty(node, "GroupName", "", "PrivilegeGroupXml::parseDomainXmlNode get GroupName failed "));
    group.setDesc(frame::textProperty(node, "Desc", "", "PrivilegeGroupXml::parseDomainXmlNode get Desc failed "));
    return true;
}

bool PrivilegeGroupXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<PrivilegeGroup>& groups) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PrivilegeGroup group;
        if (!parseDomainXmlNode(frame::nodeOf(*item), group)) return false;
        groups.push_back(std::move(group));
    }
    return true;
}

bool PrivilegeGroupXml::createXmlString(const PrivilegeGroup& group, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PrivilegeGroup");
    return createDomainXmlNode(group, node) && DomainXmlNode::toString(node, text);
}

bool PrivilegeGroupXml::createXmlString(const std::vector<PrivilegeGroup>& groups, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PrivilegeGroupList");
    return createDomainXmlNode(groups, node) && DomainXmlNode::toString(node, text);
}

bool PrivilegeGroupXml::parseXmlString(const std::string& text, PrivilegeGroup& group) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PrivilegeGroup", node) && parseDomainXmlNode(node, group);
}

bool PrivilegeGroupXml::parseXmlString(const std::string& text, std::vector<PrivilegeGroup>& groups) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "PrivilegeGroupList", node)) return false;

    // Unlike the node of a list, its text is read without a line.
    const TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PrivilegeGroup group;
        group.setGroupId(frame::intOf(*item, "GroupId", 0));
        group.setGroupName(frame::textOf(*item, "GroupName", ""));
        group.setDesc(frame::textOf(*item, "Desc", ""));
        groups.push_back(std::move(group));
    }
    return true;
}
