// <SystemUserParam UserName="operator" Password="not told" NewPassword="not told either" />

#include "security/SystemUserParamXml.h"

#include "core/Frame.h"

#include <utility>

SystemUserParamXml::SystemUserParamXml() = default;

SystemUserParamXml::~SystemUserParamXml() = default;

bool SystemUserParamXml::createXmlString(const SystemUserParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SystemUserParam");
    node->setProperty("UserName", param.getSystemUser().getUserName());
    node->setProperty("Password", param.getSystemUser().getPassword());
    node->setProperty("NewPassword", param.getNewPassword());
    return DomainXmlNode::toString(node, text);
}

bool SystemUserParamXml::parseXmlString(const std::string& text, SystemUserParam& param) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "SystemUserParam", node)) return false;

    std::string userName;
    std::string password;
    std::string newPassword;
    if (!node->getProperty("UserName", userName)) return false;
    if (!node->getProperty("Password", password)) return false;
    if (!node->getProperty("NewPassword", newPassword)) return false;

    SystemUser user;
    user.setUserName(userName);
    user.setPassword(password);
    param.getSystemUser() = std::move(user);
    param.setNewPassword(newPassword);
    return true;
}
