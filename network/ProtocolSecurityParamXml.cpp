// <UserVerification EnableFlag="true" SecurityVerificationType="2" />

#include "network/ProtocolSecurityParamXml.h"

#include "core/Frame.h"

ProtocolSecurityParamXml::ProtocolSecurityParamXml() = default;

ProtocolSecurityParamXml::~ProtocolSecurityParamXml() = default;

bool ProtocolSecurityParamXml::createDomainXmlNode(const ProtocolSecurityParam& param,
                                                   SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", param.getUserVerificationFlag());
    node->setProperty("SecurityVerificationType", param.getSecurityVerificationType());
    return true;
}

bool ProtocolSecurityParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                  ProtocolSecurityParam& param) const
{
    if (!node) return false;

    param.setUserVerificationFlag(frame::flagProperty(node, "EnableFlag", false));
    param.setSecurityVerificationType(frame::intProperty(node, "SecurityVerificationType", 0));
    return true;
}

bool ProtocolSecurityParamXml::createXmlString(const ProtocolSecurityParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("UserVerification");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ProtocolSecurityParamXml::parseXmlString(const std::string& text, ProtocolSecurityParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "UserVerification", node) && parseDomainXmlNode(node, param);
}
