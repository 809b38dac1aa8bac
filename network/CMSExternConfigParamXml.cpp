// <CMSExternConfigParam ExternConfig1="value 1" ExternConfig2="value 2" ExternConfig3="value 3" />

#include "network/CMSExternConfigParamXml.h"

#include "core/Frame.h"

CMSExternConfigParamXml::CMSExternConfigParamXml() = default;

CMSExternConfigParamXml::~CMSExternConfigParamXml() = default;

void CMSExternConfigParamXml::createXmlNode()
{
    writeElement(document_, config_);
}

bool CMSExternConfigParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CMSExternConfigParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CMSExternConfigParam", document_, node_) && parseXmlNode();
}

bool CMSExternConfigParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, config_);
}

TiXmlElement& CMSExternConfigParamXml::writeElement(TiXmlNode& parent, const CMSExternConfigParam& config)
{
    TiXmlElement& element = frame::appendElement(parent, "CMSExternConfigParam");
    frame::setText(element, "ExternConfig1", config.getExternConfig1());
    frame::setText(element, "ExternConfig2", config.getExternConfig2());
    frame::setText(element, "ExternConfig3", config.getExternConfig3());
    return element;
}

bool CMSExternConfigParamXml::readElement(const TiXmlElement& element, CMSExternConfigParam& config)
{
    config.setExternConfig1(frame::textOf(element, "ExternConfig1", config.getExternConfig1()));
    config.setExternConfig2(frame::textOf(element, "ExternConfig2", config.getExternConfig2()));
    config.setExternConfig3(frame::textOf(element, "ExternConfig3", config.getExternConfig3()));
    return true;
}

bool CMSExternConfigParamXml::createDomainXmlNode(const CMSExternConfigParam& config,
                                                  SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ExternConfig1", config.getExternConfig1());
    node->setProperty("ExternConfig2", config.getExternConfig2());
    node->setProperty("ExternConfig3", config.getExternConfig3());
    return true;
}

bool CMSExternConfigParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                 CMSExternConfigParam& config) const
{
    if (!node) return false;

    config.setExternConfig1(frame::textProperty(
        node, "ExternConfig1", "", "CMSExternConfigParamXml::parseDomainXmlNode get ExternConfig1 failed "));
    config.setExternConfig2(frame::textProperty(
        node, "ExternConfig2", "", "CMSExternConfigParamXml::parseDomainXmlNode get ExternConfig2 failed "));
    config.setExternConfig3(frame::textProperty(
        node, "ExternConfig3", "", "CMSExternConfigParamXml::parseDomainXmlNode get ExternConfig3 failed "));
    return true;
}

bool CMSExternConfigParamXml::createXmlString(const CMSExternConfigParam& config, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CMSExternConfigParam");
    return createDomainXmlNode(config, node) && DomainXmlNode::toString(node, text);
}

bool CMSExternConfigParamXml::parseXmlString(const std::string& text, CMSExternConfigParam& config) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CMSExternConfigParam", node) && parseDomainXmlNode(node, config);
}
