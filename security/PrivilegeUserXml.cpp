// <PrivilegeUserList>
//     <PrivilegeUser UserId="7" UserName="operator" Password="not told" GroupI="2" LockFlag="true"
//                    MultiLoginFlag="false" Desc="Day shift" LockTime="3600" />
// </PrivilegeUserList>
//
// The group's attribute lacks its last letter in both forms, and peers look for it so. The node form puts "LockTime"
// right behind "LockFlag".

#include "security/PrivilegeUserXml.h"

#include "core/Frame.h"

#include <utility>

namespace
{

void writeItem(TiXmlElement& list, const PrivilegeUser& user)
{
    TiXmlElement& element = frame::appendElement(list, "PrivilegeUser");
    frame::setInt(element, "UserId", user.getUserId());
    frame::setText(element, "UserName", user.getUserName());
    frame::setText(element, "Password", user.getPassword());
    frame::setInt(element, "GroupI", user.getGroupId());
    frame::setFlag(element, "LockFlag", user.getLockFlag());
    frame::setFlag(element, "MultiLoginFlag", user.getMultiLoginFlag());
    frame::setText(element, "Desc", user.getDesc());
    // The peers write and read this one as a signed number; what has the highest bit set bears a minus sign.
    frame::setInt(element, "LockTime", static_cast<int>(user.getLockTime()));
}

void readItem(const TiXmlElement& element, PrivilegeUser& user)
{
    user.setUserId(frame::intOf(element, "UserId", 0));
    user.setUserName(frame::textOf(element, "UserName", "").c_str());
    user.setPassword(frame::textOf(element, "Password", "").c_str());
    user.setGroupId(frame::intOf(element, "GroupI", 0));
    user.setLockFlag(frame::flagOf(element, "LockFlag", false));
    user.setMultiLoginFlag(frame::flagOf(element, "MultiLoginFlag", false));
    user.setDesc(frame::textOf(element, "Desc", "").c_str());
    user.setLockTime(static_cast<unsigned long>(frame::longOf(element, "LockTime", 0)));
}

} // namespace

PrivilegeUserXml::PrivilegeUserXml() = default;

PrivilegeUserXml::~PrivilegeUserXml() = default;

void PrivilegeUserXml::createXmlNode()
{
    writeElement(document_, users_);
}

bool PrivilegeUserXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PrivilegeUserXml::parseXmlString()
{
    return frame::parseRoot(text_, "PrivilegeUserList", document_, node_) && parseXmlNode();
}

bool PrivilegeUserXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, users_);
}

TiXmlElement& PrivilegeUserXml::writeElement(TiXmlNode& parent, const std::vector<PrivilegeUser>& users)
{
    TiXmlElement& element = frame::appendElement(parent, "PrivilegeUserList");
    for (const PrivilegeUser& user : users)
        writeItem(element, user);
    return element;
}

bool PrivilegeUserXml::readElement(const TiXmlElement& element, std::vector<PrivilegeUser>& users)
{
    const TiXmlElement* item = frame::firstItem(element, "PrivilegeUser");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PrivilegeUser user;
        readItem(*item, user);
        users.push_back(std::move(user));
    }
    return true;
}

bool PrivilegeUserXml::createDomainXmlNode(const PrivilegeUser& user, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("UserId", user.getUserId());
    node->setProperty("UserName", user.getUserName());
    node->setProperty("Password", user.getPassword());
    node->setProperty("GroupI", user.getGroupId());
    node->setProperty("LockFlag", user.getLockFlag());
    node->setProperty("LockTime", static_cast<unsigned long long>(user.getLockTime()));
    node->setProperty("MultiLoginFlag", user.getMultiLoginFlag());
    node->setProperty("Desc", user.getDesc());
    return true;
}

bool PrivilegeUserXml::createDomainXmlNode(const std::vector<PrivilegeUser>& users,
                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const PrivilegeUser& user : users)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PrivilegeUser");
        if (!createDomainXmlNode(user, item)) return false;
    }
    return true;
}

bool PrivilegeUserXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PrivilegeUser& user) const
{
    if (!node) return false;

    user.setUserId(frame::intProperty(node, "UserId", 0, "PrivilegeUserXml::parseDomainXmlNode get UserId failed "));
    user.setUserName(
        frame::textProperty(node, "UserName", "", "PrivilegeUserXml::parseDomainXmlNode get UserName failed ").c_str());
    user.setPassword(
        frame::textProperty(node, "Password", "", "PrivilegeUserXml::parseDomainXmlNode get Password failed ").c_str());
    user.setGroupId(frame::intProperty(node, "GroupI", 0, "PrivilegeUserXml::parseDomainXmlNode get GroupId failed "));
    user.setLockFlag(
        frame::flagProperty(node, "LockFlag", false, "PrivilegeUserXml::parseDomainXmlNode get LockFlag failed "));
    user.setLockTime(static_cast<unsigned long>(
        frame::unsignedProperty(node, "LockTime", 0, "PrivilegeUserXml::parseDomainXmlNode get LockTime failed ")));
    user.setMultiLoginFlag(frame::flagProperty(node, "MultiLoginFlag", false,
                                               "PrivilegeUserXml::parseDomainXmlNode get MultiLoginFlag failed "));
    user.setDesc(
        frame::textProperty(node, "Desc", "", "PrivilegeUserXml::parseDomainXmlNode get Desc failed ").c_str());
    return true;
}

bool PrivilegeUserXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                          std::vector<PrivilegeUser>& users) const
{
    if (!node) return false;

    TiXmlElement* list = node->getXmlNode();
    TiXmlElement* item = list != nullptr ? list->FirstChildElement("PrivilegeUser") : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement("PrivilegeUser"))
    {
        PrivilegeUser user;
        if (!parseDomainXmlNode(frame::nodeOf(*item), user)) return false;
        users.push_back(std::move(user));
    }
    return true;
}

bool PrivilegeUserXml::createXmlString(const PrivilegeUser& user, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PrivilegeUser");
    return createDomainXmlNode(user, node) && DomainXmlNode::toString(node, text);
}

bool PrivilegeUserXml::createXmlString(const std::vector<PrivilegeUser>& users, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PrivilegeUserList");
    return createDomainXmlNode(users, node) && DomainXmlNode::toString(node, text);
}

bool PrivilegeUserXml::parseXmlString(const std::string& text, PrivilegeUser& user) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PrivilegeUser", node) && parseDomainXmlNode(node, user);
}

bool PrivilegeUserXml::parseXmlString(const std::string& text, std::vector<PrivilegeUser>& users) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PrivilegeUserList", node) && parseDomainXmlNode(node, users);
}
