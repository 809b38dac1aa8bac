// <PPPoEParam PPPoEEnableFlag="true" PPPoEUserName="dial-17" PPPoEPassword="not told" />

#include "network/PPPoEParamXml.h"

#include "core/Frame.h"

PPPoEParamXml::PPPoEParamXml() = default;

PPPoEParamXml::~PPPoEParamXml() = default;

void PPPoEParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool PPPoEParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PPPoEParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "PPPoEParam", document_, node_) && parseXmlNode();
}

bool PPPoEParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& PPPoEParamXml::writeElement(TiXmlNode& parent, const PPPoEParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "PPPoEParam");
    frame::setFlag(element, "PPPoEEnableFlag", param.getPPPoEEnableFlag());
    frame::setText(element, "PPPoEUserName", param.getPPPoEUserName());
    frame::setText(element, "PPPoEPassword", param.getPPPoEPassword());
    return element;
}

bool PPPoEParamXml::readElement(const TiXmlElement& element, PPPoEParam& param)
{
    param.setPPPoEEnableFlag(frame::flagOf(element, "PPPoEEnableFlag", false));
    param.setPPPoEUserName(frame::textOf(element, "PPPoEUserName", ""));
    param.setPPPoEPassword(frame::textOf(element, "PPPoEPassword", ""));
    return true;
}

bool PPPoEParamXml::createDomainXmlNode(const PPPoEParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("PPPoEEnableFlag", param.getPPPoEEnableFlag());
    node->setProperty("PPPoEUserName", param.getPPPoEUserName());
    node->setProperty("PPPoEPassword", param.getPPPoEPassword());
    return true;
}

bool PPPoEParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PPPoEParam& param) const
{
    if (!node) return false;

    param.setPPPoEEnableFlag(frame::flagProperty(node, "PPPoEEnableFlag", false));
    param.setPPPoEUserName(frame::textProperty(node, "PPPoEUserName", ""));
    param.setPPPoEPassword(frame::textProperty(node, "PPPoEPassword", ""));
    return true;
}

bool PPPoEParamXml::createXmlString(const PPPoEParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PPPoEParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool PPPoEParamXml::parseXmlString(const std::string& text, PPPoEParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PPPoEParam", node) && parseDomainXmlNode(node, param);
}
