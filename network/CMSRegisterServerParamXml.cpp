// <CMSRegisterServerParam RegisterSrvIP1="192.0.2.1" RegisterSrvPORT1="6001" RegisterSrvIP2="192.0.2.2"
//                         RegisterSrvPORT2="6002" RegisterSrvIP3="192.0.2.3" RegisterSrvPORT3="6003"
//                         RegisterSrvIP4="192.0.2.4" RegisterSrvPORT4="6004" />
//
// The peers write the ports in capitals, and the lines do not.

#include "network/CMSRegisterServerParamXml.h"

#include "core/Frame.h"

CMSRegisterServerParamXml::CMSRegisterServerParamXml() = default;

CMSRegisterServerParamXml::~CMSRegisterServerParamXml() = default;

void CMSRegisterServerParamXml::createXmlNode()
{
    writeElement(document_, server_);
}

bool CMSRegisterServerParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CMSRegisterServerParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CMSRegisterServerParam", document_, node_) && parseXmlNode();
}

bool CMSRegisterServerParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, server_);
}

TiXmlElement& CMSRegisterServerParamXml::writeElement(TiXmlNode& parent, const CMSRegisterServerParam& server)
{
    TiXmlElement& element = frame::appendElement(parent, "CMSRegisterServerParam");
    frame::setText(element, "RegisterSrvIP1", server.getRegisterSrvIP1());
    frame::setInt(element, "RegisterSrvPORT1", server.getRegisterSrvPort1());
    frame::setText(element, "RegisterSrvIP2", server.getRegisterSrvIP2());
    frame::setInt(element, "RegisterSrvPORT2", server.getRegisterSrvPort2());
    frame::setText(element, "RegisterSrvIP3", server.getRegisterSrvIP3());
    frame::setInt(element, "RegisterSrvPORT3", server.getRegisterSrvPort3());
    frame::setText(element, "RegisterSrvIP4", server.getRegisterSrvIP4());
    frame::setInt(element, "RegisterSrvPORT4", server.getRegisterSrvPort4());
    return element;
}

bool CMSRegisterServerParamXml::readElement(const TiXmlElement& element, CMSRegisterServerParam& server)
{
    server.setRegisterSrvIP1(frame::textOf(element, "RegisterSrvIP1", server.getRegisterSrvIP1()));
    server.setRegisterSrvPort1(frame::intOf(element, "RegisterSrvPORT1", server.getRegisterSrvPort1()));
    server.setRegisterSrvIP2(frame::textOf(element, "RegisterSrvIP2", server.getRegisterSrvIP2()));
    server.setRegisterSrvPort2(frame::intOf(element, "RegisterSrvPORT2", server.getRegisterSrvPort2()));
    server.setRegisterSrvIP3(frame::textOf(element, "RegisterSrvIP3", server.getRegisterSrvIP3()));
    server.setRegisterSrvPort3(frame::intOf(element, "RegisterSrvPORT3", server.getRegisterSrvPort3()));
    server.setRegisterSrvIP4(frame::textOf(element, "RegisterSrvIP4", server.getRegisterSrvIP4()));
    server.setRegisterSrvPort4(frame::intOf(element, "RegisterSrvPORT4", server.getRegisterSrvPort4()));
    return true;
}

bool CMSRegisterServerParamXml::createDomainXmlNode(const CMSRegisterServerParam& server,
                                                    SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("RegisterSrvIP1", server.getRegisterSrvIP1());
    node->setProperty("RegisterSrvPORT1", server.getRegisterSrvPort1());
    node->setProperty("RegisterSrvIP2", server.getRegisterSrvIP2());
    node->setProperty("RegisterSrvPORT2", server.getRegisterSrvPort2());
    node->setProperty("RegisterSrvIP3", server.getRegisterSrvIP3());
    node->setProperty("RegisterSrvPORT3", server.getRegisterSrvPort3());
    node->setProperty("RegisterSrvIP4", server.getRegisterSrvIP4());
    node->setProperty("RegisterSrvPORT4", server.getRegisterSrvPort4());
    return true;
}

bool CMSRegisterServerParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                   CMSRegisterServerParam& server) const
{
    if (!node) return false;

    server.setRegisterSrvIP1(frame::textProperty(
        node, "RegisterSrvIP1", "", "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP1 failed "));
    server.setRegisterSrvPort1(frame::intProperty(
        node, "RegisterSrvPORT1", 0, "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort1 failed "));
    server.setRegisterSrvIP2(frame::textProperty(
        node, "RegisterSrvIP2", "", "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP2 failed "));
    server.setRegisterSrvPort2(frame::intProperty(
        node, "RegisterSrvPORT2", 0, "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort2 failed "));
    server.setRegisterSrvIP3(frame::textProperty(
        node, "RegisterSrvIP3", "", "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP3 failed "));
    server.setRegisterSrvPort3(frame::intProperty(
        node, "RegisterSrvPORT3", 0, "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort3 failed "));
    server.setRegisterSrvIP4(frame::textProperty(
        node, "RegisterSrvIP4", "", "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP4 failed "));
    server.setRegisterSrvPort4(frame::intProperty(
        node, "RegisterSrvPORT4", 0, "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort4 failed "));
    return true;
}

bool CMSRegisterServerParamXml::createXmlString(const CMSRegisterServerParam& server, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CMSRegisterServerParam");
    return createDomainXmlNode(server, node) && DomainXmlNode::toString(node, text);
}

bool CMSRegisterServerParamXml::parseXmlString(const std::string& text, CMSRegisterServerParam& server) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CMSRegisterServerParam", node) && parseDomainXmlNode(node, server);
}
