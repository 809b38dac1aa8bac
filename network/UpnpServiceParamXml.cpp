// <UpnpServiceParam UpnpEnableFlag="true" />

#include "network/UpnpServiceParamXml.h"

#include "core/Frame.h"

UpnpServiceParamXml::UpnpServiceParamXml() = default;

UpnpServiceParamXml::~UpnpServiceParamXml() = default;

// Unlike other codecs, this one does not fill the caller's node: callers take the new one, and hand over empty
// pointers.
bool UpnpServiceParamXml::createDomainXmlNode(const UpnpServiceParam& param, SafePointer<DomainXmlNode>& node) const
{
    return create(param, node);
}

bool UpnpServiceParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, UpnpServiceParam& param) const
{
    return parse(node, param);
}

bool UpnpServiceParamXml::createXmlString(const UpnpServiceParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node;
    create(param, node);
    DomainXmlNode::toString(node, text);
    return true;
}

bool UpnpServiceParamXml::parseXmlString(const std::string& text, UpnpServiceParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "UpnpServiceParam", node) && parse(node, param);
}

bool UpnpServiceParamXml::create(const UpnpServiceParam& param, SafePointer<DomainXmlNode>& node) const
{
    node = frame::makeNode("UpnpServiceParam");
    node->setProperty("UpnpEnableFlag", param.getUpnpEnableFlag());
    return true;
}

bool UpnpServiceParamXml::parse(const SafePointer<DomainXmlNode>& node, UpnpServiceParam& param) const
{
    bool enableFlag = false;
    if (!node || !node->getProperty("UpnpEnableFlag", enableFlag)) return false;
    param.setUpnpEnableFlag(enableFlag);
    return true;
}
