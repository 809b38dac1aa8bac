// <SecurityParam LoginMode="2" WebMode="1" CommunicationEncryptFlag="true" AccountsLockTime="30"
//                AccountsUnlockTime="20" MaxSeriesLoginErrorCount="5" AccountsLockEnableFlag="true"
//                PasswordVerifyMode="1" />

#include "security/SecurityParamXml.h"

#include "core/Frame.h"

SecurityParamXml::SecurityParamXml() = default;

SecurityParamXml::~SecurityParamXml() = default;

bool SecurityParamXml::createDomainXmlNode(const SecurityParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("LoginMode", param.getLoginMode());
    node->setProperty("WebMode", param.getWebMode());
    node->setProperty("CommunicationEncryptFlag", param.getCommunicationEncryptFlag());
    node->setProperty("AccountsLockTime", param.getAccountsLockTime());
    node->setProperty("AccountsUnlockTime", param.getAccountsUnlockTime());
    node->setProperty("MaxSeriesLoginErrorCount", param.getMaxSeriesLoginErrorCount());
    node->setProperty("AccountsLockEnableFlag", param.getAccountsLockEnableFlag());
    node->setProperty("PasswordVerifyMode", param.getPasswordVerifyMode());
    return true;
}

bool SecurityParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SecurityParam& param) const
{
    if (!node) return false;

    param.setLoginMode(
        frame::intProperty(node, "LoginMode", 2, "SecurityParamXml::parseDomainXmlNode get LoginMode failed "));
    param.setWebMode(
        frame::intProperty(node, "WebMode", 1, "SecurityParamXml::parseDomainXmlNode get WebMode failed "));
    param.setCommunicationEncryptFlag(
        frame::flagProperty(node, "CommunicationEncryptFlag", false,
                            "SecurityParamXml::parseDomainXmlNode get CommunicationEncryptFlag failed "));
    param.setAccountsLockTime(frame::intProperty(node, "AccountsLockTime", 0,
                                                 "SecurityParamXml::parseDomainXmlNode get AccountsLockTime failed "));
    param.setAccountsUnlockTime(frame::intProperty(
        node, "AccountsUnlockTime", 0, "SecurityParamXml::parseDomainXmlNode get AccountsUnlockTime failed "));
    param.setMaxSeriesLoginErrorCount(
        frame::intProperty(node, "MaxSeriesLoginErrorCount", 0,
                           "SecurityParamXml::parseDomainXmlNode get MaxSeriesLoginErrorCount failed "));
    param.setAccountsLockEnableFlag(
        frame::flagProperty(node, "AccountsLockEnableFlag", false,
                            "SecurityParamXml::parseDomainXmlNode get AccountsLockEnableFlag failed "));
    param.setPasswordVerifyMode(frame::intProperty(
        node, "PasswordVerifyMode", 0, "SecurityParamXml::parseDomainXmlNode get PasswordVerifyMode failed "));
    return true;
}

bool SecurityParamXml::createXmlString(const SecurityParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SecurityParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool SecurityParamXml::parseXmlString(const std::string& text, SecurityParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SecurityParam", node) && parseDomainXmlNode(node, param);
}
