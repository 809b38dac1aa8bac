// <ZT_PrivilegeUserList>
//     <ZT_PrivilegeUser ZT_UserId="7" ZT_UserName="operator" ZT_Password="not told" ZT_GroupI="2" ZT_LockFlag="true"
//                       ZT_MultiLoginFlag="false" ZT_Desc="Day shift" ZT_LockTime="3600" />
// </ZT_PrivilegeUserList>
//
// The lines name the unprefixed twin: those who watch the output of a device know these. The group's attribute lacks
// its last letter in both forms, and peers look for it so. The node form puts "ZT_LockTime" right behind "ZT_LockFlag".

#include "security/ZT_PrivilegeUserXml.h"

#include "core/Frame.h"

#include <utility>

namespace
{

void writeItem(TiXmlElement& list, const ZT_PrivilegeUser& user)
{
    TiXmlElement& element = frame::appendElement(list, "ZT_PrivilegeUser");
    frame::setInt(element, "ZT_UserId", user.getUserId());
    frame::setText(element, "ZT_UserName", user.getUserName());
    frame::setText(element, "ZT_Password", user.getPassword());
    frame::setInt(element, "ZT_GroupI", user.getGroupId());
    frame::setFlag(element, "ZT_LockFlag", user.getLockFlag());
    frame::setFlag(element, "ZT_MultiLoginFlag", user.getMultiLoginFlag());
    frame::setText(element, "ZT_Desc", user.getDesc());
    // The peers write and read this one as a signed number; what has the highest bit set bears a minus sign.
    frame::setInt(element, "ZT_LockTime", static_cast<int>(user.getLockTime()));
}

void readItem(const TiXmlElement& element, ZT_PrivilegeUser& user)
{
    user.setUserId(frame::intOf(element, "ZT_UserId", 0));
    user.setUserName(frame::textOf(element, "ZT_UserName", ""));
    user.setPassword(frame::textOf(element, "ZT_Password", ""));
    user.setGroupId(frame::intOf(element, "ZT_GroupI", 0));
    user.setLockFlag(frame::flagOf(element, "ZT_LockFlag", false));
    user.setMultiLoginFlag(frame::flagOf(element, "ZT_MultiLoginFlag", false));
    user.setDesc(frame::textOf(element, "ZT_Desc", ""));
    user.setLockTime(static_cast<unsigned long>(frame::longOf(element, "ZT_LockTime", 0)));
}

} // namespace

ZT_PrivilegeUserXml::ZT_PrivilegeUserXml() = default;

ZT_PrivilegeUserXml::~ZT_PrivilegeUserXml() = default;

void ZT_PrivilegeUserXml::createXmlNode()
{
    writeElement(document_, users_);
}

bool ZT_PrivilegeUserXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ZT_PrivilegeUserXml::parseXmlString()
{
    return frame::parseRoot(text_, "ZT_PrivilegeUserList", document_, node_) && parseXmlNode();
}

bool ZT_PrivilegeUserXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, users_);
}

TiXmlElement& ZT_PrivilegeUserXml::writeElement(TiXmlNode& parent, const std::vector<ZT_PrivilegeUser>& users)
{
    TiXmlElement& element = frame::appendElement(parent, "ZT_PrivilegeUserList");
    for (const ZT_PrivilegeUser& user : users)
        writeItem(element, user);
    return element;
}

bool ZT_PrivilegeUserXml::readElement(const TiXmlElement& element, std::vector<ZT_PrivilegeUser>& users)
{
    const TiXmlElement* item = frame::firstItem(element, "ZT_PrivilegeUser");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ZT_PrivilegeUser user;
        readItem(*item, user);
        users.push_back(std::move(user));
    }
    return true;
}

bool ZT_PrivilegeUserXml::createDomainXmlNode(const ZT_PrivilegeUser& user, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ZT_UserId", user.getUserId());
    node->setProperty("ZT_UserName", user.getUserName());
    node->setProperty("ZT_Password", user.getPassword());
    node->setProperty("ZT_GroupI", user.getGroupId());
    node->setProperty("ZT_LockFlag", user.getLockFlag());
    node->setProperty("ZT_LockTime", static_cast<unsigned long long>(user.getLockTime()));
    node->setProperty("ZT_MultiLoginFlag", user.getMultiLoginFlag());
    node->setProperty("ZT_Desc", user.getDesc());
    return true;
}

bool ZT_PrivilegeUserXml::createDomainXmlNode(const std::vector<ZT_PrivilegeUser>& users,
                                              SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ZT_PrivilegeUser& user : users)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ZT_PrivilegeUser");
        if (!createDomainXmlNode(user, item)) return false;
    }
    return true;
}

bool ZT_PrivilegeUserXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZT_PrivilegeUser& user) const
{
    if (!node) return false;

    user.setUserId(frame::intProperty(node, "ZT_UserId", 0, "PrivilegeUserXml::parseDomainXmlNode get UserId failed "));
    user.setUserName(
        frame::textProperty(node, "ZT_UserName", "", "PrivilegeUserXml::parseDomainXmlNode get UserName failed "));
    user.setPassword(
        frame::textProperty(node, "ZT_Password", "", "PrivilegeUserXml::parseDomainXmlNode get Password failed "));
    user.setGroupId(
        frame::intProperty(node, "ZT_GroupI", 0, "PrivilegeUserXml::parseDomainXmlNode get GroupId failed "));
    user.setLockFlag(
        frame::flagProperty(node, "ZT_LockFlag", false, "PrivilegeUserXml::parseDomainXmlNode get LockFlag failed "));
    user.setLockTime(static_cast<unsigned long>(
        frame::unsignedProperty(node, "ZT_LockTime", 0, "PrivilegeUserXml::parseDomainXmlNode get LockTime failed ")));
    user.setMultiLoginFlag(frame::flagProperty(node, "ZT_MultiLoginFlag", false,
                                               "PrivilegeUserXml::parseDomainXmlNode get MultiLoginFlag failed "));
    user.setDesc(frame::textProperty(node, "ZT_Desc", "", "PrivilegeUserXml::parseDomainXmlNode get Desc failed "));
    return true;
}

bool ZT_PrivilegeUserXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                             std::vector<ZT_PrivilegeUser>& users) const
{
    if (!node) return false;

    TiXmlElement* list = node->getXmlNode();
    TiXmlElement* item = list != nullptr ? list->FirstChildElement("ZT_PrivilegeUser") : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement("ZT_PrivilegeUser"))
    {
        ZT_PrivilegeUser user;
        if (!parseDomainXmlNode(frame::nodeOf(*item), user)) return false;
        users.push_back(std::move(user));
    }
    return true;
}

bool ZT_PrivilegeUserXml::createXmlString(const ZT_PrivilegeUser& user, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_PrivilegeUser");
    return createDomainXmlNode(user, node) && DomainXmlNode::toString(node, text);
}

bool ZT_PrivilegeUserXml::createXmlString(const std::vector<ZT_PrivilegeUser>& users, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZT_PrivilegeUserList");
    return createDomainXmlNode(users, node) && DomainXmlNode::toString(node, text);
}

bool ZT_PrivilegeUserXml::parseXmlString(const std::string& text, ZT_PrivilegeUser& user) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_PrivilegeUser", node) && parseDomainXmlNode(node, user);
}

bool ZT_PrivilegeUserXml::parseXmlString(const std::string& text, std::vector<ZT_PrivilegeUser>& users) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZT_PrivilegeUserList", node) && parseDomainXmlNode(node, users);
}
