// <SystemServiceInfoList FTPEnableFlag="true" TelnetEnableFlag="false" WebLanguageID="1" />

#include "device/SystemServiceInfoXml.h"

#include "core/Frame.h"

SystemServiceInfoXml::SystemServiceInfoXml() = default;

SystemServiceInfoXml::~SystemServiceInfoXml() = default;

bool SystemServiceInfoXml::createDomainXmlNode(const SystemServiceInfo& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("FTPEnableFlag", info.getFTPEnableFlag());
    node->setProperty("TelnetEnableFlag", info.getTelnetEnableFlag());
    node->setProperty("WebLanguageID", info.getWebLanguageID());
    return true;
}

bool SystemServiceInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SystemServiceInfo& info) const
{
    if (!node) return false;

    info.setFTPEnableFlag(frame::flagProperty(node, "FTPEnableFlag", false));
    info.setTelnetEnableFlag(frame::flagProperty(node, "TelnetEnableFlag", false));
    info.setWebLanguageID(frame::intProperty(node, "WebLanguageID", 0));
    return true;
}

bool SystemServiceInfoXml::createXmlString(const SystemServiceInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SystemServiceInfoList");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool SystemServiceInfoXml::parseXmlString(const std::string& text, SystemServiceInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SystemServiceInfoList", node) && parseDomainXmlNode(node, info);
}
