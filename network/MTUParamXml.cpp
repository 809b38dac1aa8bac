// <MTUParam MTUValue="1400" />

#include "network/MTUParamXml.h"

#include "core/Frame.h"

MTUParamXml::MTUParamXml() = default;

MTUParamXml::~MTUParamXml() = default;

bool MTUParamXml::createDomainXmlNode(const MTUParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("MTUValue", param.getMTUValue());
    return true;
}

bool MTUParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MTUParam& param) const
{
    if (!node) return false;

    param.setMTUValue(frame::intProperty(node, "MTUValue", param.getMTUValue()));
    return true;
}

bool MTUParamXml::createXmlString(const MTUParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("MTUParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

// Not by way of the reader of nodes, which takes a node without a value: a text without one is nothing to act on.
bool MTUParamXml::parseXmlString(const std::string& text, MTUParam& param) const
{
    SafePointer<DomainXmlNode> node;
    int value = 0;
    if (!DomainXmlNode::parse(text, "MTUParam", node) || !node->getProperty("MTUValue", value)) return false;
    param.setMTUValue(value);
    return true;
}
