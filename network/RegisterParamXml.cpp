// <RegisterParamList>
//     <RegisterParam RegisterEnableFlag="true" RegisterSrvIP="192.0.2.8" RegisterSrvPort="7000" IPProtoVer="4" />
// </RegisterParamList>

#include "network/RegisterParamXml.h"

#include "core/Frame.h"

#include <utility>

RegisterParamXml::RegisterParamXml() = default;

RegisterParamXml::~RegisterParamXml() = default;

void RegisterParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool RegisterParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RegisterParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "RegisterParam", document_, node_) && parseXmlNode();
}

bool RegisterParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& RegisterParamXml::writeElement(TiXmlNode& parent, const RegisterParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "RegisterParam");
    frame::setFlag(element, "RegisterEnableFlag", param.getRegisterEnableFlag());
    frame::setText(element, "RegisterSrvIP", param.getRegisterServerIP());
    frame::setInt(element, "RegisterSrvPort", param.getRegisterServerPort());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool RegisterParamXml::readElement(const TiXmlElement& element, RegisterParam& param)
{
    param.setRegisterEnableFlag(frame::flagOf(element, "RegisterEnableFlag", false));
    param.setRegisterServerIP(frame::textOf(element, "RegisterSrvIP", ""));
    param.setRegisterServerPort(frame::uint16Of(element, "RegisterSrvPort", 0));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}

bool RegisterParamXml::createDomainXmlNode(const RegisterParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("RegisterEnableFlag", param.getRegisterEnableFlag());
    node->setProperty("RegisterSrvIP", param.getRegisterServerIP());
    node->setProperty("RegisterSrvPort", param.getRegisterServerPort());
    node->setProperty("IPProtoVer", param.getIPProtoVer());
    return true;
}

bool RegisterParamXml::createDomainXmlNode(const std::vector<RegisterParam>& params,
                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const RegisterParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "RegisterParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool RegisterParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, RegisterParam& param) const
{
    if (!node) return false;

    param.setRegisterEnableFlag(frame::flagProperty(
        node, "RegisterEnableFlag", false, "RegisterParamXml::parseDomainXmlNode get RegisterEnableFlag failed "));
    param.setRegisterServerIP(frame::textProperty(node, "RegisterSrvIP", "",
                                                  "RegisterParamXml::parseDomainXmlNode get RegisterSrvIP failed "));
    param.setRegisterServerPort(frame::uint16Property(
        node, "RegisterSrvPort", 0, "RegisterParamXml::parseDomainXmlNode get RegisterSrvPort failed "));
    param.setIPProtoVer(
        frame::intProperty(node, "IPProtoVer", 0, "RegisterParamXml::parseDomainXmlNode get IPProtoVer failed "));
    return true;
}

bool RegisterParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                          std::vector<RegisterParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RegisterParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool RegisterParamXml::createXmlString(const RegisterParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RegisterParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool RegisterParamXml::createXmlString(const std::vector<RegisterParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RegisterParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool RegisterParamXml::parseXmlString(const std::string& text, RegisterParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "RegisterParam", node) && parseDomainXmlNode(node, param);
}

bool RegisterParamXml::parseXmlString(const std::string& text, std::vector<RegisterParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "RegisterParamList", node) && parseDomainXmlNode(node, params);
}
