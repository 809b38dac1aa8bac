// <BonjourServiceParam BonjourEnableFlag="true" />

#include "network/BonjourServiceParamXml.h"

#include "core/Frame.h"

BonjourServiceParamXml::BonjourServiceParamXml() = default;

BonjourServiceParamXml::~BonjourServiceParamXml() = default;

bool BonjourServiceParamXml::createDomainXmlNode(const BonjourServiceParam& param,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("BonjourEnableFlag", param.getBonjourEnableFlag());
    return true;
}

bool BonjourServiceParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                BonjourServiceParam& param) const
{
    if (!node) return false;

    param.setBonjourEnableFlag(frame::flagProperty(node, "BonjourEnableFlag", false));
    return true;
}

bool BonjourServiceParamXml::createXmlString(const BonjourServiceParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BonjourServiceParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool BonjourServiceParamXml::parseXmlString(const std::string& text, BonjourServiceParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "BonjourServiceParam", node) && parseDomainXmlNode(node, param);
}

bool BonjourServiceParamXml::create(const BonjourServiceParam& param, SafePointer<DomainXmlNode>& node) const
{
    node = frame::makeNode("BonjourServiceParam");
    node->setProperty("BonjourEnableFlag", param.getBonjourEnableFlag());
    return true;
}

// Nothing here calls it: peers take a text without the flag for "not found by Bonjour", where they refuse one of UPnP.
bool BonjourServiceParamXml::parse(const SafePointer<DomainXmlNode>& node, BonjourServiceParam& param) const
{
    bool enableFlag = false;
    if (!node || !node->getProperty("BonjourEnableFlag", enableFlag)) return false;
    param.setBonjourEnableFlag(enableFlag);
    return true;
}
