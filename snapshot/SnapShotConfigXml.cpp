// <SnapShotConfig snapShotStreamId="1" />

#include "snapshot/SnapShotConfigXml.h"

#include "core/Frame.h"

SnapShotConfigXml::SnapShotConfigXml() = default;

SnapShotConfigXml::~SnapShotConfigXml() = default;

bool SnapShotConfigXml::createDomainXmlNode(const SnapShotConfig& config, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("snapShotStreamId", config.getSnapShotStreamId());
    return true;
}

bool SnapShotConfigXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SnapShotConfig& config) const
{
    if (!node) return false;

    config.setSnapShotStreamId(frame::intProperty(node, "snapShotStreamId", 0));
    return true;
}

bool SnapShotConfigXml::createXmlString(const SnapShotConfig& config, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SnapShotConfig");
    return createDomainXmlNode(config, node) && DomainXmlNode::toString(node, text);
}

bool SnapShotConfigXml::parseXmlString(const std::string& text, SnapShotConfig& config) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SnapShotConfig", node) && parseDomainXmlNode(node, config);
}
